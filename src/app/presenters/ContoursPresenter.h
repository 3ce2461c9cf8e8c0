#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// The contour lines of the section: their dialog.
class ContoursPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ContoursPresenter(Desk& desk) : mDesk(desk) {}

  void editContours();  ///< by their dialog; what it changes is one step

 private:
  ValueRange rangeOf(SectionQuantity quantity) const;
  ContourSettings completed(ContourSettings contours) const;
  void logContours();

  Desk& mDesk;
};

}  // namespace talvesk
