#include "app/presenters/SectionPresenter.h"

#include "app/LengthText.h"
#include "app/Messages.h"
#include "app/presenters/PlainSection.h"
#include "base/LengthUnit.h"
#include "base/TextNumber.h"
#include "figures/ProfileLines.h"
#include "figures/ToldLength.h"
#include "io/Survey.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/section/SectionView.h"

#include <QInputDialog>
#include <QLabel>
#include <QLocale>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

/// A velocity as it is offered for bands, in the unit shown.
QString bandText(double velocity) {
  return lengthUnit() == LengthUnit::kMetre ? QString::fromStdString(exactDouble(velocity))
                                            : QString::number(toldVelocity(velocity), 'g', 6);
}

/// The velocity that was typed, m/s: one that was offered, or as it is.
double bandOf(double typed, const std::vector<double>& proposed) {
  for (const double velocity : proposed) {
    if (bandText(velocity).toDouble() == typed) return velocity;
  }
  return metresTyped(typed);
}

}  // namespace

SectionPresenter::SectionPresenter(Desk& desk) : mDesk(desk) {
  const SectionView* view = desk.ui.vtk_widget;
  connect(view, &SectionView::cursorMoved, this, &SectionPresenter::showCursor);
  connect(view, &SectionView::cursorLeft, desk.cursorLabel, &QLabel::clear);
  connect(view, &SectionView::exaggerationChanged, this, [this](double factor) {
    mDesk.session.setView(
        [factor](SectionViewSettings& section) { section.verticalExaggeration = factor; });
  });
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    if (showsOtherwise(change)) refresh();
  });
}

void SectionPresenter::show(bool SectionViewSettings::*what, bool shown) {
  change([=](SectionViewSettings& section) { section.*what = shown; });
}

void SectionPresenter::showRefraction(bool shown) {
  mDesk.session.setView([shown](SectionViewSettings& section) { section.refraction = shown; });
}

void SectionPresenter::change(const std::function<void(SectionViewSettings&)>& change) {
  mDesk.showSection();
  mDesk.session.setView(change);
}

void SectionPresenter::chooseQuantity(SectionQuantity quantity, bool chosen) {
  change([quantity, chosen](SectionViewSettings& section) {
    section.quantity = chosen ? quantity : SectionQuantity::kVelocity;
    if (chosen) section.profile = true;
  });
}

void SectionPresenter::chooseGeophones(GeophoneMarkers size) {
  change([size](SectionViewSettings& section) { section.geophones = size; });
}

std::vector<double> SectionPresenter::proposedBands() const {
  std::vector<double> velocities = mDesk.section().bandVelocities;
  const std::vector<IsovalueBand>& known = mDesk.document().result->certainty->bands;
  for (std::size_t i = 0; velocities.empty() && i < known.size(); ++i) {
    if (i < kMostDepthBands) velocities.push_back(known[i].velocity);
  }
  const auto scene = plainSection(mDesk.document(), SectionQuantity::kVelocity);
  if (velocities.empty() && scene) {
    const std::vector<double> round = roundValues(scene->dataRange, kMostRoundContours);
    if (!round.empty()) velocities.push_back(round[round.size() / 2]);
  }
  return velocities;
}

void SectionPresenter::chooseDepthBands() {
  if (!mDesk.document().result->certainty) return;
  const std::vector<double> proposed = proposedBands();
  QStringList words;
  for (const double velocity : proposed) words += bandText(velocity);
  QString text = words.join(QStringLiteral("; "));
  std::optional<std::vector<double>> velocities;
  while (!velocities) {
    bool accepted = false;
    text = QInputDialog::getText(
        &mDesk.window, tr("Depth Bands"),
        tr("Up to %1 &velocities in %2; the depths at which the middle 68 % of the members "
           "reach them are drawn as a band. None takes the bands away.")
            .arg(kMostDepthBands)
            .arg(QLatin1String(velocityUnitName())),
        QLineEdit::Normal, text, &accepted);
    if (!accepted) return;
    velocities = bandVelocitiesIn(text.toStdString());
    if (!velocities) {
      showWarning(&mDesk.window, tr("Warning"), tr("\"%1\" is no list of velocities.").arg(text),
                  tr("Give up to %1 numbers above 0 with semicolons between them: 800; 1500")
                      .arg(kMostDepthBands));
    }
  }
  for (double& velocity : *velocities) velocity = bandOf(velocity, proposed);
  change([&](SectionViewSettings& section) { section.bandVelocities = *velocities; });
}

void SectionPresenter::resetView() {
  mDesk.showSection();
  mDesk.ui.vtk_widget->resetView();
}

/// The caption of a section that was inverted and the rays follow the picks, and so does the legend
/// of the layered profile: they may be others than those that it was built from.
bool SectionPresenter::showsOtherwise(const SurveyChange& change) const {
  PartSet drawn = PartSet::all();
  drawn.remove(Part::kRecordings);
  drawn.remove(Part::kMap);
  drawn.remove(Part::kPicks);
  if (change.parts.any(drawn)) return true;
  const SectionScene* scene = mDesk.ui.vtk_widget->scene();
  if (scene == nullptr) return false;
  if (scene->certainty && change.parts.has(Part::kPicks) &&
      certaintyNoteOf(mDesk.document()).picksChanged != scene->certainty->picksChanged) {
    return true;
  }
  if (change.parts.has(Part::kPicks) && picksShowOtherwise(*scene)) return true;
  if (scene->refractors.empty()) return false;
  const std::vector<SectionLine> now = refractors();
  return !now.empty() && now.front().name != scene->refractors.front().name;
}

bool SectionPresenter::picksShowOtherwise(const SectionScene& scene) const {
  const TomoDocument& document = mDesk.document();
  if (!document.result->has_tomographic_info) return false;
  const SectionMisfit misfit = sectionMisfitOf(document);
  const ChiSquare fit = sectionChiSquareOf(document);
  return misfit.count != scene.misfit.count || fit.chi2 != scene.fit.chi2 ||
         fit.shifted != scene.fit.shifted || misfit.rmse != scene.misfit.rmse ||
         misfit.relativeRms != scene.misfit.relativeRms ||
         picksChangedSince(document) != scene.picksChanged;
}

std::vector<SectionLine> SectionPresenter::refractors() const {
  return profileLines(mDesk.document(), mDesk.interpretation());
}

QString SectionPresenter::whyNoSection() const {
  const QString heading = QStringLiteral("<h2>%1</h2><p>%2</p>");
  if (mDesk.document().ttArray.empty()) {
    return heading.arg(tr("No section yet"),
                       tr("Load shot files or travel times with the File menu first."));
  }
  if (!mDesk.document().model->grid) {
    return heading.arg(tr("No section yet"),
                       tr("Build a grid with <b>Project &gt; Grid ...</b>, then invert the picks "
                          "with <b>Processing &gt; Run tomography inversion</b>."));
  }
  if (mDesk.document().model->grid->cellCount() == 0) {
    return heading.arg(tr("The grid has no cells"),
                       tr("Build another one with <b>Project &gt; Grid ...</b> and give it a depth "
                          "greater than the cell size."));
  }
  return heading.arg(tr("Nothing to draw"), tr("No cell of the grid has a value to show."));
}

QList<QAction*> SectionPresenter::waysToASection() const {
  if (mDesk.document().ttArray.empty())
    return {mDesk.ui.actionOpen_shot_files, mDesk.ui.actionLoad_TT};
  if (!mDesk.document().model->grid) {
    return {mDesk.ui.actionGrid, mDesk.ui.actionRun_tomography_inversion};
  }
  return {mDesk.ui.actionGrid};
}

void SectionPresenter::refresh() {
  // A new grid has no information density until it is inverted, and a new section no certainty.
  const SectionQuantity quantity = mDesk.section().quantity;
  if ((quantity == SectionQuantity::kInformationDensity &&
       !hasInformationDensity(mDesk.document())) ||
      (quantity == SectionQuantity::kCertainty && !mDesk.document().result->certainty)) {
    mDesk.session.amend(
        [](Survey& survey) { survey.section.quantity = SectionQuantity::kVelocity; });
  }
  auto scene = std::make_shared<SectionScene>();
  const Status built = buildSectionScene(mDesk.document(), mDesk.section(),
                                         mDesk.palettes().current(), refractors(), *scene);
  if (built.ok()) {
    mDesk.ui.vtk_widget->showScene(std::move(scene), mDesk.palettes().current(), mDesk.section());
  } else {
    mDesk.ui.vtk_widget->showText(whyNoSection(), waysToASection());
  }
}

void SectionPresenter::showCursor(const SectionReading& reading) {
  QStringList parts = {tr("Distance %1").arg(lengthWithUnit(reading.position.x, 2)),
                       tr("Elevation %1").arg(lengthWithUnit(reading.position.z, 2))};
  if (reading.depth) parts << tr("Depth %1").arg(lengthWithUnit(*reading.depth, 2));
  // What is not shown is not read either.
  if (reading.velocity && mDesk.section().profile) {
    parts << tr("Velocity %1").arg(velocityWithUnit(*reading.velocity, 0));
  }
  if (reading.value && mDesk.section().profile &&
      mDesk.section().quantity != SectionQuantity::kVelocity) {
    const QLocale locale;
    const QString value = locale.toString(*reading.value, 'g', 4);
    const QString laplacian = locale.toString(*reading.value / shownLength(1.0), 'g', 4);
    parts << (mDesk.section().quantity == SectionQuantity::kVerticalGradient
                  ? tr("Gradient %1 1/s").arg(value)
              : mDesk.section().quantity == SectionQuantity::kLaplacian
                  ? tr("Laplacian %1 1/(%2\u00B7s)").arg(laplacian, QLatin1String(lengthUnitName()))
              : mDesk.section().quantity == SectionQuantity::kCertainty
                  ? tr("Uncertainty %1 %").arg(value)
                  : tr("Information density %1").arg(value));
  }
  mDesk.cursorLabel->setText(parts.join(QStringLiteral("   ")));
}

}  // namespace talvesk
