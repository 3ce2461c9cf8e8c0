#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class LayeredModel;

/// The layered interpretation.
class RefractionPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  RefractionPresenter(Desk& desk, LayeredModel& layered) : mDesk(desk), mLayered(layered) {}

  void interpret();  ///< by its dialog; what it is left with by OK is one step

 private:
  Desk& mDesk;
  LayeredModel& mLayered;
};

}  // namespace talvesk
