#include "python/LongWork.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

#include <pybind11/pybind11.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

/// How long Ctrl-C may wait to be noticed.
constexpr std::chrono::milliseconds kGlance(50);

/// What the thread of the work and that of the interpreter tell each other.
class Exchange {
 public:
  void tell(std::function<void()> news) {
    const std::lock_guard lock(mMutex);
    mNews.push_back(std::move(news));
    mChanged.notify_one();
  }

  void finish() {
    const std::lock_guard lock(mMutex);
    mDone = true;
    mChanged.notify_one();
  }

  /// Waits for news, the end or the time of a glance. False once all is done and told.
  bool next(std::deque<std::function<void()>>& news) {
    std::unique_lock lock(mMutex);
    mChanged.wait_for(lock, kGlance, [&] { return mDone || !mNews.empty(); });
    news.swap(mNews);
    return !mDone || !news.empty();
  }

  std::atomic<bool> stop = false;

 private:
  std::mutex mMutex;
  std::condition_variable mChanged;
  std::deque<std::function<void()>> mNews;
  bool mDone = false;
};

/// The first that was thrown wins; what comes later is of work that is ending.
void passOn(const std::deque<std::function<void()>>& all, std::exception_ptr& thrown) {
  const py::gil_scoped_acquire lock;
  try {
    if (!thrown) {
      for (const std::function<void()>& news : all) news();
    }
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
  } catch (...) {
    if (!thrown) thrown = std::current_exception();
  }
}

}  // namespace

void runBeside(const std::function<void(const Tell&, const Stopped&)>& work) {
  Exchange exchange;
  std::exception_ptr thrown;
  std::exception_ptr failed;
  {
    const py::gil_scoped_release free;
    std::thread thread([&] {
      try {
        work([&](std::function<void()> news) { exchange.tell(std::move(news)); },
             [&] { return exchange.stop.load(); });
      } catch (...) {
        failed = std::current_exception();
      }
      exchange.finish();
    });
    std::deque<std::function<void()>> news;
    while (exchange.next(news)) {
      passOn(news, thrown);
      news.clear();
      if (thrown) exchange.stop = true;
    }
    thread.join();
  }
  if (thrown) std::rethrow_exception(thrown);
  if (failed) std::rethrow_exception(failed);
}

}  // namespace talvesk::python
