#pragma once

#include "base/Log.h"
#include "model/TomoDocument.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/References.h"

#include <QObject>
#include <QSemaphore>
#include <atomic>
#include <functional>

namespace talvesk {

/// An inversion beside a window that goes on answering: a thread of its own works on a copy of the
/// survey, so that nothing on the screen changes under the eyes of who draws it. Between two
/// iterations it waits until the window has looked at them. An object runs one inversion.
class BackgroundInversion : public QObject {
 public:
  /// Told on the thread of run(), while the inversion waits; `copy` holds the iteration's results.
  using IterationDone =
      std::function<void(const TomographyProgress& progress, const TomoDocument& copy)>;
  /// The same of a fit, whose copy holds no results before it has ended.
  using FitIterationDone = std::function<void(const FittedRunProgress& progress)>;

  /// \param document holds a grid; it is copied \param log is written to from the other thread
  BackgroundInversion(const TomoDocument& document, Log& log) : mCopy(document), mLog(log) {}

  /// Runs an inversion, and the events of the calling thread meanwhile. If the program ends before
  /// the inversion does, the iteration under way is waited for.
  TomographyResult run(const TomographyParameters& parameters, const IterationDone& iterationDone);
  ReferencedRun fit(const FittedSettings& settings, const FitIterationDone& iterationDone);

  /// Ends the inversion when the external iteration under way is through, a fit at once. From any
  /// thread.
  void requestStop() { mStop = true; }

  /// The survey with the results; not to be read while an inversion runs, but from IterationDone.
  const TomoDocument& copy() const { return mCopy; }

 private:
  void runBeside(const std::function<void()>& work);
  void handOver(const std::function<void()>& look);

  TomoDocument mCopy;
  Log& mLog;
  QSemaphore mSeen;  ///< one for every iteration that the window has looked at
  std::atomic<bool> mStop{false};
  std::atomic<bool> mLeft{false};  ///< nobody looks at iterations any more
};

}  // namespace talvesk
