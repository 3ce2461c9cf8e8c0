#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class SurveyedPositionsDialog;

/// Positions on the map, as surveyed, become those along the line.
class SurveyedPositionsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit SurveyedPositionsPresenter(Desk& desk) : mDesk(desk) {}

  void ask();

 private:
  bool openTable(SurveyedPositionsDialog& dialog, QWidget* parent);

  Desk& mDesk;
};

}  // namespace talvesk
