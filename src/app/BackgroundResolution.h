#pragma once

#include "model/TomoDocument.h"
#include "tomo/fitted/ResolutionRun.h"

#include <QObject>
#include <atomic>
#include <memory>

class QThread;

namespace talvesk {

/// Resolution tests beside a window that goes on answering, on a copy of the survey.
class BackgroundResolution : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundResolution(QObject* parent = nullptr);
  /// Stops, and waits for the shot that is being traced.
  ~BackgroundResolution() override;

  /// Begins; finished() follows. No other is under way.
  void start(const TomoDocument& document, const ResolutionRequest& request);
  /// Ends with the tests that are completed; finished() follows.
  void requestStop() { mStop = true; }
  bool runs() const;
  int tests() const { return mTests; }            ///< completed so far
  int iterations() const { return mIterations; }  ///< of the one under way

  /// Of the last that has finished. Not to be called while one runs.
  const ResolutionReport& report() const { return mReport; }

 signals:
  void advanced();  ///< tests() or iterations() has changed; from the thread of the tests
  void finished();

 private:
  void end();

  TomoDocument mDocument;
  ResolutionRequest mRequest;
  ResolutionReport mReport;
  std::atomic<int> mTests{0};
  std::atomic<int> mIterations{0};
  std::atomic<bool> mStop{false};
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
