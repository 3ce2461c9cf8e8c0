#include "app/BackgroundInversion.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <exception>
#include <memory>

namespace talvesk {

TomographyResult BackgroundInversion::run(const TomographyParameters& parameters,
                                          const IterationDone& iterationDone) {
  TomographyResult result;
  runBeside([&] {
    try {
      result = runInversion(
          mCopy, parameters, mLog,
          [&](const TomographyProgress& progress) {
            handOver([this, progress, &iterationDone] { iterationDone(progress, mCopy); });
          },
          [this] { return mStop.load(); });
    } catch (const std::exception& error) {
      result = {};
      result.status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
    }
  });
  return result;
}

ReferencedRun BackgroundInversion::fit(const FittedSettings& settings,
                                       const FitIterationDone& iterationDone) {
  ReferencedRun result;
  runBeside([&] {
    result = fitFromReference(
        mCopy, settings, mLog,
        [&](const FittedRunProgress& progress) {
          handOver([progress, &iterationDone] { iterationDone(progress); });
        },
        [this] { return mStop.load(); });
  });
  return result;
}

void BackgroundInversion::runBeside(const std::function<void()>& work) {
  const std::unique_ptr<QThread> thread(QThread::create(work));
  QEventLoop loop;
  connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec();
  // The loop also ends when the program quits. Nobody looks at iterations any more then.
  requestStop();
  mLeft = true;
  mSeen.release();
  thread->wait();
  // An iteration that waits to be looked at refers to what its caller has told, which ends here.
  QCoreApplication::removePostedEvents(this);
}

/// \param look for the thread that has begun the inversion
void BackgroundInversion::handOver(const std::function<void()>& look) {
  if (mLeft) return;
  QMetaObject::invokeMethod(
      this,
      [this, look] {
        look();
        mSeen.release();
      },
      Qt::QueuedConnection);
  mSeen.acquire();
}

}  // namespace talvesk
