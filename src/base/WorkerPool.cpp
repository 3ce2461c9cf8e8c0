#include "base/WorkerPool.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace talvesk {

WorkerPool::WorkerPool(unsigned workers) {
  try {
    for (unsigned worker = 1; worker < workers; ++worker) {
      mThreads.emplace_back([this, worker] { serve(worker); });
    }
  } catch (const std::system_error&) {
    // The system gives no more threads.
  }
}

WorkerPool::~WorkerPool() {
  {
    const Lock lock(mMutex);
    mClosing = true;
  }
  mWork.notify_all();
  for (std::thread& thread : mThreads) thread.join();
}

void WorkerPool::run(std::size_t count, const Work& work, const Done& done) {
  Lock lock(mMutex);
  mFinished.assign(count, 0);
  mPass = &work;
  mCount = count;
  mNext = mDone = 0;
  for (std::size_t i = 1; i < count && i <= mThreads.size(); ++i) mWork.notify_one();
  while (true) {
    if (done && nextIsDone()) {
      lock.unlock();
      std::exception_ptr failure;
      try {
        done(mDone);
      } catch (...) {
        failure = std::current_exception();
      }
      lock.lock();
      if (failure != nullptr) fail(mDone, failure);
      ++mDone;
    } else if (mNext < mCount) {
      takeItem(0, lock);
    } else if (mRunning > 0) {
      mEnded.wait(lock);
    } else {
      break;
    }
  }
  mPass = nullptr;
  if (mFailure != nullptr) std::rethrow_exception(std::exchange(mFailure, nullptr));
}

void WorkerPool::serve(unsigned worker) {
  Lock lock(mMutex);
  while (true) {
    mWork.wait(lock, [this] { return mClosing || mNext < mCount; });
    if (mClosing) return;
    takeItem(worker, lock);
  }
}

void WorkerPool::takeItem(unsigned worker, Lock& lock) {
  const std::size_t item = mNext++;
  const Work& work = *mPass;
  ++mRunning;
  lock.unlock();
  std::exception_ptr failure;
  try {
    work(worker, item);
  } catch (...) {
    failure = std::current_exception();
  }
  lock.lock();
  --mRunning;
  mFinished[item] = 1;
  if (failure != nullptr) fail(item, failure);
  mEnded.notify_one();
}

void WorkerPool::fail(std::size_t item, const std::exception_ptr& failure) {
  mCount = std::min(mCount, mNext);
  if (mFailure != nullptr && mFailedItem < item) return;
  mFailure = failure;
  mFailedItem = item;
}

bool WorkerPool::nextIsDone() const {
  return mDone < mNext && mFinished[mDone] != 0 && (mFailure == nullptr || mDone < mFailedItem);
}

void forEachPart(WorkerPool& pool, std::size_t count, std::size_t part,
                 const std::function<void(std::size_t first, std::size_t last)>& work) {
  pool.run((count + part - 1) / part,
           [&](unsigned, std::size_t i) { work(i * part, std::min(count, (i + 1) * part)); });
}

}  // namespace talvesk
