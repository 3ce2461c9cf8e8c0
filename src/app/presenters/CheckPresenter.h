#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class CheckDialog;

/// What is doubtful about the recordings, and the mends of it that the user takes.
class CheckPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit CheckPresenter(Desk& desk) : mDesk(desk) {}

  void check();

 private:
  void carryOut(CheckDialog& dialog);

  Desk& mDesk;
};

}  // namespace talvesk
