#include "app/BackgroundMethods.h"

#include <QThread>
#include <exception>
#include <iterator>

namespace talvesk {

BackgroundMethods::BackgroundMethods(QObject* parent) : QObject(parent) {}

BackgroundMethods::~BackgroundMethods() {
  end();
}

bool BackgroundMethods::runs() const {
  return mThread != nullptr && mThread->isRunning();
}

void BackgroundMethods::start(const LayerPicks& picks, const BoundsOptions& bounds) {
  end();
  mPicks = picks;
  mBounds = bounds;
  mComparison = {};
  mStatus = {};
  mDone = 0;
  mStop = false;
  mStopped = false;
  mThread.reset(QThread::create([this] { work(); }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundMethods::finished);
  mThread->start();
}

void BackgroundMethods::work() {
  try {
    const std::vector<LayerMethod> all(std::begin(kAllLayerMethods), std::end(kAllLayerMethods));
    mComparison = compareMethods(mPicks, all, mBounds, [this](std::size_t done) {
      mDone = done;
      emit advanced();
      mStopped = mStopped || mStop;
      return !mStopped;
    });
  } catch (const std::exception& error) {
    mStatus =
        Status::failure(Message::tr("The methods could not be compared: %1").arg(error.what()));
  }
}

void BackgroundMethods::end() {
  if (mThread == nullptr) return;
  mStop = true;
  mThread->wait();
  mThread.reset();
}

}  // namespace talvesk
