#pragma once

#include "model/TomoDocument.h"
#include "tomo/fitted/CertaintyRun.h"

#include <QObject>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

class QThread;

namespace talvesk {

/// How sure a section is, found out beside a window that goes on answering: a thread of its own,
/// and those of the ensemble, work on a copy of the survey.
class BackgroundCertainty : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundCertainty(QObject* parent = nullptr);
  /// Stops, and waits for the shots that are being traced.
  ~BackgroundCertainty() override;

  /// Begins; finished() follows. Goes on where it was stopped when survey and settings, but for the
  /// number of members, are those of the run before. No other is under way.
  void start(const TomoDocument& document, const CertaintySettings& settings);
  /// Ends with the members that are done; finished() follows.
  void requestStop() { mStop = true; }
  bool runs() const;
  EnsembleProgress progress() const;  ///< as it is now

  // Not to be called while it runs.
  Status status() const { return mStatus; }
  bool wasStopped() const { return mStopped; }
  /// Of the last run; none where no member counts.
  const std::optional<Certainty>& certainty() const { return mCertainty; }

 signals:
  void advanced();  ///< progress() has changed; from threads of the ensemble
  void finished();

 private:
  void work();
  void end();

  TomoDocument mDocument;
  CertaintySettings mSettings;
  std::unique_ptr<Ensemble> mEnsemble;
  std::uint64_t mKey = 0;  ///< ensembleKey() of the ensemble
  mutable std::mutex mMutex;
  EnsembleProgress mProgress;
  std::optional<Certainty> mCertainty;
  Status mStatus;
  std::atomic<bool> mStop{false};
  bool mStopped = false;
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
