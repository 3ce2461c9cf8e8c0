#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class LayeredModel;

/// The travel-time curves: that of the shot in view beside its traces, and those of all shots.
class CurvesPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  CurvesPresenter(Desk& desk, LayeredModel& layered);

  void refresh();  ///< draws times as they are now, computed ones as the check box says

 private:
  void exportPicture();
  void followLayers();  ///< times through the layered profile, where they are wanted
  void takeLayers();

  Desk& mDesk;
  LayeredModel& mLayered;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
