#include "app/BackgroundInversion.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <exception>
#include <memory>

namespace talvesk {

BackgroundInversion::BackgroundInversion(const TomoDocument& document,
                                         const TomographyParameters& parameters, Log& log)
    : mCopy(document), mParameters(parameters), mLog(log) {}

TomographyResult BackgroundInversion::run(const IterationDone& iterationDone) {
  TomographyResult result;
  const std::unique_ptr<QThread> thread(
      QThread::create([this, &result, &iterationDone] { result = work(iterationDone); }));
  QEventLoop loop;
  connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec();
  // The loop also ends when the program quits. Nobody looks at iterations any more then.
  requestStop();
  mSeen.release(mParameters.externalIterations);
  thread->wait();
  // An iteration that waits to be looked at refers to `iterationDone`, which ends here.
  QCoreApplication::removePostedEvents(this);
  return result;
}

TomographyResult BackgroundInversion::work(const IterationDone& iterationDone) {
  const auto handOver = [&](const TomographyProgress& progress) {
    QMetaObject::invokeMethod(
        this,
        [this, progress, &iterationDone] {
          iterationDone(progress, mCopy);
          mSeen.release();
        },
        Qt::QueuedConnection);
    mSeen.acquire();
  };
  try {
    return runInversion(mCopy, mParameters, mLog, handOver, [this] { return mStop.load(); });
  } catch (const std::exception& error) {
    TomographyResult failed;
    failed.status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
    return failed;
  }
}

}  // namespace talvesk
