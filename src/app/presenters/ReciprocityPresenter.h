#pragma once

#include "app/presenters/Desk.h"
#include "doctor/Finding.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace talvesk {

class ReciprocityDialog;

/// How picks go with each other there and back, in a window that stays open beside the traces and
/// follows the picks.
class ReciprocityPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ReciprocityPresenter(Desk& desk);

  void show();         ///< opens the window, or brings it to the front
  void retranslate();  ///< where it is open

 private:
  void refresh();
  void goTo(int shot, int trace);
  void mend(const doctor::Finding& finding);
  void save();

  Desk& mDesk;
  QPointer<ReciprocityDialog> mDialog;
  QTimer mSoon;  ///< several picks of one stroke are looked at together
  Session::Subscription mSubscription;
};

}  // namespace talvesk
