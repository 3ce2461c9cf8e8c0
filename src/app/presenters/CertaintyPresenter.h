#pragma once

#include "app/BackgroundCertainty.h"
#include "app/presenters/Desk.h"

#include <QCoreApplication>

namespace talvesk {

/// How sure the section is: asked for, found out and shown.
class CertaintyPresenter {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit CertaintyPresenter(Desk& desk) : mDesk(desk) {}

  void ask();

 private:
  Desk& mDesk;
  BackgroundCertainty mRun;  ///< keeps its members, so that it can go on
};

}  // namespace talvesk
