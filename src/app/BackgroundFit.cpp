#include "app/BackgroundFit.h"

#include <QThread>
#include <new>
#include <utility>

namespace talvesk {

BackgroundFit::BackgroundFit(QObject* parent) : QObject(parent) {}

BackgroundFit::~BackgroundFit() {
  if (mThread != nullptr) mThread->wait();
}

void BackgroundFit::start(std::vector<ShotArrivals> shots, std::vector<std::vector<double>> errors,
                          refractionDataStructure::Interpretation interpretation, FindFit findFit) {
  mNext.reset(
      new Task{std::move(shots), std::move(errors), std::move(interpretation), findFit, {}});
  if (mThread == nullptr) begin();
}

void BackgroundFit::begin() {
  mTask = std::move(mNext);
  mThread.reset(QThread::create([task = mTask.get()] {
    try {
      task->fit = task->findFit(task->shots, task->errors, task->interpretation);
    } catch (const std::bad_alloc&) {
      task->fit = {};  // the profile is there all the same
    }
  }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundFit::finish);
  mThread->start();
}

void BackgroundFit::finish() {
  mThread->wait();
  mThread.reset();
  const std::unique_ptr<Task> done = std::move(mTask);
  if (mNext != nullptr) {
    begin();
  } else {
    emit found(done->fit);
  }
}

}  // namespace talvesk
