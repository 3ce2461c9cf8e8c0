#include "app/presenters/CommandTable.h"
#include "app/presenters/Presenters.h"
#include "app/presenters/ShotTimeQuestion.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QMainWindow>

namespace talvesk {
namespace {

using State = CommandState;
using Rows = std::vector<Command>;

bool always(const State& /*state*/) {
  return true;
}

// What a row runs: a function of an object, with a value or with what the action is checked to.

template <typename Object>
Command::Run call(Object& object, void (Object::*function)()) {
  return [&object, function](bool /*checked*/) { (object.*function)(); };
}

template <typename Object, typename Value>
Command::Run call(Object& object, void (Object::*function)(Value), Value value) {
  return [&object, function, value](bool /*checked*/) { (object.*function)(value); };
}

template <typename Object>
Command::Run turn(Object& object, void (Object::*function)(bool)) {
  return [&object, function](bool checked) { (object.*function)(checked); };
}

template <typename Object, typename What>
Command::Run turn(Object& object, void (Object::*function)(What, bool), What what) {
  return [&object, function, what](bool checked) { (object.*function)(what, checked); };
}

Rows fileRows(Desk& desk, Presenters& p) {
  return {
      {"actionNew", always, call(p.shotFiles, &ShotFilesPresenter::newSurvey)},
      {"actionOpen_shot_files", always, call(p.shotFiles, &ShotFilesPresenter::addFiles), nullptr,
       "loadTraces_PWave"},
      {"actionLoad_TT", always, call(p.travelTimes, &TravelTimesPresenter::import)},
      {"actionLoad_Project", always, call(p.projects, &ProjectPresenter::load)},
      {"actionSave_Project", &State::toSave, [&p](bool) { p.projects.save(); }},
      {"actionSave_Project_As", &State::toSave, [&p](bool) { p.projects.saveAs(); }},
      {"actionSettings", always, call(p.settings, &SettingsPresenter::ask)},
      {"actionExit", always, [&desk](bool) { desk.window.close(); }},

      {"actionExport_TravelTimes", &State::records,
       call(p.travelTimes, &TravelTimesPresenter::exportTimes)},
      {"actionExport_recordings", &State::traces,
       call(p.records, &RecordExportPresenter::exportRecordings)},
      {"actionExport_pick_headers", &State::traces,
       call(p.records, &RecordExportPresenter::copyWithPicks)},
      {"actionExport_tomographic_data", &State::grid,
       call(p.exports, &ExportPresenter::exportSection)},
      {"actionGridded_Data", &State::grid, call(p.exports, &ExportPresenter::exportGriddedText)},
      {"actionExport_certainty", &State::certainty,
       call(p.exports, &ExportPresenter::exportCertainty)},
      {"actionExport_VTK", &State::grid, call(p.exports, &ExportPresenter::exportVtk)},
      {"actionExport_Surfer", &State::grid, call(p.exports, &ExportPresenter::exportSurfer)},
      {"actionExport_DXF", &State::line, call(p.drawings, &DrawingPresenter::exportDxf)},
      {"actionExport_curtain", &State::lineAndGrid,
       call(p.drawings, &DrawingPresenter::exportCurtain)},
      {"actionExport_GeoPackage", &State::line,
       call(p.drawings, &DrawingPresenter::exportGeoPackage)},
      {"actionExportTomographic_profile_2_KML", &State::lineAndGrid,
       call(p.exports, &ExportPresenter::exportSectionKml)},
      {"actionExportSeismic_line", &State::line, call(p.exports, &ExportPresenter::exportLineKml)},
      {"actionPrint", &State::drawable, call(p.prints, &PrintPresenter::print)},
      {"actionImages", &State::drawable, call(p.reports, &ReportPresenter::writePictures)},
      {"actionShot_sheet", &State::traces, call(p.sheets, &GatherSheetPresenter::ask)},
      {"actionScreenshot", &State::grid, call(p.reports, &ReportPresenter::takeScreenshot)},
      {"actionPDF", &State::records, call(p.reports, &ReportPresenter::writePdf)},
      {"actionODT", &State::records, call(p.reports, &ReportPresenter::writeOdt)},
      {"actionWeb_page", &State::records, call(p.reports, &ReportPresenter::writeWebPage)},
      {"actionCampaign_page", always, call(p.campaign, &CampaignPresenter::write)},

      {"actionFind_command", always, call(p.search, &CommandSearchPresenter::find)},
      {"actionUser_guide", always, call(p.help, &HelpPresenter::openUserGuide)},
      {"actionHelp", always, call(p.help, &HelpPresenter::openOnlineHelp)},
      {"actionAbout", always, call(p.help, &HelpPresenter::showAbout)},
  };
}

Rows projectRows(Desk& /*desk*/, Presenters& p) {
  return {
      // An empty survey, too, can get geophones and S-wave pairs.
      {"actionGeometry", always, [&p](bool) { p.geometry.ask(); }},
      {"actionSurveyed_positions", &State::line,
       call(p.surveyed, &SurveyedPositionsPresenter::ask)},
      {"actionSet_geography_coordinates", &State::line,
       call(p.exports, &ExportPresenter::setMapPosition)},
      {"actionGrid", &State::strings, [&p](bool) { p.models.makeGrid(); }},
      {"actionDefine_model_velocity", &State::cells,
       call(p.models, &ModelPresenter::defineVelocity)},
      {"actionStart_from_layers", &State::refractors, call(p.layers, &LayersPresenter::start)},
      {"actionSet_title", always, call(p.survey, &SurveyPresenter::askForTitle)},

      {"actionAutoPick", &State::shotInView, call(p.processing, &ProcessingPresenter::autoPick)},
      {"actionAutoPick_line", &State::shotInView,
       call(p.processing, &ProcessingPresenter::autoPickAlongLine)},
      {"actionAutoPick_survey", &State::traces,
       call(p.processing, &ProcessingPresenter::autoPickSurvey)},
      {"actionFill_along", &State::shotInView, [&p](bool) { p.processing.fillAlong(); }},
      {"actionFilter", &State::shotInView, call(p.processing, &ProcessingPresenter::filter)},
      {"actionNotch", &State::shotInView, call(p.processing, &ProcessingPresenter::notch)},
      {"actionVelocity_filter", &State::shotInView,
       call(p.processing, &ProcessingPresenter::velocityFilter)},
      {"actionAGC", &State::shotInView, call(p.processing, &ProcessingPresenter::agc)},
      {"actionApply_Hushel", &State::shotInView, call(p.processing, &ProcessingPresenter::hushel),
       nullptr, "on_actionAuto_improve_triggered"},
      {"actionRun_tomography_inversion", &State::records,
       call(p.inversion, &InversionPresenter::run)},
      {"actionSecond_look", &State::computed, call(p.secondLook, &SecondLookPresenter::show)},
      {"actionResiduals", &State::computed, call(p.residuals, &ResidualsPresenter::show)},
      {"actionKnown_ground", &State::strings, call(p.known, &KnownGroundPresenter::ask)},
      {"actionInversion_runs", &State::records, call(p.runs, &RunsPresenter::show)},
      {"actionCertainty", &State::inverted, call(p.certainty, &CertaintyPresenter::ask)},
      {"actionResolution", &State::records, call(p.resolution, &ResolutionPresenter::test)},
      {"actionApply_smoothing", &State::cells, call(p.models, &ModelPresenter::smooth)},
      {"actionRefraction", &State::records, call(p.refraction, &RefractionPresenter::interpret)},
      {"actionCompare_layers", [](const State& state) { return state.cells && state.refractors; },
       call(p.layers, &LayersPresenter::compare)},
      {"actionP_and_S", &State::refractors, call(p.layers, &LayersPresenter::putWavesTogether)},
  };
}

Rows shotRows(Desk& desk, Presenters& p) {
  editTravelTimesWidget& traces = *desk.ui.showTracesWidget;
  return {
      {"actionNext_file", &State::records, call(desk.shot, &ShotInView::showNext)},
      {"actionPrev_file", &State::records, call(desk.shot, &ShotInView::showPrevious)},
      {"actionRecording_details", &State::traces, call(p.traces, &TracesPresenter::showDetails)},
      {"actionTrace_headers", &State::traces, call(p.headers, &TraceHeadersPresenter::show)},
      {"actionOverlay_shots", &State::shotInView, call(p.blowPairs, &BlowPairPresenter::show)},
      {"actionCheck_recordings", &State::traces, call(p.checks, &CheckPresenter::check)},
      {"actionReciprocity", &State::records, call(p.reciprocity, &ReciprocityPresenter::show)},
      {"actionCount_from_shot", &State::beforeShot, [&desk](bool) { countTimesFromShot(desk); }},
      {"actionMend_recording", &State::shotInView, call(p.traces, &TracesPresenter::mendRecording)},
      {"actionKill_traces", &State::shotInView, call(traces, &editTravelTimesWidget::killTraces)},
      {"actionReverse_polarity", &State::shotInView,
       call(traces, &editTravelTimesWidget::reversePolarity)},
      {"actionMute_traces", &State::shotInView, call(p.traceMends, &TraceMendsPresenter::askMute)},
      {"actionAmplify_traces", &State::shotInView,
       call(traces, &editTravelTimesWidget::amplifyTraces)},
      {"actionAttenuate_traces", &State::shotInView,
       call(traces, &editTravelTimesWidget::attenuateTraces)},
      {"actionTake_back_mends", &State::mends, call(p.traces, &TracesPresenter::takeBackMends)},
      {"actionRemove_shot", &State::recordInView, call(p.traces, &TracesPresenter::removeShot)},
      {"actionUndo", &State::canUndo, call(desk.session, &Session::undo)},
      {"actionRedo", &State::canRedo, call(desk.session, &Session::redo)},
      {"actionConfirm_picks", &State::unconfirmedInRange,
       call(traces, &editTravelTimesWidget::confirmPicks)},
      {"actionRemove_picks", &State::picksInRange,
       call(traces, &editTravelTimesWidget::removePicks)},
      {"actionRemove_unconfirmed", &State::unconfirmedInRange,
       call(traces, &editTravelTimesWidget::removeUnconfirmedPicks)},
      {"actionNext_doubtful", &State::picksToReview,
       call(p.review, &ReviewPresenter::showNextDoubtful)},
      {"actionPrevious_doubtful", &State::picksToReview,
       call(p.review, &ReviewPresenter::showPreviousDoubtful)},
      {"actionGain_up", &State::shotInView, call(p.traceOptions, &TraceOptionsPresenter::gainUp)},
      {"actionGain_down", &State::shotInView,
       call(p.traceOptions, &TraceOptionsPresenter::gainDown)},
      {"actionFit", &State::recordInView, call(traces, &editTravelTimesWidget::fit)},
      {"actionZoom_back", &State::canZoomBack, call(traces, &editTravelTimesWidget::zoomBack)},
      {"actionZoom_forward", &State::canZoomForward,
       call(traces, &editTravelTimesWidget::zoomForward)},
  };
}

Rows traceViewRows(Desk& desk, Presenters& p) {
  TraceOptionsPresenter& view = p.traceOptions;
  using Options = TraceViewOptions;
  const auto setting = [&view](const char* object, bool Settings::*what) {
    return Command{object, always, turn(view, &TraceOptionsPresenter::setSetting, what),
                   [what](const State& state) { return state.settings.*what; }};
  };
  const auto computedTimes = [&p](const char* object) {
    return Command{
        object, &State::computed,
        [&p](bool shown) {
          p.traceOptions.setSetting(&Settings::showComputedTimes, shown);
          p.curves.refresh();
        },
        [](const State& state) { return state.computed && state.settings.showComputedTimes; }};
  };
  const auto option = [&view](const char* object, bool Options::*what) {
    return Command{object, always, turn(view, &TraceOptionsPresenter::setOption, what),
                   [what](const State& state) { return state.traceView.*what; }};
  };
  const auto tool = [&view](const char* object, TraceTool what) {
    return Command{object,
                   always,
                   call(view, &TraceOptionsPresenter::setTool, what),
                   [what](const State& state) { return state.tool == what; },
                   nullptr,
                   "tool"};
  };
  const auto snap = [&view](const char* object, PickSnap what) {
    return Command{object,
                   always,
                   call(view, &TraceOptionsPresenter::setSnap, what),
                   [what](const State& state) { return state.traceView.snap == what; },
                   nullptr,
                   "snap"};
  };
  editTravelTimesWidget& traces = *desk.ui.showTracesWidget;
  const auto order = [&traces](const char* object, OffsetOrder what,
                               void (editTravelTimesWidget::*set)(bool)) {
    return Command{object, always, turn(traces, set),
                   [what](const State& state) { return state.traceView.manner.byOffset == what; }};
  };
  const auto error = [&traces](const char* object, std::size_t key) {
    const double sigma = 1e-3 * kKeyErrors[key];
    return Command{object,
                   &State::recordInView,
                   call(traces, &editTravelTimesWidget::setPickErrors, sigma),
                   [sigma](const State& state) { return state.traceView.pickError == sigma; },
                   nullptr,
                   "error"};
  };
  return {
      setting("actionFill_wiggle", &Settings::fillWiggle),
      setting("actionTwo_colors", &Settings::twoColors),
      setting("actionError_bars", &Settings::errorBars),
      setting("actionCut_horizontal", &Settings::cutHorizontal),
      setting("actionZoom_in", &Settings::zoomIn),
      setting("actionShow_filtered", &Settings::showFiltered),
      setting("actionShow_all_traces", &Settings::showAllTraces),
      {"actionBy_distance", always, turn(view, &TraceOptionsPresenter::setByDistance),
       [](const State& state) {
         const Options& options = state.traceView;
         return options.byDistance && options.manner.byOffset == OffsetOrder::kNone;
       }},
      order("actionBy_offset", OffsetOrder::kSigned, &editTravelTimesWidget::setByOffset),
      order("actionBy_absolute_offset", OffsetOrder::kAbsolute,
            &editTravelTimesWidget::setByAbsoluteOffset),
      {"actionReduced_time", always, turn(traces, &editTravelTimesWidget::setReduced),
       [](const State& state) { return state.traceView.manner.reduction > 0.0; }},
      {"actionReduction_velocity", always, call(view, &TraceOptionsPresenter::askReduction)},
      {"actionTime_gain", always, turn(traces, &editTravelTimesWidget::setAmplified),
       [](const State& state) { return state.traceView.manner.timeGain > 0.0; }},
      {"actionTime_gain_exponent", always, call(view, &TraceOptionsPresenter::askTimeGain)},
      option("actionAir_wave", &Options::airWave),
      option("actionMagnifier", &Options::magnifier),
      {"actionTrue_amplitudes", always, turn(view, &TraceOptionsPresenter::setTrueAmplitudes),
       [](const State& state) { return state.traceView.normalise == TraceNormalise::WholeShot; }},
      tool("actionTool_pick", TraceTool::Pick),
      tool("actionTool_zoom", TraceTool::Zoom),
      tool("actionTool_pan", TraceTool::Pan),
      tool("actionTool_ruler", TraceTool::Ruler),
      tool("actionTool_select", TraceTool::Select),
      tool("actionTool_guide", TraceTool::Guide),
      snap("actionSnap_none", PickSnap::None),
      snap("actionSnap_onset", PickSnap::Onset),
      snap("actionSnap_zero", PickSnap::ZeroCrossing),
      snap("actionSnap_peak", PickSnap::Peak),
      error("actionError_unknown", 0),
      error("actionError_05", 1),
      error("actionError_1", 2),
      error("actionError_25", 3),
      error("actionError_5", 4),
      {"show_filtered_cb", &State::filteredCopy,
       turn(view, &TraceOptionsPresenter::setSetting, &Settings::showFiltered),
       [](const State& state) { return state.filteredCopy && state.settings.showFiltered; }},
      {"showAllPicksCB", &State::records,
       turn(view, &TraceOptionsPresenter::setOption, &Options::showAllPicks)},
      {"showTravelTimeCB", &State::records, turn(view, &TraceOptionsPresenter::setOnlyTraces),
       nullptr, "update_show_traces"},
      computedTimes("showSimTT_CB"),
      computedTimes("actionGuide_computed"),
      setting("actionGuide_neighbour", &Settings::showNeighbour),
      setting("actionGuide_reciprocal", &Settings::showReciprocalTimes),
  };
}

Rows sectionRows(Desk& /*desk*/, Presenters& p) {
  SectionPresenter& section = p.section;
  using View = SectionViewSettings;
  const auto shown = [&section](const char* object, bool State::*enabled, bool View::*what) {
    return Command{object, enabled, turn(section, &SectionPresenter::show, what),
                   [what](const State& state) { return state.section.*what; }};
  };
  const auto quantity = [&section](const char* object, bool State::*enabled, SectionQuantity what) {
    return Command{object, enabled, turn(section, &SectionPresenter::chooseQuantity, what),
                   [what](const State& state) { return state.section.quantity == what; }};
  };
  const auto geophones = [&section](const char* object, GeophoneMarkers what) {
    return Command{object,
                   &State::picture,
                   call(section, &SectionPresenter::chooseGeophones, what),
                   [what](const State& state) { return state.section.geophones == what; },
                   nullptr,
                   "geophones"};
  };
  return {
      shown("actionShow_Tomographic_Profile", &State::cells, &View::profile),
      {"actionGrid_view", &State::cells, [&section](bool) { section.show(&View::smooth, false); },
       [](const State& state) { return !state.section.smooth; }, nullptr, "view"},
      {"actionSmooth_view", &State::cells, [&section](bool) { section.show(&View::smooth, true); },
       [](const State& state) { return state.section.smooth; }, nullptr, "view"},
      shown("actionShow_rays", &State::rays, &View::rays),
      {"actionShow_Contour_Lines", &State::cells,
       call(p.contours, &ContoursPresenter::editContours),
       [](const State& state) {
         return showsContours(state.section.contours, state.section.quantity);
       }},
      quantity("actionShow_Information_Density_Layer", &State::density,
               SectionQuantity::kInformationDensity),
      quantity("actionShow_Certainty_Layer", &State::certainty, SectionQuantity::kCertainty),
      shown("actionFade_uncertain", &State::certainty, &View::fadeUncertain),
      {"actionDepth_bands", &State::certainty, call(section, &SectionPresenter::chooseDepthBands),
       [](const State& state) { return !state.section.bandVelocities.empty(); }},
      quantity("actionVertical_Gradient", &State::cells, SectionQuantity::kVerticalGradient),
      quantity("actionLaplacian_Gradient", &State::cells, SectionQuantity::kLaplacian),
      {"actionShow_refraction", &State::refractors,
       turn(section, &SectionPresenter::showRefraction),
       [](const State& state) { return state.section.refraction; }},
      shown("actionShow_known", &State::known, &View::known),
      shown("actionShow_annotations", &State::annotations, &View::annotations),
      {"actionMarked_isolines", &State::cells,
       call(p.annotations, &AnnotationsPresenter::markIsolines)},
      {"actionAnnotations", &State::picture, call(p.annotations, &AnnotationsPresenter::edit)},
      shown("actionShow_scalarbar", &State::cells, &View::scalarBar),
      shown("actionShow_Grid_Lines", &State::cells, &View::gridLines),
      geophones("actionSmallGeo", GeophoneMarkers::kSmall),
      geophones("actionNormalGeo", GeophoneMarkers::kNormal),
      geophones("actionLargeGeo", GeophoneMarkers::kLarge),
      shown("actionShow_title", &State::picture, &View::title),
      {"actionDepth_profile", &State::cells, call(p.depthProfile, &DepthProfilePresenter::show)},
      {"actionFence", &State::cells, call(p.fence, &FencePresenter::show)},
      {"actionSave_style", &State::picture, call(p.styles, &StylePresenter::save)},
      {"actionApply_style", &State::picture, call(p.styles, &StylePresenter::apply)},
      {"actionPalette", always, call(p.palettes, &PalettePresenter::editPalettes)},
      {"actionReset_View", &State::picture, call(section, &SectionPresenter::resetView)},
  };
}

}  // namespace

std::vector<Command> commandRows(Desk& desk, Presenters& presenters) {
  Rows rows;
  for (const auto& part : {fileRows, projectRows, shotRows, traceViewRows, sectionRows}) {
    const Rows more = part(desk, presenters);
    rows.insert(rows.end(), more.begin(), more.end());
  }
  return rows;
}

}  // namespace talvesk
