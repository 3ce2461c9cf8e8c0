#include "app/BackgroundResolution.h"

#include <QThread>

namespace talvesk {

BackgroundResolution::BackgroundResolution(QObject* parent) : QObject(parent) {}

BackgroundResolution::~BackgroundResolution() {
  end();
}

bool BackgroundResolution::runs() const {
  return mThread != nullptr && mThread->isRunning();
}

void BackgroundResolution::start(const TomoDocument& document, const ResolutionRequest& request) {
  end();
  mDocument = document;
  mRequest = request;
  mReport = {};
  mTests = mIterations = 0;
  mStop = false;
  mThread.reset(QThread::create([this] {
    mReport = runResolution(
        mDocument, mRequest,
        [this](std::size_t test, int iteration) {
          mTests = static_cast<int>(test);
          mIterations = iteration;
          emit advanced();
        },
        [this] { return !mStop; });
  }));
  connect(mThread.get(), &QThread::finished, this, &BackgroundResolution::finished);
  mThread->start();
}

void BackgroundResolution::end() {
  if (mThread == nullptr) return;
  mStop = true;
  mThread->wait();
  mThread.reset();
}

}  // namespace talvesk
