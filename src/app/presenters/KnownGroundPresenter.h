#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class KnownGroundDialog;

/// What is known of the ground from elsewhere than the picks: edited in a dialog, read from and
/// written to tables.
class KnownGroundPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit KnownGroundPresenter(Desk& desk) : mDesk(desk) {}

  void ask();

 private:
  QString remark() const;
  void importInto(KnownGroundDialog& dialog);
  void exportFrom(KnownGroundDialog& dialog);

  Desk& mDesk;
};

}  // namespace talvesk
