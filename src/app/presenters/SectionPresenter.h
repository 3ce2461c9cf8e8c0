#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <vector>

namespace talvesk {

struct SectionReading;
struct SectionScene;

/// The section on its tab, and what of it is shown.
class SectionPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit SectionPresenter(Desk& desk);

  void refresh();  ///< shows grid and results of the document as they are now

  void show(bool SectionViewSettings::*what, bool shown);
  void showRefraction(bool shown);  ///< on whatever tab the user is
  /// Gradient, Laplacian and information density take turns; without any of them it is velocity.
  void chooseQuantity(SectionQuantity quantity, bool chosen);
  void chooseGeophones(GeophoneMarkers size);
  /// Asks for the velocities whose depth bands are drawn; none takes them away.
  void chooseDepthBands();
  void resetView();

 private:
  void change(const std::function<void(SectionViewSettings&)>& change);
  bool showsOtherwise(const SurveyChange& change) const;
  bool picksShowOtherwise(const SectionScene& scene) const;
  std::vector<SectionLine> refractors() const;
  std::vector<double> proposedBands() const;  ///< m/s
  QString whyNoSection() const;
  QList<QAction*> waysToASection() const;
  void showCursor(const SectionReading& reading);

  Desk& mDesk;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
