#pragma once

#include "model/TomoDocument.h"
#include "tomo/fitted/References.h"

#include <QObject>
#include <atomic>
#include <memory>
#include <optional>

class QThread;

namespace talvesk {

/// Makes and traces the models that a fit can start from, beside a window that goes on answering.
class BackgroundReferences : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundReferences(QObject* parent = nullptr);
  /// Waits for the shot that is being traced.
  ~BackgroundReferences() override;

  /// Begins, in place of what is under way; finished() follows unless it is stopped.
  /// \param document holds a grid; it is copied \param settings as for referencesOf()
  void start(const TomoDocument& document, const FittedSettings& settings);
  void stop();  ///< finished() does not follow any more

  bool running() const { return mThread != nullptr; }
  /// Of the last that has finished; none where they could not be made.
  const std::optional<References>& references() const { return mReferences; }
  Status status() const { return mStatus; }

 signals:
  void finished();

 private:
  void work(const TomoDocument& document, const FittedSettings& settings);

  std::optional<References> mReferences;
  Status mStatus;
  std::atomic<bool> mStop{false};
  std::unique_ptr<QThread> mThread;
  int mRuns = 0;
};

}  // namespace talvesk
