#include "app/BackgroundCheck.h"

#include "doctor/Doctor.h"

#include <QThread>
#include <exception>

namespace talvesk {

BackgroundCheck::BackgroundCheck(QObject* parent) : QObject(parent) {}

BackgroundCheck::~BackgroundCheck() {
  end();
}

void BackgroundCheck::start(const TomoDocument& document) {
  end();
  mDocument = document;
  mFindings.clear();
  mStatus = {};
  mStop = false;
  mStopped = false;
  mThread.reset(QThread::create([this] { work(); }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundCheck::finished);
  mThread->start();
}

void BackgroundCheck::work() {
  try {
    mFindings = doctor::checkRecordings(mDocument, [this] {
      mStopped = mStop;
      return !mStopped;
    });
  } catch (const std::exception& error) {
    mStatus = Status::failure(Message::tr("The check failed: %1").arg(error.what()));
  }
}

void BackgroundCheck::end() {
  if (mThread == nullptr) return;
  mStop = true;
  mThread->wait();
  mThread.reset();
}

}  // namespace talvesk
