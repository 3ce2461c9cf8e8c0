#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// The layered interpretation.
class RefractionPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit RefractionPresenter(Desk& desk) : mDesk(desk) {}

  void interpret();  ///< by its dialog; what it is left with by OK is one step

 private:
  Desk& mDesk;
};

}  // namespace talvesk
