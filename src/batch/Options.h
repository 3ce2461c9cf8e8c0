#pragma once

#include "export/GriddedText.h"
#include "grid/SharpLayers.h"
#include "grid/VelocityLayers.h"
#include "io/RecordExport.h"
#include "io/TravelTimeFile.h"
#include "model/GeographicsCoord.h"
#include "model/Parameters.h"
#include "model/Recordings.h"
#include "model/SurveyedPositions.h"
#include "processing/NotchFilter.h"
#include "processing/ShotFilters.h"
#include "processing/VelocityFilter.h"
#include "refraction/elastic/ElasticLine.h"
#include "refraction/methods/MethodResult.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/EnsembleVariation.h"
#include "tomo/fitted/References.h"
#include "tomo/fitted/ResolutionRun.h"
#include "view/BlowPair.h"
#include "view/ColorPalette.h"
#include "view/GatherMapping.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace talvesk {

/// What talvesk-batch tells whoever called it.
/// The last one only of a check that is asked for it.
enum ExitCode : int { kDone = 0, kFailed = 1, kWrongUsage = 2, kDoubtful = 3 };

/// The place that stands for standard output where a path is expected.
inline constexpr const char* kStandardOutput = "-";

// Paths that were not given are empty.

/// Places of geophones and shots as surveyed.
struct SurveyedPlaceOptions {
  std::string table;                   ///< file of places
  std::optional<StationsBy> stations;  ///< none: what fits best
  SurveyedOptions placing;             ///< but for the stations
  std::string json;                    ///< of what became of them
};

struct InfoOptions {
  std::vector<std::string> files;  ///< at least one
  TravelTimeReading picks;
  std::string json;
  std::string headers;  ///< table of the headers of all traces; of shot files, or of one project
  bool samples = false;
  bool listRuns = false;
  ShotReader reader = ShotReader::kRules;  ///< whose failure is that of the command
  SurveyedPlaceOptions surveyed;           ///< of shot files, or one travel-time file or project
};

/// On what the first breaks are picked.
enum class PickFilter { kNone, kAgc, kHushel, kBand, kNotch, kVelocity };

/// Elevations for all positions of a survey.
struct ElevationOptions {
  std::string table;    ///< file of distances and elevations
  bool smooth = false;  ///< along a smooth curve between its points
};

/// How shot files become picks.
/// How first breaks are picked.
enum class PickMethod {
  kSingle,  ///< trace by trace, with a screening
  kJoint    ///< a gather at once, see processing/joint/JointPicker.h
};

struct ShotOptions {
  std::vector<std::string> files;
  ShotReader reader = ShotReader::kRules;
  PickFilter filter = PickFilter::kNone;
  BandFilter band;  ///< of kBand: one corner at least
  NotchFilter notch;
  VelocityFilter velocity;
  PickMethod method = PickMethod::kSingle;
  std::string geophones;          ///< geometry file
  std::string shots;              ///< geometry file
  std::string separator = ";";    ///< of the geometry files
  SurveyedPlaceOptions surveyed;  ///< of picks and projects, too
  ElevationOptions elevations;    ///< the same
  bool asRecorded = false;        ///< time counts from the first sample, wherever the shot was
};

struct PickOptions {
  ShotOptions shots;
  std::string otte;
  std::string sgt;
  std::string project;  ///< to save the survey in; it, `otte` or `sgt` is given
  std::string json;
  std::vector<std::string> images;
  std::size_t sheetRows = 0;  ///< of the pictures, as many shots one above the other; 0: one each
  std::size_t sheetColumns = 0;
  GatherManner manner;  ///< of the images
  bool quiet = false;
  bool verbose = false;
};

struct CheckOptions {
  std::string input;  ///< project; none: shot files
  ShotOptions shots;
  std::string json;
  std::string project;                          ///< to save the mended survey in
  double sure = parameters::kSureMend.initial;  ///< percent, of proposals to carry out
  bool strict = false;  ///< what is left with a proposal makes an exit code of its own
  bool quiet = false;
};

/// What a report says of those it concerns; empty ones are left out.
struct ReportFields {
  std::string title;
  std::string client;
  std::string site;
  std::string author;
  std::string date;  ///< empty: today
};

/// How a section is found.
enum class InversionMethod {
  kSmoothed,  ///< solver passes and a smoothing of stated size, see tomo/TomographyRun.h
  kFitted     ///< as close to the picks as their errors are, see tomo/fitted/FittedRun.h
};

/// Of `--constraints`: the known ground that the project has.
inline constexpr const char* kProjectsOwn = "project";

struct InvertOptions {
  std::string input;  ///< travel-time file or project; none: shot files
  TravelTimeReading picks;
  ShotOptions shots;
  std::optional<double> cellSize;          ///< metres; none: as proposed
  std::optional<double> depth;             ///< metres; none: half the array length
  int nodes = parameters::kNodes.initial;  ///< per cell side
  std::vector<VelocityLayer> layers;       ///< none: the grid's default model
  LayerFill layerFill;
  bool ownGrid = false;  ///< one of the above was given
  std::string run;       ///< of the project, to start from; empty: from the section that it has
  InversionMethod method = InversionMethod::kSmoothed;
  FittedSettings fitted;                   ///< but what follows, which both methods have
  std::string reference = kBestReference;  ///< of a fit: a key of References.h, or a project file
  std::string constraints;     ///< table of known ground, or kProjectsOwn; empty: held to none
  std::optional<int> members;  ///< to see how sure the section is; none: not asked
  int seed = parameters::kSeed.initial;
  std::vector<double> isovalues;                ///< m/s, whose depths are asked for
  TomographyParameters parameters;              ///< but the velocities: those are the next two
  std::optional<double> minVelocity;            ///< m/s; none: that of the survey or of the fit
  std::optional<double> maxVelocity;            ///< m/s; none: that of the survey or of the fit
  std::optional<int> iterations;                ///< none: as many as the method has of its own
  std::optional<ResolutionRequest> resolution;  ///< asked for of the section that was found
  std::string project;                          ///< to save the survey in
  std::string gridded;
  double lineY = 0.0;               ///< metres
  double zOffset = 0.0;             ///< metres
  std::string resolutionImage;      ///< picture of the first resolution test
  std::vector<std::string> images;  ///< one picture per path
  bool rays = false;
  int contours = 0;  ///< number of contour lines
  std::string report;
  ReportFields reportFields;
  std::string residuals;  ///< table
  std::string otte;
  std::string json;
  bool quiet = false;
  bool verbose = false;
};

/// How sure the section of a project is, by many members.
struct EnsembleRunOptions {
  std::string project;
  int members = 100;  ///< number of the last one
  int from = 1;       ///< number of the first one
  int seed = parameters::kSeed.initial;
  std::vector<double> isovalues;  ///< m/s, whose depths are asked for
  EnsembleVariation vary;
  unsigned threads = 0;          ///< 0: as many as there are cores
  std::string keep;              ///< file of finished members; empty: beside `out`
  std::vector<std::string> add;  ///< such files of other runs
  std::string out;               ///< project
  std::string json;
  std::string table;   ///< per cell
  std::string depths;  ///< table per isovalue and column
  bool quiet = false;

  /// Whether more is asked for than members that are kept.
  bool writesResults() const { return !(out + json + table + depths).empty(); }
};

/// How layers are proposed.
enum class ProposalMethod {
  kCurves,  ///< every curve by itself, see refraction/LayerProposal.h
  kSurvey   ///< all curves together, see refraction/SurveyProposal.h
};

/// How a layered profile is found: by the reciprocal method, or fitted to all picks of a survey.
enum class ProfileMethod { kReciprocal, kFitted };

/// Which XY the reciprocal method takes.
enum class XYRule { kGiven, kSmoothest, kMostEven };

/// How layers are interpreted beside the prescribed profile.
struct LayerMethodOptions {
  std::vector<LayerMethod> methods = {LayerMethod::kReciprocal};
  std::optional<int> bounds;  ///< interpretations of moved picks; none: as many as the methods ask
  int seed = parameters::kSeed.initial;
  XYRule xyRule = XYRule::kGiven;
};

struct RefractOptions {
  std::string input;  ///< travel-time file; none: shot files
  TravelTimeReading picks;
  ShotOptions shots;
  std::string layers;                     ///< file of marks; none: as proposed
  std::optional<ProposalMethod> propose;  ///< none: by curves, if the project has no marks
  std::uint32_t layerCount = 0;           ///< of a proposal over the survey; 0: as fits best
  std::optional<ProfileMethod> profile;   ///< none: as the proposal and the XY ask for
  std::optional<double> xy;               ///< metres; none: that of the project, else 0
  LayerMethodOptions layering;
  std::string json;
  std::string table;
  std::string misfit;                ///< table of computed times against picks
  std::string project;               ///< to save the survey and its layers in
  std::optional<double> startModel;  ///< put the layers into the grid, jumps over so many metres
  std::vector<std::string> images;   ///< one picture per path
  std::string report;
  ReportFields reportFields;
  bool quiet = false;
  bool verbose = false;

  /// What a proposal over the survey is followed by, unless an XY is asked for.
  bool isFitted() const {
    if (profile) return *profile == ProfileMethod::kFitted;
    return propose == ProposalMethod::kSurvey && !xy && layering.xyRule == XYRule::kGiven;
  }
};

/// Layers of P and S together.
struct ElasticBatchOptions {
  std::string p;  ///< projects
  std::string s;
  ElasticOptions matching;
  int bounds = 0;  ///< interpretations of moved picks; 0: no errors
  int seed = parameters::kSeed.initial;
  std::string json;
  std::string table;
  std::vector<std::string> pictures;  ///< one per path
  std::vector<std::string> sections;  ///< both sections cell by cell: tables and pictures
  ElasticQuantity sectionQuantity = ElasticQuantity::kRatio;  ///< of their pictures
  bool quiet = false;
};

/// What is written of a project for programs that draw and for maps.
struct DrawingExports {
  std::string dxf;
  bool dxfOnMap = false;              ///< in space by map coordinates, else distance and elevation
  std::vector<std::string> curtains;  ///< the cells on the map: .vtu or .csv
  std::string geoPackage;
  std::vector<double> isovalues;  ///< m/s; none: as the project shows them, else round ones

  bool any() const { return drawsLines() || !curtains.empty(); }
  bool drawsLines() const { return !(dxf + geoPackage).empty(); }
};

/// What is printed on paper of a project.
struct PrintExports {
  std::string section;
  std::string curves;
  std::string layers;
  std::string traces;  ///< of all shots
  std::string misfit;
  std::string residuals;  ///< shot by geophone
  std::string residualSection;
  double scale = 500.0;  ///< 0: as large as the sheet has room for
  std::string paper = "A3";
  bool portrait = false;
  double exaggeration = 0.0;  ///< 0: as the project shows it
  double msPerCm = 0.0;       ///< 0: as the sheet has room
  bool tiles = false;

  bool any() const {
    return !(section + curves + layers + traces + misfit + residuals + residualSection).empty();
  }
};

/// What is written of the section of a project, or of many projects together.
struct ExportOptions {
  std::vector<std::string> projects;  ///< of `index`
  std::string index;                  ///< page on many projects, or its folder; else all below
  std::string project;
  std::string run;  ///< whose section it is to be; empty: that of the project
  std::string gridded;
  GriddedTextOptions griddedText;
  std::string otte;
  std::string sgt;
  std::string residuals;                ///< table
  std::vector<std::string> refractors;  ///< a refractor of layers and section: table or picture
  std::optional<double> refractorAt;    ///< velocity that stands for it, m/s; none: middle
  bool refractorByGradient = false;     ///< its steepest gradient does
  int refractorLayer = 2;
  std::string vtk;
  std::string surfer;
  std::string certainty;  ///< table of how sure the section is
  std::string kmlLine;
  std::string kmlSection;
  DrawingExports drawings;
  std::string pickedRecords;        ///< folder for shot files with picks in their headers
  std::vector<std::string> images;  ///< one picture of the section per path
  PrintExports prints;
  std::string report;
  ReportFields reportFields;
  std::optional<geographicsCoord> geography;  ///< none: the project's
  std::string style;                          ///< file of a style to lay on the section first
  std::string palette;                        ///< by name; none: the project's current one
  std::optional<ValueRange> range;            ///< m/s; none: that of the project's current palette
  bool quiet = false;

  bool anyOutput() const {
    return !images.empty() || !refractors.empty() || drawings.any() || prints.any() ||
           !pickedRecords.empty() ||
           !(gridded + otte + sgt + residuals + vtk + surfer + certainty + kmlLine + kmlSection +
             report)
                .empty();
  }
};

struct ConvertOptions {
  std::string input;
  TravelTimeReading picks;
  SurveyedPlaceOptions surveyed;
  std::string output;
  bool quiet = false;
};

/// What two blows give, instead of the records of a survey.
struct BlowPairRequest {
  Blow first;
  Blow second;
  bool difference = false;  ///< this, or the sum, or both
  bool sum = false;
  bool balanced = false;
};

struct RecordsOptions {
  std::string project;  ///< none: shot files
  ShotOptions shots;
  std::string folder;
  RecordFormat format = RecordFormat::kSegy;
  bool together = false;  ///< in one file
  std::optional<BlowPairRequest> pair;
  bool quiet = false;
};

struct DemoOptions {
  std::string folder;
  bool quiet = false;
};

using CommandOptions = std::variant<InfoOptions, PickOptions, CheckOptions, InvertOptions,
                                    EnsembleRunOptions, RefractOptions, ElasticBatchOptions,
                                    ExportOptions, ConvertOptions, RecordsOptions, DemoOptions>;

}  // namespace talvesk
