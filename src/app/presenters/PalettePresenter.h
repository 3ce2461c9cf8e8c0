#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>

namespace talvesk {

/// What colours the section: the dialog of palettes.
class PalettePresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit PalettePresenter(Desk& desk) : mDesk(desk) {}

  void editPalettes();  ///< by their dialog; what it is left with by OK is one step

  // The section follows every change in the dialog; the window connects it with the functions
  // below.
  std::function<void(int)> maximumTried;
  std::function<void(int)> minimumTried;
  std::function<void()> palettesTried;

  void tryMaximum(int value);  ///< m/s
  void tryMinimum(int value);
  void tryPalettes();

 private:
  struct Trial;

  Desk& mDesk;
  Trial* mTrial = nullptr;  ///< while the dialog is open
};

}  // namespace talvesk
