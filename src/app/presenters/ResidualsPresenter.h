#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace talvesk {

class ResidualsDialog;

/// How the section explains its picks, in a window that stays open beside the traces and follows
/// section and picks.
class ResidualsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ResidualsPresenter(Desk& desk);

  void show();         ///< opens the window, or brings it to the front
  void retranslate();  ///< where it is open

 private:
  void refresh();
  void goTo(int shot, int trace);
  void savePicture();
  void saveTable();

  Desk& mDesk;
  QPointer<ResidualsDialog> mDialog;
  QTimer mSoon;  ///< several picks of one stroke are looked at together
  Session::Subscription mSubscription;
};

}  // namespace talvesk
