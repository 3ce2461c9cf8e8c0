#pragma once

#include "doctor/Finding.h"
#include "model/TomoDocument.h"

#include <QObject>
#include <atomic>
#include <memory>
#include <vector>

class QThread;

namespace talvesk {

/// A check of all recordings beside a window that goes on answering: a thread of its own looks at a
/// copy of the survey.
class BackgroundCheck : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundCheck(QObject* parent = nullptr);
  /// Waits for the shots that are being looked at.
  ~BackgroundCheck() override;

  /// Begins; finished() follows. No other is under way.
  void start(const TomoDocument& document);
  /// Ends the check with what was found so far; finished() follows.
  void requestStop() { mStop = true; }

  // Not to be called while a check is under way.
  const TomoDocument& document() const { return mDocument; }  ///< that was checked
  const std::vector<doctor::Finding>& findings() const { return mFindings; }
  Status status() const { return mStatus; }
  bool wasStopped() const { return mStopped; }  ///< before all shots were looked at

 signals:
  void finished();

 private:
  void work();
  void end();

  TomoDocument mDocument;
  std::vector<doctor::Finding> mFindings;
  Status mStatus;
  std::atomic<bool> mStop{false};
  bool mStopped = false;
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
