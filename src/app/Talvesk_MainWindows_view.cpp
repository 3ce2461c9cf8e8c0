#include "app/Talvesk_MainWindows.h"
#include "figures/ProfileLines.h"
#include "model/GroundModel.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "view/RefractorLines.h"
#include "widgets/SectionView.h"

#include <QLabel>
#include <QLocale>
#include <utility>

// The commands of the section view. Each changes what the section shows; refreshSection() makes the
// view and the actions follow.

namespace talvesk {

void Talvesk_MainWindows::connectSection() {
  SectionView* view = mUi->vtk_widget;
  connect(view, &SectionView::cursorMoved, this, &Talvesk_MainWindows::showSectionCursor);
  connect(view, &SectionView::cursorLeft, mCursorLabel, &QLabel::clear);
  connect(view, &SectionView::exaggerationChanged, this, [this](double factor) {
    mSession.setView(
        [factor](SectionViewSettings& section) { section.verticalExaggeration = factor; });
  });
}

void Talvesk_MainWindows::changeSection(const std::function<void(SectionViewSettings&)>& change) {
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  mSession.setView(change);
}

/// Gradient, Laplacian and information density take turns; without any of them it is velocity.
void Talvesk_MainWindows::chooseQuantity(SectionQuantity quantity, bool chosen) {
  changeSection([quantity, chosen](SectionViewSettings& section) {
    section.quantity = chosen ? quantity : SectionQuantity::kVelocity;
    if (chosen) section.profile = true;
  });
}

void Talvesk_MainWindows::chooseGeophones(GeophoneMarkers size) {
  changeSection([size](SectionViewSettings& section) { section.geophones = size; });
}

void Talvesk_MainWindows::on_actionShow_Tomographic_Profile_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_Tomographic_Profile->isChecked();
  changeSection([shown](SectionViewSettings& section) { section.profile = shown; });
}

void Talvesk_MainWindows::on_actionGrid_view_triggered() {
  logSlot(__func__);
  changeSection([](SectionViewSettings& section) { section.smooth = false; });
}

void Talvesk_MainWindows::on_actionSmooth_view_triggered() {
  logSlot(__func__);
  changeSection([](SectionViewSettings& section) { section.smooth = true; });
}

void Talvesk_MainWindows::on_actionShow_rays_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_rays->isChecked();
  changeSection([shown](SectionViewSettings& section) { section.rays = shown; });
}

void Talvesk_MainWindows::on_actionShow_Information_Density_Layer_triggered() {
  logSlot(__func__);
  chooseQuantity(SectionQuantity::kInformationDensity,
                 mUi->actionShow_Information_Density_Layer->isChecked());
}

void Talvesk_MainWindows::on_actionVertical_Gradient_triggered() {
  logSlot(__func__);
  chooseQuantity(SectionQuantity::kVerticalGradient, mUi->actionVertical_Gradient->isChecked());
}

void Talvesk_MainWindows::on_actionLaplacian_Gradient_triggered() {
  logSlot(__func__);
  chooseQuantity(SectionQuantity::kLaplacian, mUi->actionLaplacian_Gradient->isChecked());
}

void Talvesk_MainWindows::on_actionShow_scalarbar_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_scalarbar->isChecked();
  changeSection([shown](SectionViewSettings& section) { section.scalarBar = shown; });
}

void Talvesk_MainWindows::on_actionShow_Grid_Lines_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_Grid_Lines->isChecked();
  changeSection([shown](SectionViewSettings& section) { section.gridLines = shown; });
}

void Talvesk_MainWindows::on_actionSmallGeo_triggered() {
  logSlot(__func__);
  chooseGeophones(GeophoneMarkers::kSmall);
}

void Talvesk_MainWindows::on_actionNormalGeo_triggered() {
  logSlot(__func__);
  chooseGeophones(GeophoneMarkers::kNormal);
}

void Talvesk_MainWindows::on_actionLargeGeo_triggered() {
  logSlot(__func__);
  chooseGeophones(GeophoneMarkers::kLarge);
}

void Talvesk_MainWindows::on_actionShow_title_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_title->isChecked();
  changeSection([shown](SectionViewSettings& section) { section.title = shown; });
}

void Talvesk_MainWindows::on_actionReset_View_triggered() {
  logSlot(__func__);
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  mUi->vtk_widget->resetView();
}

bool Talvesk_MainWindows::hasInformationDensity() const {
  return talvesk::hasInformationDensity(document());
}

void Talvesk_MainWindows::refreshSectionCommands() {
  const SectionViewSettings& view = this->section();
  if (mInversion != nullptr) return;  // all commands are locked
  // Even of a grid whose cells have no value of this quantity another may be chosen.
  const bool section = document().model->grid && document().model->grid->cellCount() > 0;
  // Before there is a grid the layered profile may be shown alone.
  const bool picture = section || (view.refraction && !refractorLines(interpretation()).empty());
  const SectionQuantity quantity = view.quantity;
  const struct {
    QAction* action;
    bool enabled;
    bool checked;
  } states[] = {
      {mUi->actionShow_Tomographic_Profile, section, view.profile},
      {mUi->actionGrid_view, section, !view.smooth},
      {mUi->actionSmooth_view, section, view.smooth},
      {mUi->actionShow_rays, section && !document().result->rays.empty(), view.rays},
      {mUi->actionShow_Information_Density_Layer, section && hasInformationDensity(),
       quantity == SectionQuantity::kInformationDensity},
      {mUi->actionVertical_Gradient, section, quantity == SectionQuantity::kVerticalGradient},
      {mUi->actionLaplacian_Gradient, section, quantity == SectionQuantity::kLaplacian},
      {mUi->actionShow_Contour_Lines, section, showsContours(view.contours, quantity)},
      {mUi->actionShow_scalarbar, section, view.scalarBar},
      {mUi->actionShow_Grid_Lines, section, view.gridLines},
      {mUi->actionSmallGeo, picture, view.geophones == GeophoneMarkers::kSmall},
      {mUi->actionNormalGeo, picture, view.geophones == GeophoneMarkers::kNormal},
      {mUi->actionLargeGeo, picture, view.geophones == GeophoneMarkers::kLarge},
      {mUi->actionShow_title, picture, view.title}};
  for (const auto& state : states) {
    state.action->setEnabled(state.enabled);
    state.action->setChecked(state.checked);
  }
  mUi->actionReset_View->setEnabled(picture);
}

QString Talvesk_MainWindows::whyNoSection() const {
  const QString heading = QStringLiteral("<h2>%1</h2><p>%2</p>");
  if (document().ttArray.empty()) {
    return heading.arg(tr("No section yet"),
                       tr("Load shot files or travel times with the File menu first."));
  }
  if (!document().model->grid) {
    return heading.arg(tr("No section yet"),
                       tr("Build a grid with <b>Project &gt; Grid ...</b>, then invert the picks "
                          "with <b>Processing &gt; Run tomography inversion</b>."));
  }
  if (document().model->grid->cellCount() == 0) {
    return heading.arg(tr("The grid has no cells"),
                       tr("Build another one with <b>Project &gt; Grid ...</b> and give it a depth "
                          "greater than the cell size."));
  }
  return heading.arg(tr("Nothing to draw"), tr("No cell of the grid has a value to show."));
}

std::vector<SectionLine> Talvesk_MainWindows::refractors() const {
  return profileLines(document(), interpretation());
}

void Talvesk_MainWindows::refreshSection() {
  // A new grid has no information density until it is inverted.
  if (section().quantity == SectionQuantity::kInformationDensity && !hasInformationDensity()) {
    mSession.amend([](Survey& survey) { survey.section.quantity = SectionQuantity::kVelocity; });
  }
  auto scene = std::make_shared<SectionScene>();
  const Status built =
      buildSectionScene(document(), section(), palettes().current(), refractors(), *scene);
  if (built.ok()) {
    mUi->vtk_widget->showScene(std::move(scene), palettes().current(), section());
  } else {
    mUi->vtk_widget->showText(whyNoSection());
  }
  refreshSectionCommands();
}

void Talvesk_MainWindows::showSectionCursor(const SectionReading& reading) {
  const QLocale locale;
  QStringList parts = {tr("Distance %1 m").arg(locale.toString(reading.position.x, 'f', 2)),
                       tr("Elevation %1 m").arg(locale.toString(reading.position.z, 'f', 2))};
  if (reading.depth) parts << tr("Depth %1 m").arg(locale.toString(*reading.depth, 'f', 2));
  // What is not shown is not read either.
  if (reading.velocity && section().profile) {
    parts << tr("Velocity %1 m/s").arg(locale.toString(*reading.velocity, 'f', 0));
  }
  if (reading.value && section().profile && section().quantity != SectionQuantity::kVelocity) {
    const QString value = locale.toString(*reading.value, 'g', 4);
    parts << (section().quantity == SectionQuantity::kVerticalGradient
                  ? tr("Gradient %1 1/s").arg(value)
              : section().quantity == SectionQuantity::kLaplacian
                  ? tr("Laplacian %1 1/(m\u00B7s)").arg(value)
                  : tr("Information density %1").arg(value));
  }
  mCursorLabel->setText(parts.join(QStringLiteral("   ")));
}

}  // namespace talvesk
