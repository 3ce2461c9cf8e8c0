#include "base/RunForEach.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace talvesk {

void runForEach(std::size_t count, const std::function<void(std::size_t)>& work,
                const std::function<bool()>& goOn, unsigned threads) {
  std::atomic<std::size_t> next{0};
  std::atomic<bool> stopped{false};
  const auto run = [&](bool asks) {
    while (!stopped) {
      if (asks && goOn && !goOn()) stopped = true;
      const std::size_t i = next++;
      if (stopped || i >= count) return;
      work(i);
    }
  };
  std::vector<std::thread> pool;
  if (threads == 0) threads = std::max(std::thread::hardware_concurrency(), 1U);
  try {
    for (unsigned t = 1; t < threads && t < count; ++t) pool.emplace_back(run, false);
  } catch (const std::system_error&) {
    // The system gives no more threads: those that run do all the work.
  }
  run(true);
  for (std::thread& thread : pool) thread.join();
}

}  // namespace talvesk
