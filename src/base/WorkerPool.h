#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace talvesk {

/// Threads that wait for work as long as the object lives: for computations of many short passes,
/// which would otherwise start and end threads all the time. For what is done once see
/// runForEach().
///
/// One thread owns it and calls run(), one pass at a time and not from within a pass.
class WorkerPool {
 public:
  using Work = std::function<void(unsigned worker, std::size_t item)>;
  using Done = std::function<void(std::size_t item)>;

  /// \param workers at least 1, which is the thread that calls run(): a pool of one starts none.
  /// Where the system gives fewer threads, those that run do all the work.
  explicit WorkerPool(unsigned workers);
  ~WorkerPool();
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  unsigned size() const { return static_cast<unsigned>(mThreads.size()) + 1; }

  /// Calls work(worker, item) for the items from 0 to count - 1. Workers take the next item from
  /// one queue; worker 0 is the thread that calls. Items must write to places of their own, or to
  /// one of their worker.
  ///
  /// What an item throws keeps items from being begun; when those under way have ended, that of the
  /// first item that threw is thrown again. This is the same item for every number of workers, if
  /// items do not depend on each other.
  /// \param done called on the thread that calls, for one item after the other in their order, each
  /// after it and all before it have ended well; what it throws ends the pass likewise
  void run(std::size_t count, const Work& work, const Done& done = nullptr);

 private:
  using Lock = std::unique_lock<std::mutex>;
  void serve(unsigned worker);
  void takeItem(unsigned worker, Lock& lock);
  void fail(std::size_t item, const std::exception_ptr& failure);
  bool nextIsDone() const;

  std::vector<std::thread> mThreads;
  std::mutex mMutex;  ///< of all below
  std::condition_variable mWork;
  std::condition_variable mEnded;
  bool mClosing = false;
  const Work* mPass = nullptr;
  std::size_t mCount = 0;  ///< items of the pass; fewer once one has failed
  std::size_t mNext = 0;   ///< the first that nobody has taken
  std::size_t mRunning = 0;
  std::size_t mDone = 0;  ///< so many have been told to `done`
  std::vector<std::uint8_t> mFinished;
  std::size_t mFailedItem = 0;
  std::exception_ptr mFailure;
};

/// Calls work(first, last) for parts of 0 to count - 1, each a range of `part` numbers.
void forEachPart(WorkerPool& pool, std::size_t count, std::size_t part,
                 const std::function<void(std::size_t first, std::size_t last)>& work);

}  // namespace talvesk
