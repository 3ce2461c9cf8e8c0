#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// How the section looks, saved in a file and laid on other surveys.
class StylePresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit StylePresenter(Desk& desk) : mDesk(desk) {}

  void save();
  void apply();

 private:
  Desk& mDesk;
};

}  // namespace talvesk
