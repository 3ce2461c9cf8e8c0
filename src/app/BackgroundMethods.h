#pragma once

#include "base/Status.h"
#include "refraction/methods/MethodComparison.h"

#include <QObject>
#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class QThread;

namespace talvesk {

/// Interprets layers by all methods beside a window that goes on answering, on a thread of its own
/// and those that the error bands take.
class BackgroundMethods : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundMethods(QObject* parent = nullptr);
  /// Stops, and waits for the interpretations that are under way.
  ~BackgroundMethods() override;

  /// Begins; finished() follows. No other is under way.
  void start(const LayerPicks& picks, const BoundsOptions& bounds);
  void requestStop() { mStop = true; }  ///< finished() follows
  bool runs() const;
  std::size_t done() const { return mDone; }  ///< interpretations of moved picks

  // Not to be called while it runs.
  Status status() const { return mStatus; }
  bool wasStopped() const { return mStopped; }
  const MethodComparison& comparison() const { return mComparison; }

 signals:
  void advanced();  ///< done() has changed; from the thread
  void finished();

 private:
  void work();
  void end();

  LayerPicks mPicks;
  BoundsOptions mBounds;
  MethodComparison mComparison;
  Status mStatus;
  std::atomic<std::size_t> mDone{0};
  std::atomic<bool> mStop{false};
  bool mStopped = false;
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
