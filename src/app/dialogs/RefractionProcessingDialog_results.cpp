#include "app/BackgroundFit.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/MisfitTable.h"
#include "app/dialogs/ProfileTable.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "app/dialogs/RefractionTexts.h"
#include "figures/RefractionItems.h"
#include "figures/ShownLength.h"
#include "figures/ToldLength.h"
#include "model/ChiSquare.h"
#include "model/TomoDocument.h"
#include "refraction/Course.h"
#include "refraction/FittedProfile.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/Profile.h"
#include "refraction/ReciprocalMethod.h"
#include "refraction/Support.h"
#include "refraction/WeighedPicks.h"
#include "refraction/XYChoice.h"
#include "refraction/methods/ProfileErrors.h"
#include "ui_RefractionProcessingDialog.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QTableWidgetItem>
#include <algorithm>
#include <cmath>
#include <utility>

// What the dialog builds from the marks, and how it shows it.

namespace talvesk {
namespace {

using namespace refractionDataStructure;

constexpr double kMs = 1e3;

/// A distance XY in the unit shown, as the report has it.
QString xyText(double metres) {
  return QLocale().toString(toldLength(metres), 'g', 6);
}

/// The colour of a layer on the paper of the plots.
QColor shown(std::uint32_t layer) {
  return layerColor(layer, QGuiApplication::palette().color(QPalette::Base));
}

/// Tells the reverse curve from the forward one.
QColor strongerOf(const QColor& color) {
  const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
  return dark ? color.lighter(140) : color.darker(150);
}

QColor faint(QColor color, double alpha) {
  color.setAlphaF(alpha);
  return color;
}

PlotSeries seriesOf(const QString& name, const std::vector<double>& x,
                    const std::vector<double>& values, double factor) {
  PlotSeries series;
  series.name = name;
  for (std::size_t i = 0; i < std::min(x.size(), values.size()); ++i) {
    series.points.push_back({x[i], factor * values[i]});
  }
  return series;
}

/// The arrivals that went into a curve, where they were shifted to.
PlotSeries arrivalsOf(const std::vector<ShotArrivals>& shots, const std::vector<layerStruct>& marks,
                      std::uint32_t layer) {
  PlotSeries series;
  series.color = faint(shown(layer), 0.35);
  series.width = 0.0;
  series.symbols = true;
  for (std::size_t shot = 0; shot < std::min(shots.size(), marks.size()); ++shot) {
    const layerStruct& own = marks[shot];
    for (std::size_t i = 0; i < std::min(own.layer.size(), shots[shot].times.size()); ++i) {
      if (own.layer[i] != layer || !(own.trasla[i] != 0.0)) continue;
      // A point without a neighbour: none of them is joined to another.
      series.points.push_back(
          {shots[shot].receivers[i].x, kMs * (shots[shot].times[i] + own.trasla[i])});
    }
  }
  return series;
}

PlotSeries curveOf(const phantom& curve, const QString& name, bool forward) {
  PlotSeries series;
  series.name = name;
  const QColor color = shown(static_cast<std::uint32_t>(curve.layer));
  series.color = forward ? color : strongerOf(color);
  series.symbols = true;
  for (std::size_t i = 0; i < std::min(curve.points.size(), curve.times.size()); ++i) {
    series.points.push_back({curve.points[i].x, kMs * curve.times[i]});
  }
  return series;
}

PlotSeries lineOf(const phantom& curve, double end) {
  PlotSeries series;
  series.color = faint(shown(static_cast<std::uint32_t>(curve.layer)), 0.7);
  series.width = 1.0;
  series.dashed = true;
  if (curve.points.empty()) return series;
  for (const double x : {curve.points.front().x, curve.points.back().x, end}) {
    series.points.push_back({x, kMs * (curve.slope * x + curve.intercept)});
  }
  std::sort(series.points.begin(), series.points.end(),
            [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  return series;
}

/// Of a first layer that has another velocity at every place, at the surface.
PlotSeries surfaceVelocity(const FirstLayer& first, const std::vector<Point2D>& surface) {
  Course slowness{first.x, first.velocity};
  for (double& value : slowness.y) value = 1.0 / value;
  PlotSeries series;
  series.name = first.growth > 0.0
                    ? RefractionProcessingDialog::tr("Layer 1 at the surface, growing with depth")
                    : RefractionProcessingDialog::tr("Layer %1").arg(1);
  series.color = shown(1);
  for (const Point2D& at : surface) series.points.push_back({at.x, 1.0 / slowness.at(at.x)});
  return series;
}

bool sameCurves(const std::vector<phantom>& some, const std::vector<phantom>& others) {
  return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                    [](const phantom& a, const phantom& b) {
                      return a.shotID == b.shotID && a.times == b.times;
                    });
}

bool contains(const std::vector<RefractionWarning>& list, const RefractionWarning& one) {
  return std::any_of(list.begin(), list.end(), [&](const RefractionWarning& other) {
    return other.kind == one.kind && other.layer == one.layer;
  });
}

}  // namespace

void RefractionProcessingDialog::on_pushAutoPhantButton_clicked() {
  const Interpretation before = mWork;
  const auto warnings = buildPhantoms(mShots, mWork);
  if (!sameCurves(before.phnt_A, mWork.phnt_A) || !sameCurves(before.phnt_R, mWork.phnt_R)) {
    mPhantomed = true;
  }
  showPhantoms();
  tell(warnings, {});
  QStringList rest;
  for (const RefractionWarning& warning : warnings) {
    if (!warning.ofTheMethod()) rest << refractionText(warning);
  }
  mUi->phantomLabel->setText(rest.join(QLatin1Char('\n')));
}

void RefractionProcessingDialog::on_buildButton_clicked() {
  if (!(wantsFitted() ? buildFitted() : build({}))) return;
  QWidget* current = mUi->tabs->currentWidget();
  if (current == mUi->curvesTab || current == mUi->phantomTab) {
    mUi->tabs->setCurrentWidget(mUi->profileTab);
  }
}

/// \param told warnings that the user has been told already
bool RefractionProcessingDialog::build(std::vector<RefractionWarning> told) {
  const std::vector<RefractionWarning> known = std::move(told);  // those of before may be meant
  const ProfileOutcome outcome = whileWaiting([this] { return buildProfiles(mShots, mWork); });
  if (outcome.built) {
    mWarnings = outcome.warnings;
    mStale = false;
    mBuilt = true;
    mJudge.reset();
    if (marksAreProposed()) mJudge = mProposal;
    findFit();
  }
  marksChanged();
  showResults();
  tell(outcome.warnings, known);
  if (outcome.built) return true;
  QStringList why;
  for (const RefractionWarning& warning : outcome.warnings) {
    if (!warning.ofTheMethod()) why << refractionText(warning);
  }
  if (!why.isEmpty()) {
    showWarning(this, tr("Warning"), tr("No profile could be built."), why.join(QLatin1Char('\n')));
  }
  return false;
}

/// The warnings of the method, one box each.
void RefractionProcessingDialog::tell(const std::vector<RefractionWarning>& warnings,
                                      const std::vector<RefractionWarning>& known) {
  for (const RefractionWarning& warning : warnings) {
    if (!warning.ofTheMethod() || contains(known, warning)) continue;
    const bool noPair = warning.kind == RefractionWarning::Kind::kNoShotPair;
    showWarning(this, tr("Warning"), refractionText(warning),
                noPair ? noShotPairText(shotPairReach(mShots, mWork.ttLayer, 2)) : QString());
  }
}

/// Has computed how the times through the profiles fit the picks and marks of now.
void RefractionProcessingDialog::findFit() {
  mFit = {};
  showFit();
  if (mWork.refractData.cData.empty()) return;
  mUi->fitLabel->setText(tr("Computing times..."));
  mFitting->start(mShots, pickErrors(mDocument, mShots), mWork);
}

void RefractionProcessingDialog::showFit() {
  const bool any = !mFit.waves.empty();
  mUi->fitLabel->clear();
  mUi->computedCheck->setEnabled(any);
  mUi->curvesPlot->setComputed(mFit.waves);
  mUi->misfitTable->setVisible(any);
  fillMisfitTable(mFit, mShots, *mUi->misfitTable);
  showNotes();
}

void RefractionProcessingDialog::showResults() {
  const int refractors = static_cast<int>(mWork.refractData.cData.size());
  const int chosen =
      std::clamp(mUi->refractorCombo->currentIndex(), 0, std::max(refractors - 1, 0));
  mUi->refractorCombo->clear();
  for (int i = 0; i < refractors; ++i) {
    mUi->refractorCombo->addItem(i == 0 ? tr("first (layer 2)") : tr("second (layer 3)"));
  }
  mUi->refractorCombo->setCurrentIndex(refractors > 0 ? chosen : -1);
  const bool curves = refractors > 0 && !mWork.refractData.isFitted();
  mUi->refractorCombo->setEnabled(curves);
  mUi->xyCombo->setEnabled(curves);
  mUi->pushAutoPhantButton->setEnabled(!mWork.refractData.isFitted());
  showEmptyTexts();
  showStale();
  showPhantoms();
  showFunctions();
  showProfile();
}

void RefractionProcessingDialog::showPhantoms() {
  std::vector<PlotSeries> series;
  const std::size_t refractors = std::min(mWork.phnt_A.size(), mWork.phnt_R.size());
  for (std::size_t i = 0; i < refractors; ++i) {
    const phantom& forward = mWork.phnt_A[i];
    const phantom& reverse = mWork.phnt_R[i];
    const auto shotX = [this](std::int32_t shot) {
      return shot >= 0 && static_cast<std::size_t>(shot) < mShots.size()
                 ? mShots[static_cast<std::size_t>(shot)].shot.x
                 : 0.0;
    };
    series.push_back(arrivalsOf(mShots, mWork.ttLayer, static_cast<std::uint32_t>(forward.layer)));
    series.push_back(lineOf(forward, shotX(reverse.shotID)));
    series.push_back(lineOf(reverse, shotX(forward.shotID)));
    series.push_back(curveOf(
        forward, tr("Layer %1 from shot %2").arg(forward.layer).arg(forward.shotID + 1), true));
    series.push_back(curveOf(
        reverse, tr("Layer %1 from shot %2").arg(reverse.layer).arg(reverse.shotID + 1), false));
  }
  mUi->phantomPlot->setSeries(std::move(series));
  showShifts();
}

void RefractionProcessingDialog::showShifts() {
  QTableWidget& table = *mUi->shiftTable;
  table.setRowCount(0);
  const QLocale locale;
  for (std::uint32_t layer = 2; layer <= kLastLayer; ++layer) {
    for (std::size_t shot = 0; shot < std::min(mShots.size(), mWork.ttLayer.size()); ++shot) {
      for (const Side side : {Side::kRight, Side::kLeft}) {
        const layerStruct& own = mWork.ttLayer[shot];
        int picks = 0;
        double shift = 0.0;
        for (std::size_t i = 0; i < mShots[shot].times.size(); ++i) {
          if (layerOf(own, i) != layer || !mShots[shot].onSide(i, side)) continue;
          if (i >= own.trasla.size() || own.trasla[i] == 0.0) continue;
          shift = own.trasla[i];
          ++picks;
        }
        if (picks == 0) continue;
        const int row = table.rowCount();
        table.insertRow(row);
        const QStringList cells = {QString::number(layer),
                                   tr("%1: at %2", "shot number, place")
                                       .arg(shot + 1)
                                       .arg(lengthWithUnit(mShots[shot].shot.x, 1)),
                                   side == Side::kRight ? tr("to the right") : tr("to the left"),
                                   QString::number(picks), locale.toString(kMs * shift, 'f', 2)};
        for (int column = 0; column < cells.size(); ++column) {
          auto* cell = new QTableWidgetItem(cells[column]);
          if (column != 1 && column != 2) cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
          table.setItem(row, column, cell);
        }
      }
    }
  }
  table.resizeColumnsToContents();
}

void RefractionProcessingDialog::showFunctions() {
  const int refractor = mWork.refractData.isFitted() ? -1 : mUi->refractorCombo->currentIndex();
  std::vector<PlotSeries> tV;
  std::vector<PlotSeries> tG;
  if (refractor < 0) {
    mUi->xyCriteria->clear();
    mUi->xyCombo->clear();
    mUi->xyFoundLabel->clear();
    mUi->xyFoundLabel->setToolTip({});
  }
  if (refractor >= 0) {
    const computedData& found = mWork.refractData.cData[static_cast<std::size_t>(refractor)];
    // A project may have an XY that is none of the family.
    const std::size_t chosen =
        isOfFamily(found.chosenXY) ? indexOfXY(found.chosenXY) : kXYFamily.size();
    fillXY(static_cast<std::uint32_t>(refractor) + 2);
    const QColor strong = shown(static_cast<std::uint32_t>(refractor) + 2);
    const auto addFamily = [&](const std::vector<double>& family, const std::vector<double>& own,
                               std::vector<PlotSeries>& plot) {
      for (std::size_t i = 0; i < kXYFamily.size(); ++i) {
        if (i == chosen) continue;
        // One name stands for all of them in the legend.
        const QString name = plot.empty() ? tr("other XY") : QString();
        plot.push_back(seriesOf(name, found.x, memberOf(family, i), kMs));
        plot.back().color = faint(shown(kNoLayer), 0.6);
        plot.back().width = 1.0;
      }
      plot.push_back(
          seriesOf(tr("XY = %1").arg(withLengthUnit(xyText(found.chosenXY))), found.x, own, kMs));
      plot.back().color = strong;
      plot.back().width = 2.2;
      plot.back().symbols = true;
    };
    addFamily(found.tVs, found.tV, tV);
    addFamily(found.tGs, found.tG, tG);
  }
  mUi->tvPlot->setSeries(std::move(tV));
  mUi->tgPlot->setSeries(std::move(tG));
}

/// The family, then the XY of a refractor that is none of it and those that the picks propose, with
/// their criteria.
void RefractionProcessingDialog::fillXY(std::uint32_t refractor) {
  QComboBox& combo = *mUi->xyCombo;
  const double chosen = mWork.refractData.cData[refractor - 2].chosenXY;
  const XYChoice choice = findXY(mWork, refractor);
  const QLocale locale;
  combo.clear();
  for (const double xy : kXYFamily) combo.addItem(xyText(xy), xy);
  const auto offer = [&](double xy) {
    if (combo.findData(xy) < 0) combo.addItem(xyText(xy), xy);
  };
  offer(chosen);
  QStringList found;
  const auto propose = [&](const XYProposal& proposal, const QString& name) {
    if (proposal.told) offer(proposal.xy);
    found << (proposal.told ? tr("%1 at %2").arg(name, withLengthUnit(xyText(proposal.xy)))
                            : tr("%1: the picks do not tell").arg(name));
  };
  propose(choice.smoothest, tr("smoothest tV"));
  propose(choice.mostEven, tr("most even velocity"));
  mUi->xyFoundLabel->setText(found.join(QStringLiteral("; ")));
  QStringList criteria;
  QStringList texts;
  for (const XYTried& tried : choice.tried) {
    texts << QString();
    if (!std::isfinite(tried.roughness) || !std::isfinite(tried.unevenness)) continue;
    texts.back() =
        tr("%1: tV rough by %2 ms, velocity uneven by %3 %")
            .arg(withLengthUnit(xyText(tried.xy)), locale.toString(kMs * tried.roughness, 'f', 3),
                 locale.toString(100.0 * tried.unevenness, 'f', 1));
    criteria << texts.back();
  }
  mUi->xyCriteria->setChoice(choice, chosen, texts);
  mUi->xyFoundLabel->setToolTip(criteria.join(QLatin1Char('\n')));
  combo.setCurrentIndex(combo.findData(chosen));
}

void RefractionProcessingDialog::on_refractorCombo_activated(int) {
  showFunctions();
}

std::shared_ptr<const ProfileErrors> RefractionProcessingDialog::profileErrors() const {
  return mUi->errorBands->errors();
}

/// Errors are those of the profile, the marks and the picks that they were found of.
void RefractionProcessingDialog::followErrors() {
  if (mWork.refractData.cData.empty()) {
    mUi->errorBands->setNone(tr("There is no profile yet."));
  } else if (mWork.refractData.isFitted()) {
    mUi->errorBands->setNone(
        tr("What errors of the picks make of a profile is found for the reciprocal method only."));
  } else if (mStale || picksChangedSince(mShots, mWork.refractData)) {
    mUi->errorBands->setNone(tr("Picks or marks have changed: build the profiles again."));
  } else {
    mUi->errorBands->setPicks(layerPicksOf(mDocument, mWork, errorRuleOf(mDocument)));
  }
}

void RefractionProcessingDialog::showProfile() {
  const processingData& results = mWork.refractData;
  const auto errors = profileErrors();
  std::vector<PlotSeries> velocities;
  const std::vector<Point2D> surface = profileSurface(results);
  if (results.isFitted() && !surface.empty()) {
    velocities.push_back(surfaceVelocity(results.first, surface));
  } else if (!surface.empty() && std::isfinite(results.v1) && results.v1 > 0.0) {
    PlotSeries series;
    series.name = tr("Layer %1").arg(1);
    series.color = shown(1);
    series.points = {{surface.front().x, results.v1}, {surface.back().x, results.v1}};
    if (errors != nullptr) {
      series.low.assign(2, results.v1 - errors->v1Error);
      series.high.assign(2, results.v1 + errors->v1Error);
    }
    velocities.push_back(std::move(series));
  }
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    velocities.push_back(
        seriesOf(tr("Layer %1").arg(i + 2), results.cData[i].x, results.cData[i].velocity, 1.0));
    velocities.back().color = shown(static_cast<std::uint32_t>(i) + 2);
    velocities.back().symbols = true;
    for (const Support one : supportOf(mShots, mWork, static_cast<std::uint32_t>(i) + 2).velocity) {
      velocities.back().loose.push_back(one != Support::kPicks);
    }
    if (errors != nullptr && i < errors->refractors.size()) {
      velocities.back().low = errors->refractors[i].velocity.low;
      velocities.back().high = errors->refractors[i].velocity.high;
    }
  }
  RefractionScene scene = refractionScene(mDocument, mWork, errors.get());
  fillProfileTable(mShots, mWork, errors.get(), *mUi->profileTable);
  mUi->profileTable->setVisible(mUi->profileTable->rowCount() > 0);
  // Velocities begin at 0 and lie above the places that they belong to.
  const double left = scene.lowerLeft().x;
  mUi->velocityPlot->setFrame(QRectF(left, 0.0, scene.upperRight().x - left, 0.0));
  mUi->velocityPlot->setSeries(std::move(velocities));
  mUi->profilePlot->setScene(std::move(scene));
  showNotes();
}

/// What a user must know of the profile.
void RefractionProcessingDialog::showNotes() {
  const processingData& results = mWork.refractData;
  QStringList notes;
  if (results.isFitted()) {
    notes << tr("Velocities and depths are fitted to all picks. %1").arg(firstLayerText(results));
  }
  if (mJudge) {
    const Message why = whyProfileFitsLess(mShots, mFit, *mJudge, mWork);
    if (!why.empty()) notes << tr("Misfit: %1.").arg(textOf(why));
  }
  for (const RefractionWarning& warning : mWarnings) notes << refractionText(warning).trimmed();
  if (results.isFitted() && hasGaps(results)) {
    notes << tr("Some velocities or depths are not known: no ground has those that fit there.");
  } else if (mWarnings.empty() && hasGaps(results)) {
    notes << tr(
        "Some velocities or depths are not known. Build the profiles again to be told why.");
  }
  mUi->notesLabel->setText(notes.join(QLatin1Char('\n')));
  mUi->notesLabel->setVisible(!notes.isEmpty());
}

}  // namespace talvesk
