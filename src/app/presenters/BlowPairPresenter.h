#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace talvesk {

class BlowPairDialog;

/// Two shots laid over each other, in a window that stays open beside the traces.
class BlowPairPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit BlowPairPresenter(Desk& desk);

  void show();         ///< opens the window, or brings it to the front, with the shot in view
  void retranslate();  ///< where it is open

 private:
  void refresh();
  void add();
  void saveShot();
  void savePicture();

  Desk& mDesk;
  QPointer<BlowPairDialog> mDialog;
  QTimer mSoon;  ///< several picks of one stroke are looked at together
  Session::Subscription mSubscription;
};

}  // namespace talvesk
