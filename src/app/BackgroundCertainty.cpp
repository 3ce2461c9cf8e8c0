#include "app/BackgroundCertainty.h"

#include <QThread>
#include <exception>

namespace talvesk {

BackgroundCertainty::BackgroundCertainty(QObject* parent) : QObject(parent) {}

BackgroundCertainty::~BackgroundCertainty() {
  end();
}

bool BackgroundCertainty::runs() const {
  return mThread != nullptr && mThread->isRunning();
}

EnsembleProgress BackgroundCertainty::progress() const {
  const std::lock_guard<std::mutex> lock(mMutex);
  return mProgress;
}

void BackgroundCertainty::start(const TomoDocument& document, const CertaintySettings& settings) {
  end();
  mDocument = document;
  mSettings = settings;
  mProgress = {};
  mCertainty.reset();
  mStatus = {};
  mStop = false;
  mStopped = false;
  mThread.reset(QThread::create([this] { work(); }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundCertainty::finished);
  mThread->start();
}

void BackgroundCertainty::work() {
  try {
    const std::uint64_t key = ensembleKey(mDocument, mSettings);
    if (mEnsemble == nullptr || key != mKey) mEnsemble = resumedEnsemble(mDocument, mSettings);
    mKey = key;
    Certainty certainty;
    mStatus = runCertainty(
        *mEnsemble, mDocument, mSettings, certainty,
        [this](const EnsembleProgress& progress) {
          {
            const std::lock_guard<std::mutex> lock(mMutex);
            mProgress = progress;
          }
          emit advanced();
        },
        [this] { return mStop.load(); });
    mStopped = mStatus.ok() && mEnsemble->done() < mSettings.members;
    if (mStatus.ok() && certainty.members > 0) mCertainty = std::move(certainty);
  } catch (const std::exception& error) {
    mStatus = Status::failure(
        Message::tr("How sure the section is could not be found out: %1").arg(error.what()));
  }
}

void BackgroundCertainty::end() {
  if (mThread == nullptr) return;
  mStop = true;
  mThread->wait();
  mThread.reset();
}

}  // namespace talvesk
