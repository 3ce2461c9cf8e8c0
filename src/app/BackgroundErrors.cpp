#include "app/BackgroundErrors.h"

#include <QThread>
#include <new>
#include <utility>

namespace talvesk {

BackgroundErrors::BackgroundErrors(QObject* parent) : QObject(parent) {}

BackgroundErrors::~BackgroundErrors() {
  stop();
  if (mThread != nullptr) mThread->wait();
}

void BackgroundErrors::start(LayerPicks picks, const BoundsOptions& bounds) {
  stop();
  mNext = std::make_unique<Task>();
  mNext->picks = std::move(picks);
  mNext->bounds = bounds;
  if (mThread == nullptr) begin();
}

void BackgroundErrors::stop() {
  mNext.reset();
  if (mTask != nullptr) mTask->stopped = true;
}

void BackgroundErrors::begin() {
  mTask = std::move(mNext);
  mThread.reset(QThread::create([this, task = mTask.get()] { work(*task); }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundErrors::finish);
  mThread->start();
}

void BackgroundErrors::work(Task& task) {
  try {
    auto errors = findProfileErrors(task.picks, task.bounds, [&](std::size_t done) {
      if (!task.stopped) emit progressed(static_cast<int>(done));
      return !task.stopped;
    });
    if (errors) task.errors = std::make_shared<const ProfileErrors>(std::move(*errors));
  } catch (const std::bad_alloc&) {
    // The profile is there all the same.
  }
}

void BackgroundErrors::finish() {
  mThread->wait();
  mThread.reset();
  const std::unique_ptr<Task> done = std::move(mTask);
  if (mNext != nullptr) {
    begin();
  } else if (!done->stopped) {
    emit found(done->errors);
  }
}

}  // namespace talvesk
