#include "app/CommandWords.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace talvesk {
namespace {

constexpr char kContext[] = "CommandWords";

struct Row {
  const char* action;
  const char* words;
};

// Not what name or tool tip say already. A language has words of its own here, as many as it
// likes: what colleagues say, and what other programs call it.
constexpr Row kRows[] = {
    // Recordings
    {"actionNew", QT_TRANSLATE_NOOP("CommandWords", "start over, empty, close survey, clear")},
    {"actionOpen_shot_files",
     QT_TRANSLATE_NOOP("CommandWords",
                       "load recordings, seismograms, records, raw data, gathers, seg2, segy")},
    {"actionRecording_details",
     QT_TRANSLATE_NOOP("CommandWords", "file headers, metadata, sampling rate, sample interval")},
    {"actionTrace_headers", QT_TRANSLATE_NOOP("CommandWords", "metadata, channels, trace table")},
    {"actionCount_from_shot",
     QT_TRANSLATE_NOOP("CommandWords", "trigger, pretrigger, time zero, t0, recording delay")},
    {"actionMend_recording",
     QT_TRANSLATE_NOOP("CommandWords", "trigger shift, time correction, static, reverse channels")},
    {"actionRemove_shot", QT_TRANSLATE_NOOP("CommandWords", "delete shot, discard recording")},
    {"actionExport_recordings", QT_TRANSLATE_NOOP("CommandWords", "convert, seg2, segy")},
    // Geometry
    {"actionGeometry",
     QT_TRANSLATE_NOOP("CommandWords",
                       "geophone positions, receivers, source positions, shot points, spacing, "
                       "spread, layout, elevations, topography, coordinates")},
    {"actionSurveyed_positions",
     QT_TRANSLATE_NOOP("CommandWords",
                       "gps, gnss, total station, easting northing, longitude latitude, utm, "
                       "topography, elevations, geophone positions")},
    {"actionSet_geography_coordinates",
     QT_TRANSLATE_NOOP(
         "CommandWords",
         "map position, easting northing, utm, epsg, georeference, reference system")},
    // Traces
    {"actionFilter", QT_TRANSLATE_NOOP("CommandWords",
                                       "band pass, bandpass, low pass, high pass, lowpass, "
                                       "highpass, frequencies")},
    {"actionNotch", QT_TRANSLATE_NOOP("CommandWords", "mains, power line noise, hertz")},
    {"actionVelocity_filter", QT_TRANSLATE_NOOP("CommandWords",
                                                "f-k, fk, fan filter, dip filter, ground roll, "
                                                "surface waves")},
    {"actionAGC", QT_TRANSLATE_NOOP("CommandWords", "balance, normalise, normalize, level")},
    {"actionApply_Hushel", QT_TRANSLATE_NOOP("CommandWords", "denoise, suppress noise")},
    {"actionReduced_time",
     QT_TRANSLATE_NOOP("CommandWords",
                       "reduction velocity, reduced travel times, linear moveout, flatten")},
    {"actionReduction_velocity",
     QT_TRANSLATE_NOOP("CommandWords",
                       "reduction velocity, reducing velocity, linear moveout, flatten")},
    {"actionTime_gain",
     QT_TRANSLATE_NOOP("CommandWords", "tn, t^n, amplitude recovery, spreading, amplify")},
    {"actionTime_gain_exponent",
     QT_TRANSLATE_NOOP("CommandWords", "tn, t^n, amplitude recovery, spreading, power")},
    {"actionBy_offset", QT_TRANSLATE_NOOP("CommandWords", "sort traces, common shot, distance")},
    {"actionBy_absolute_offset", QT_TRANSLATE_NOOP("CommandWords", "sort traces, distance")},
    {"actionKill_traces",
     QT_TRANSLATE_NOOP("CommandWords", "dead, bad, noisy traces, disable, delete, zero")},
    {"actionReverse_polarity", QT_TRANSLATE_NOOP("CommandWords", "flip, invert, sign, phase")},
    {"actionMute_traces", QT_TRANSLATE_NOOP("CommandWords", "silence, blank, cut noise")},
    {"actionAmplify_traces", QT_TRANSLATE_NOOP("CommandWords", "gain, scale, louder")},
    {"actionAttenuate_traces", QT_TRANSLATE_NOOP("CommandWords", "gain, scale, quieter")},
    {"actionOverlay_shots",
     QT_TRANSLATE_NOOP("CommandWords", "shear waves, SH, opposite blows, hammer, subtract, stack")},
    {"actionShot_sheet", QT_TRANSLATE_NOOP("CommandWords", "gathers, record section, plot")},
    {"actionTool_ruler", QT_TRANSLATE_NOOP("CommandWords", "measure, slope")},
    {"actionMagnifier", QT_TRANSLATE_NOOP("CommandWords", "loupe, lens")},
    {"actionFit", QT_TRANSLATE_NOOP("CommandWords", "zoom all, fit, whole shot")},
    // Picks
    {"actionAutoPick",
     QT_TRANSLATE_NOOP("CommandWords",
                       "first breaks, first arrivals, onsets, automatic picking, picker")},
    {"actionAutoPick_line",
     QT_TRANSLATE_NOOP("CommandWords",
                       "first breaks, first arrivals, onsets, automatic picking, picker")},
    {"actionAutoPick_survey",
     QT_TRANSLATE_NOOP("CommandWords",
                       "first breaks, first arrivals, onsets, automatic picking, picker")},
    {"actionTool_pick",
     QT_TRANSLATE_NOOP("CommandWords", "first breaks, first arrivals, by hand, manual picking")},
    {"actionLoad_TT",
     QT_TRANSLATE_NOOP("CommandWords", "first breaks, first arrivals, load picks, time picks")},
    {"actionExport_TravelTimes",
     QT_TRANSLATE_NOOP("CommandWords", "first breaks, first arrivals, save picks, time picks")},
    // Check
    {"actionNext_doubtful",
     QT_TRANSLATE_NOOP("CommandWords", "review, check picks, outliers, bad picks, quality")},
    {"actionPrevious_doubtful",
     QT_TRANSLATE_NOOP("CommandWords", "review, check picks, outliers, bad picks, quality")},
    {"actionCheck_recordings",
     QT_TRANSLATE_NOOP("CommandWords",
                       "quality control, qc, doctor, bad traces, dead traces, "
                       "wrong headers")},
    {"actionReciprocity", QT_TRANSLATE_NOOP("CommandWords",
                                            "reciprocal times, reverse shots, trigger errors, "
                                            "quality control, qc")},
    // Grid and start
    {"actionGrid", QT_TRANSLATE_NOOP("CommandWords", "mesh, cell size, discretisation, depth")},
    {"actionDefine_model_velocity",
     QT_TRANSLATE_NOOP("CommandWords", "starting model, initial model, velocity model, gradient")},
    {"actionStart_from_layers",
     QT_TRANSLATE_NOOP("CommandWords", "starting model, initial model, velocity model")},
    {"actionKnown_ground",
     QT_TRANSLATE_NOOP("CommandWords", "wells, drilling, constraints, a priori, soundings")},
    // Inversion
    {"actionRun_tomography_inversion",
     QT_TRANSLATE_NOOP("CommandWords",
                       "invert, calculate, iterations, velocity model, sirt, "
                       "start inversion")},
    {"actionInversion_runs",
     QT_TRANSLATE_NOOP("CommandWords", "history, earlier results, compare models")},
    {"actionSecond_look",
     QT_TRANSLATE_NOOP("CommandWords", "chi-square, chi2, misfit, quality of the inversion")},
    {"actionResiduals", QT_TRANSLATE_NOOP("CommandWords",
                                          "misfit, rms, errors of the fit, measured and computed "
                                          "times")},
    {"actionCertainty",
     QT_TRANSLATE_NOOP("CommandWords", "uncertainty, ensemble, standard deviation, confidence")},
    {"actionResolution",
     QT_TRANSLATE_NOOP("CommandWords", "checkerboard, chequerboard, spike test, sensitivity")},
    {"actionApply_smoothing", QT_TRANSLATE_NOOP("CommandWords", "smoother model, average")},
    {"actionRefraction", QT_TRANSLATE_NOOP("CommandWords",
                                           "refractors, layered model, plus minus, delay times, "
                                           "intercept times, grm, time depth")},
    {"actionP_and_S",
     QT_TRANSLATE_NOOP("CommandWords", "shear modulus, Young, elastic, stiffness")},
    // Result
    {"actionShow_rays", QT_TRANSLATE_NOOP("CommandWords", "ray paths, ray tracing")},
    {"actionShow_Information_Density_Layer",
     QT_TRANSLATE_NOOP("CommandWords", "ray coverage, hit count")},
    {"actionShow_Contour_Lines", QT_TRANSLATE_NOOP("CommandWords", "isolines, isovalues")},
    {"actionMarked_isolines", QT_TRANSLATE_NOOP("CommandWords", "contour, groundwater, bedrock")},
    {"actionAnnotations",
     QT_TRANSLATE_NOOP("CommandWords", "labels, lithology, geology, polygons, legend")},
    {"actionDepth_profile",
     QT_TRANSLATE_NOOP("CommandWords", "velocity depth function, 1-D, 1d, log")},
    {"actionFence", QT_TRANSLATE_NOOP("CommandWords", "3-D, 3d, fence diagram, crossing lines")},
    {"actionPalette",
     QT_TRANSLATE_NOOP("CommandWords", "colour scale, colors, colormap, range, legend")},
    {"actionShow_scalarbar", QT_TRANSLATE_NOOP("CommandWords", "colour bar, color bar, legend")},
    {"actionSave_style", QT_TRANSLATE_NOOP("CommandWords", "template, look, appearance")},
    {"actionApply_style", QT_TRANSLATE_NOOP("CommandWords", "template, look, appearance")},
    {"actionPrint", QT_TRANSLATE_NOOP("CommandWords", "plot, printer, page, a3, a4")},
    {"actionImages", QT_TRANSLATE_NOOP("CommandWords", "figures, png, svg, save picture")},
    {"actionPDF", QT_TRANSLATE_NOOP("CommandWords", "document")},
    {"actionODT", QT_TRANSLATE_NOOP("CommandWords", "word processor, editable report")},
    {"actionWeb_page", QT_TRANSLATE_NOOP("CommandWords", "html, interactive report")},
    {"actionCampaign_page", QT_TRANSLATE_NOOP("CommandWords", "html, several lines, report")},
    {"actionExport_DXF", QT_TRANSLATE_NOOP("CommandWords", "cad, contours")},
    {"actionExport_GeoPackage", QT_TRANSLATE_NOOP("CommandWords", "gis, shape file, gpkg")},
    {"actionExport_curtain", QT_TRANSLATE_NOOP("CommandWords", "gis, 3-D, 3d, georeferenced")},
    {"actionExport_tomographic_data", QT_TRANSLATE_NOOP("CommandWords", "xyz, ascii, velocities")},
    {"actionGridded_Data", QT_TRANSLATE_NOOP("CommandWords", "ascii, velocities, section")},
    // The program
    {"actionSettings",
     QT_TRANSLATE_NOOP("CommandWords", "preferences, feet, metres, units, memory, undo")},
    {"actionUser_guide",
     QT_TRANSLATE_NOOP("CommandWords", "manual, handbook, documentation, help")},
    {"actionHelp", QT_TRANSLATE_NOOP("CommandWords", "manual, handbook, documentation")},
};

}  // namespace

CommandWords wordsOfCommand(const QString& action) {
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows), [&action](const Row& each) {
    return action == QLatin1String(each.action);
  });
  if (row == std::end(kRows)) return {};
  return {QCoreApplication::translate(kContext, row->words), QString::fromUtf8(row->words)};
}

QStringList commandsWithWords() {
  QStringList names;
  for (const Row& row : kRows) names << QString::fromLatin1(row.action);
  return names;
}

}  // namespace talvesk
