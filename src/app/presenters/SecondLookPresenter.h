#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QTimer>

class QToolButton;

namespace talvesk {

class SecondLookDialog;
struct CellPatch;

/// What deserves a second look in the section: a notice in the status bar, and a list beside the
/// window, both true of the survey as it is.
class SecondLookPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit SecondLookPresenter(Desk& desk);

  void show();
  void showIfAny();    ///< picks or time shifts that should be looked at
  void retranslate();  ///< what is told in the status bar

 private:
  void refresh();
  void tell();
  void showPick(int shot, int trace);
  void showGround(const CellPatch& patch);
  void takeOver();

  Desk& mDesk;
  SecondLookDialog* mDialog = nullptr;  ///< the window's; made when it is first asked for
  QToolButton* mNotice;                 ///< in the status bar, where there is something to look at
  QTimer mSoon;                         ///< several picks of one stroke are looked at together
  Session::Subscription mSubscription;
};

}  // namespace talvesk
