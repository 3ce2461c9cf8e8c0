#include "app/BackgroundReferences.h"

#include "tomo/ForwardPass.h"

#include <QThread>
#include <exception>

namespace talvesk {

BackgroundReferences::BackgroundReferences(QObject* parent) : QObject(parent) {}

BackgroundReferences::~BackgroundReferences() {
  stop();
}

void BackgroundReferences::start(const TomoDocument& document, const FittedSettings& settings) {
  stop();
  mReferences.reset();
  mStatus = {};
  mStop = false;
  mThread.reset(QThread::create([this, document, settings] { work(document, settings); }));
  connect(
      mThread.get(), &QThread::finished, this,
      [this, run = ++mRuns] {
        // One that was stopped may have told its end before it was.
        if (mThread == nullptr || run != mRuns) return;
        mThread->wait();
        mThread.reset();
        emit finished();
      },
      Qt::QueuedConnection);
  mThread->start();
}

void BackgroundReferences::stop() {
  if (mThread == nullptr) return;
  mStop = true;
  mThread->wait();
  mThread.reset();
}

void BackgroundReferences::work(const TomoDocument& document, const FittedSettings& settings) {
  mStatus = checkTraceable(document);
  if (!mStatus.ok()) return;
  try {
    mReferences = referencesOf(document, settings, [this] { return !mStop; });
  } catch (const std::exception& error) {
    mStatus = Status::failure(Message::tr("The models could not be made: %1").arg(error.what()));
  }
}

}  // namespace talvesk
