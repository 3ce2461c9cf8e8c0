#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// The travel-time curves: that of the shot in view beside its traces, and those of all shots.
class CurvesPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit CurvesPresenter(Desk& desk);

  void refresh();  ///< draws times as they are now, computed ones as the check box says

 private:
  void exportPicture();

  Desk& mDesk;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
