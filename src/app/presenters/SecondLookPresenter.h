#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class SecondLookDialog;

/// What deserves a second look in the section: a list beside the window, as long as it is open true
/// of the survey as it is.
class SecondLookPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit SecondLookPresenter(Desk& desk);

  void show();
  void showIfAny();  ///< picks or time shifts that should be looked at

 private:
  void refresh();
  void showPick(int shot, int trace);
  void takeOver();

  Desk& mDesk;
  SecondLookDialog* mDialog = nullptr;  ///< the window's; made when it is first asked for
  Session::Subscription mSubscription;
};

}  // namespace talvesk
