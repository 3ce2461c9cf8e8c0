#pragma once

#include "app/RecoveryCopy.h"
#include "app/presenters/Desk.h"

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>

namespace talvesk {

class ProjectPresenter;

/// What keeps a crash from costing more than a minute of work: copies of the survey, made now and
/// then, and the question on the copy that a crash has left.
class RecoveryPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  RecoveryPresenter(Desk& desk, ProjectPresenter& projects);

  void offer();      ///< the copy that a crash left
  void autosave();   ///< a copy, if there is anything new to keep
  void leaveCopy();  ///< at once, for an end that leaves no time
  void forget();     ///< there is nothing to lose any more

  std::function<void()> due;  ///< a copy is to be made

 private:
  void failed(const QString& reason, bool lasting);

  Desk& mDesk;
  ProjectPresenter& mProjects;
  RecoveryCopy mCopy;
  QTimer mTimer;
  std::uint64_t mRevision = 0;  ///< that the copy holds
  int mFailures = 0;            ///< in a row
  Session::Subscription mSubscription;
};

}  // namespace talvesk
