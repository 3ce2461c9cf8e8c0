#include "app/InversionTexts.h"
#include "app/MessageText.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/SurveyGeometry.h"
#include "model/TomographyOutcome.h"
#include "refraction/ShotArrivals.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/SectionView.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

// What the window shows follows the document and the settings through the functions of this file.

namespace talvesk {

bool Talvesk_MainWindows::hasFilteredCopy(int shot) const {
  if (shot < 0 || static_cast<std::size_t>(shot) >= document().recordings->traceSets.size())
    return false;
  return talvesk::hasFilteredCopy(document().recordings->traceSets[static_cast<std::size_t>(shot)]);
}

/// The one place where the window hears that the survey is another: every view and command that
/// depends on a part follows it.
void Talvesk_MainWindows::surveyChanged(const SurveyChange& change) {
  const bool opened = change.kind == SurveyChange::Kind::kOpened;
  const auto has = [&change](Part part) { return change.parts.has(part); };
  if (opened || has(Part::kRecordings) || has(Part::kGeometry)) showRecords();
  if (opened) {
    for (TravelTimePlot* plot : plots()) plot->setDocument(&document());
  }
  if (has(Part::kGeometry) || has(Part::kResult)) {
    if (!document().result->has_tomographic_info) mUi->showSimTT_CB->setChecked(false);
    for (editTravelTimesWidget* editor : editors()) editor->update();
    refreshPlots();
  }
  if (showsOtherwise(change)) refreshSection();
  if (mSession.modified() && change.kind != SurveyChange::Kind::kView) noteEdit();
  refreshTitle();
  refreshTraceOptions();
}

/// The legend of the layered profile follows the picks: they may be others than those that it was
/// built from.
bool Talvesk_MainWindows::showsOtherwise(const SurveyChange& change) const {
  PartSet drawn = PartSet::all();
  drawn.remove(Part::kRecordings);
  drawn.remove(Part::kMap);
  drawn.remove(Part::kPicks);
  if (change.parts.any(drawn)) return true;
  const SectionScene* scene = mUi->vtk_widget->scene();
  if (scene == nullptr || scene->refractors.empty()) return false;
  const std::vector<SectionLine> now = refractors();
  return !now.empty() && now.front().name != scene->refractors.front().name;
}

void Talvesk_MainWindows::showRecords() {
  const int count = static_cast<int>(document().ttArray.size());
  if (mCurrentFile >= count) mCurrentFile = count - 1;
  for (editTravelTimesWidget* editor : editors()) editor->setShot(mCurrentFile);
  mUi->tracesStack->setCurrentWidget(count == 0 ? mUi->emptyPage
                                                : static_cast<QWidget*>(mUi->splitter));
  refreshShotChooser();
}

bool Talvesk_MainWindows::edit(Edit kind, const std::function<void(Survey&)>& change,
                               Message text) {
  const auto edit = [&change](Survey& survey) {
    change(survey);
    return Status();
  };
  return tellUnlessDone(mSession.apply(kind, edit, std::move(text)));
}

bool Talvesk_MainWindows::tellUnlessDone(const Status& status) {
  if (!status.ok()) tellFailure(this, mLog, tr("The survey was not changed."), status);
  return status.ok();
}

void Talvesk_MainWindows::showFile(int index) {
  const int count = static_cast<int>(document().ttArray.size());
  mCurrentFile = index >= 0 && index < count ? index : -1;
  for (editTravelTimesWidget* editor : editors()) editor->setShot(mCurrentFile);
  mShotChooser->setCurrentIndex(mCurrentFile);
  refreshTraceOptions();
  refreshPlots();
}

/// The misfit of the section stays in view, and whether it still is that of the picks it was fitted
/// to.
void Talvesk_MainWindows::refreshMisfit() {
  QString text = sectionMisfitText(sectionMisfitOf(document()));
  if (!text.isEmpty() && picksChangedSince(document())) {
    text += QLatin1Char(' ') + tr("Picks have changed since.");
  }
  mMisfitLabel->setText(text);
  mMisfitLabel->setVisible(!text.isEmpty());
}

void Talvesk_MainWindows::refreshTitle() {
  refreshMisfit();
  QString title = tr("Talvesk 2022.0") + QStringLiteral("[*]");
  for (QString part :
       {QFileInfo(mProject.path()).fileName(), QString::fromStdString(document().title)}) {
    // Two markers are how Qt writes one that is not its own.
    part.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    if (!part.isEmpty()) title += QStringLiteral(" - ") + part;
  }
  setWindowTitle(title);
  setWindowModified(mSession.modified());
}

void Talvesk_MainWindows::refreshShotChooser() {
  mShotChooser->clear();
  const QLocale locale;
  for (std::size_t i = 0; i < document().ttArray.size(); ++i) {
    const TravelTime& record = document().ttArray[i];
    const QString place = tr("%1 m").arg(locale.toString(record.shotPos2d.x, 'f', 1));
    const auto number = static_cast<int>(i + 1);
    const std::string file = shotFile(document(), i);
    const QString text = !file.empty()
                             ? tr("%1: %2 at %3", "shot number, file, place")
                                   .arg(number)
                                   .arg(QFileInfo(QString::fromStdString(file)).fileName(), place)
                             : tr("%1: at %2", "shot number, place").arg(number).arg(place);
    mShotChooser->addItem(text);
  }
  mShotChooser->setCurrentIndex(mCurrentFile);
}

void Talvesk_MainWindows::refreshTraceOptions() {
  const bool hasCopy = hasFilteredCopy(mCurrentFile);
  mUi->show_filtered_cb->setEnabled(hasCopy);
  mUi->show_filtered_cb->setChecked(hasCopy && mSettings.showFiltered);
  for (editTravelTimesWidget* editor : editors()) {
    TraceViewOptions view = editor->options();
    view.fillWiggle = mSettings.fillWiggle;
    view.zoomIn = mSettings.zoomIn;
    view.cutHorizontal = mSettings.cutHorizontal;
    view.showFiltered = mSettings.showFiltered;
    view.showAllTraces = mSettings.showAllTraces;
    view.twoColors = mSettings.twoColors;
    editor->setOptions(view);
  }
  mUi->actionFill_wiggle->setChecked(mSettings.fillWiggle);
  mUi->actionZoom_in->setChecked(mSettings.zoomIn);
  mUi->actionCut_horizontal->setChecked(mSettings.cutHorizontal);
  mUi->actionShow_filtered->setChecked(mSettings.showFiltered);
  mUi->actionShow_all_traces->setChecked(mSettings.showAllTraces);
  mUi->actionTwo_colors->setChecked(mSettings.twoColors);
  refreshViewActions();
  refreshCommands();
}

void Talvesk_MainWindows::refreshViewActions() {
  const TraceViewOptions& view = mUi->showTracesWidget->options();
  mUi->actionBy_distance->setChecked(view.byDistance);
  mUi->actionTrue_amplitudes->setChecked(view.normalise == TraceNormalise::WholeShot);
  mUi->actionAir_wave->setChecked(view.airWave);
  mUi->actionMagnifier->setChecked(view.magnifier);
  QAction* const snaps[] = {mUi->actionSnap_none, mUi->actionSnap_onset, mUi->actionSnap_zero,
                            mUi->actionSnap_peak};
  snaps[static_cast<int>(view.snap)]->setChecked(true);
  QAction* const tools[] = {mUi->actionTool_pick, mUi->actionTool_zoom, mUi->actionTool_pan,
                            mUi->actionTool_ruler, mUi->actionTool_select};
  tools[static_cast<int>(mUi->showTracesWidget->tool())]->setChecked(true);
}

void Talvesk_MainWindows::refreshCommands() {
  if (mInversion != nullptr) return;  // all are locked; they are refreshed when it has ended
  const bool records = !document().ttArray.empty();
  const bool traces = !document().recordings->traceSets.empty();
  const bool recordInView = records && mCurrentFile >= 0;
  const bool shotInView = traces && recordInView;
  const bool computed = document().result->has_tomographic_info;

  const std::pair<QAction*, bool> states[] = {
      {mUi->actionExport_TravelTimes, records},
      {mUi->actionNext_file, records},
      {mUi->actionPrev_file, records},
      {mUi->actionRecording_details, traces},
      {mUi->actionAutoPick, shotInView},
      {mUi->actionFilter, shotInView},
      {mUi->actionAGC, shotInView},
      {mUi->actionApply_Hushel, shotInView},
      {mUi->actionConfirm_picks, mUi->showTracesWidget->hasPicksInRange(true)},
      {mUi->actionRemove_picks, mUi->showTracesWidget->hasPicksInRange(false)},
      {mUi->actionRemove_unconfirmed, mUi->showTracesWidget->hasPicksInRange(true)},
      {mUi->actionGain_up, shotInView},
      {mUi->actionGain_down, shotInView},
      {mUi->actionFit, recordInView},
      {mUi->actionZoom_back, recordInView && mUi->showTracesWidget->canZoomBack()},
      {mUi->actionZoom_forward, recordInView && mUi->showTracesWidget->canZoomForward()},
      {mUi->actionUndo, mSession.canUndo()},
      {mUi->actionRedo, mSession.canRedo()},
  };
  for (const auto& [action, enabled] : states) action->setEnabled(enabled);
  refreshUndoTexts();
  mShotChooser->setEnabled(records);
  mUi->showAllPicksCB->setEnabled(records);
  mUi->showTravelTimeCB->setEnabled(records);
  mUi->showSimTT_CB->setEnabled(computed);

  refreshGeometryCommands();
  refreshTomographyCommands();
  refreshSectionCommands();
  refreshPaletteCommands();
  refreshRefractionCommands();
  refreshProjectCommands();
  refreshExportCommands();
  refreshReportCommands();
}

/// The menu says what would be undone; the form has the texts for when there is nothing.
void Talvesk_MainWindows::refreshUndoTexts() {
  const Message undo = mSession.undoText();
  const Message redo = mSession.redoText();
  mUi->actionUndo->setText(undo.empty() ? tr("Undo") : tr("Undo \"%1\"").arg(textOf(undo)));
  mUi->actionRedo->setText(redo.empty() ? tr("Redo") : tr("Redo \"%1\"").arg(textOf(redo)));
}

}  // namespace talvesk
