#pragma once

#include "refraction/methods/ProfileErrors.h"

#include <QObject>
#include <atomic>
#include <memory>

class QThread;

namespace talvesk {

/// Finds the errors of a layered profile on a thread of its own, beside a dialog that goes on
/// answering.
class BackgroundErrors : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundErrors(QObject* parent = nullptr);
  /// Waits for the interpretations that are under way.
  ~BackgroundErrors() override;

  /// Begins; found() follows. Of what is under way nothing will be told.
  void start(LayerPicks picks, const BoundsOptions& bounds);
  /// Gives up: nothing follows.
  void stop();

 signals:
  void progressed(int done);  ///< members
  /// Null where the profile is not that of the picks and marks, or memory ran out.
  void found(const std::shared_ptr<const talvesk::ProfileErrors>& errors);

 private:
  struct Task {
    LayerPicks picks;
    BoundsOptions bounds;
    std::atomic<bool> stopped{false};
    std::shared_ptr<const ProfileErrors> errors;
  };
  void begin();
  void work(Task& task);
  void finish();

  std::unique_ptr<Task> mTask;  ///< of the thread
  std::unique_ptr<Task> mNext;  ///< asked for meanwhile
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
