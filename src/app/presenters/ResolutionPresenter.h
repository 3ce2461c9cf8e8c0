#pragma once

#include "app/presenters/Desk.h"

#include <QCoreApplication>

namespace talvesk {

/// What the survey can resolve, as a test of patterns tells.
class ResolutionPresenter {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ResolutionPresenter(Desk& desk) : mDesk(desk) {}

  void test();

 private:
  Desk& mDesk;
};

}  // namespace talvesk
