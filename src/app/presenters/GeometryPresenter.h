#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

struct SurveyGeometry;

/// Where geophones and shots stand.
class GeometryPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit GeometryPresenter(Desk& desk) : mDesk(desk) {}

  /// Lets the user edit it. True when the survey has the geometry that the dialog was left with by
  /// OK; false after Cancel, which changes nothing.
  bool ask();

 private:
  void take(const SurveyGeometry& geometry);

  Desk& mDesk;
};

}  // namespace talvesk
