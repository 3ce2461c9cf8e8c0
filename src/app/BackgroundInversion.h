#pragma once

#include "base/Log.h"
#include "model/TomoDocument.h"
#include "tomo/TomographyRun.h"

#include <QObject>
#include <QSemaphore>
#include <atomic>
#include <functional>

namespace talvesk {

/// An inversion beside a window that goes on answering: a thread of its own works on a copy of the
/// survey, so that nothing on the screen changes under the eyes of who draws it. Between two
/// external iterations it waits until the window has looked at the copy.
class BackgroundInversion : public QObject {
 public:
  /// Told on the thread of run(), while the inversion waits; `copy` holds the iteration's results.
  using IterationDone =
      std::function<void(const TomographyProgress& progress, const TomoDocument& copy)>;

  /// \param document holds a grid; it is copied \param log is written to from the other thread
  BackgroundInversion(const TomoDocument& document, const TomographyParameters& parameters,
                      Log& log);

  /// Runs the inversion, and the events of the calling thread meanwhile. If the program ends before
  /// the inversion does, the iteration under way is waited for.
  TomographyResult run(const IterationDone& iterationDone);

  /// Ends the inversion when the external iteration under way is through. From any thread.
  void requestStop() { mStop = true; }

  /// The survey with the results; not to be read while run() runs, but from IterationDone.
  const TomoDocument& copy() const { return mCopy; }

 private:
  TomographyResult work(const IterationDone& iterationDone);

  TomoDocument mCopy;
  TomographyParameters mParameters;
  Log& mLog;
  QSemaphore mSeen;  ///< one for every iteration that the window has looked at
  std::atomic<bool> mStop{false};
};

}  // namespace talvesk
