#include "app/MessageText.h"
#include "app/RecordingDetailsDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "model/Recordings.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

#include <QLocale>

namespace talvesk {
namespace {

constexpr double kGainStep = 1.5;

}  // namespace

// --- Which shot

void Talvesk_MainWindows::on_actionNext_file_triggered() {
  logSlot(__func__);
  const int count = static_cast<int>(document().ttArray.size());
  if (count > 0) showFile((mCurrentFile + 1) % count);
}

void Talvesk_MainWindows::on_actionPrev_file_triggered() {
  logSlot(__func__);
  const int count = static_cast<int>(document().ttArray.size());
  if (count > 0) showFile(mCurrentFile <= 0 ? count - 1 : mCurrentFile - 1);
}

void Talvesk_MainWindows::on_actionRecording_details_triggered() {
  logSlot(__func__);
  std::vector<RecordingInfo> files;
  for (const RecordingNote& note : document().recordings->notes) {
    files.push_back({QString::fromStdString(note.format), linesOf(note.warnings)});
  }
  files.resize(document().recordings->traceSets.size());
  RecordingDetailsDialog(document(), files, mCurrentFile, this).exec();
}

// --- What the views tell

void Talvesk_MainWindows::enable_draw_travel_times() {
  refreshCommands();
}

void Talvesk_MainWindows::on_pickEdited() {
  refreshPlots();
}

void Talvesk_MainWindows::on_mousemoved(int trace) {
  mUi->travelTimePreview->setHighlightedTrace(trace);
}

void Talvesk_MainWindows::showCursor(const TraceCursor& cursor) {
  if (cursor.trace < 0 || mUi->tabWidget->currentWidget() != mUi->tab_3) {
    mCursorLabel->clear();
    return;
  }
  const QLocale locale;
  QStringList parts = {tr("Trace %1").arg(cursor.trace + 1)};
  if (cursor.offset) parts << tr("Offset %1 m").arg(locale.toString(*cursor.offset, 'f', 1));
  if (cursor.time) parts << tr("Time %1 ms").arg(locale.toString(1000.0 * *cursor.time, 'f', 2));
  if (cursor.pick) {
    const QString pick = locale.toString(1000.0 * *cursor.pick, 'f', 2);
    parts << (cursor.pickIsAutomatic ? tr("Pick %1 ms (automatic)").arg(pick)
                                     : tr("Pick %1 ms").arg(pick));
  }
  if (cursor.amplitude) {
    parts << tr("Amplitude %1").arg(locale.toString(*cursor.amplitude, 'g', 4));
  }
  mCursorLabel->setText(parts.join(QStringLiteral("   ")));
}

// --- Edits

void Talvesk_MainWindows::on_actionUndo_triggered() {
  logSlot(__func__);
  mSession.undo();
}

void Talvesk_MainWindows::on_actionRedo_triggered() {
  logSlot(__func__);
  mSession.redo();
}

void Talvesk_MainWindows::on_actionConfirm_picks_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->confirmPicks();
}

void Talvesk_MainWindows::on_actionRemove_picks_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->removePicks();
}

void Talvesk_MainWindows::on_actionRemove_unconfirmed_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->removeUnconfirmedPicks();
}

// --- Trace options that are settings

void Talvesk_MainWindows::setOption(bool Settings::*option, bool value) {
  mSettings.*option = value;
  refreshTraceOptions();
  saveSettings();
}

void Talvesk_MainWindows::on_actionFill_wiggle_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::fillWiggle, checked);
}

void Talvesk_MainWindows::on_actionTwo_colors_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::twoColors, checked);
}

void Talvesk_MainWindows::on_actionCut_horizontal_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::cutHorizontal, checked);
}

void Talvesk_MainWindows::on_actionZoom_in_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::zoomIn, checked);
}

void Talvesk_MainWindows::on_actionShow_filtered_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::showFiltered, checked);
}

void Talvesk_MainWindows::on_actionShow_all_traces_triggered(bool checked) {
  logSlot(__func__);
  setOption(&Settings::showAllTraces, checked);
}

void Talvesk_MainWindows::on_show_filtered_cb_clicked(bool checked) {
  logSlot(__func__);
  setOption(&Settings::showFiltered, checked);
}

// --- Trace options that last as long as the window

template <typename Change>
void Talvesk_MainWindows::changeView(Change change) {
  for (editTravelTimesWidget* editor : editors()) {
    TraceViewOptions options = editor->options();
    change(options);
    editor->setOptions(options);
  }
  refreshTraceOptions();
}

void Talvesk_MainWindows::on_showAllPicksCB_clicked(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.showAllPicks = checked; });
}

void Talvesk_MainWindows::on_showSimTT_CB_clicked(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.showComputedTimes = checked; });
  refreshPlots();
}

void Talvesk_MainWindows::update_show_traces(bool onlyTraces) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.showOnlyTraces = onlyTraces; });
  mUi->travelTimePreview->setVisible(!onlyTraces);
}

void Talvesk_MainWindows::on_actionBy_distance_triggered(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.byDistance = checked; });
}

void Talvesk_MainWindows::on_actionTrue_amplitudes_triggered(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) {
    view.normalise = checked ? TraceNormalise::WholeShot : TraceNormalise::EachTrace;
  });
}

void Talvesk_MainWindows::on_actionAir_wave_triggered(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.airWave = checked; });
}

void Talvesk_MainWindows::on_actionMagnifier_triggered(bool checked) {
  logSlot(__func__);
  changeView([=](TraceViewOptions& view) { view.magnifier = checked; });
}

void Talvesk_MainWindows::on_actionGain_up_triggered() {
  logSlot(__func__);
  changeView([](TraceViewOptions& view) { view.gain *= kGainStep; });
}

void Talvesk_MainWindows::on_actionGain_down_triggered() {
  logSlot(__func__);
  changeView([](TraceViewOptions& view) { view.gain /= kGainStep; });
}

void Talvesk_MainWindows::chooseSnap(PickSnap snap) {
  changeView([=](TraceViewOptions& view) { view.snap = snap; });
}

void Talvesk_MainWindows::on_actionSnap_none_triggered() {
  logSlot(__func__);
  chooseSnap(PickSnap::None);
}

void Talvesk_MainWindows::on_actionSnap_onset_triggered() {
  logSlot(__func__);
  chooseSnap(PickSnap::Onset);
}

void Talvesk_MainWindows::on_actionSnap_zero_triggered() {
  logSlot(__func__);
  chooseSnap(PickSnap::ZeroCrossing);
}

void Talvesk_MainWindows::on_actionSnap_peak_triggered() {
  logSlot(__func__);
  chooseSnap(PickSnap::Peak);
}

// --- Mouse tools and views

void Talvesk_MainWindows::chooseTool(TraceTool tool) {
  for (editTravelTimesWidget* editor : editors()) editor->setTool(tool);
}

void Talvesk_MainWindows::on_actionTool_pick_triggered() {
  logSlot(__func__);
  chooseTool(TraceTool::Pick);
}

void Talvesk_MainWindows::on_actionTool_zoom_triggered() {
  logSlot(__func__);
  chooseTool(TraceTool::Zoom);
}

void Talvesk_MainWindows::on_actionTool_pan_triggered() {
  logSlot(__func__);
  chooseTool(TraceTool::Pan);
}

void Talvesk_MainWindows::on_actionTool_ruler_triggered() {
  logSlot(__func__);
  chooseTool(TraceTool::Ruler);
}

void Talvesk_MainWindows::on_actionTool_select_triggered() {
  logSlot(__func__);
  chooseTool(TraceTool::Select);
}

void Talvesk_MainWindows::on_actionFit_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->fit();
}

void Talvesk_MainWindows::on_actionZoom_back_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->zoomBack();
}

void Talvesk_MainWindows::on_actionZoom_forward_triggered() {
  logSlot(__func__);
  mUi->showTracesWidget->zoomForward();
}

}  // namespace talvesk
