#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/ProjectFiles.h"
#include "batch/SurveyedPlaces.h"
#include "tomo/GridSetup.h"

#include <algorithm>
#include <memory>

namespace talvesk {
namespace {

VelocityLayer readLayer(const std::string& text) {
  const auto fields = splitFields(text, ':');
  if (fields.size() != 4 || text.back() == ':') {
    throw CLI::ValidationError("--layer", "'" + text + "' is not TOP:BOTTOM:VTOP:VBOTTOM");
  }
  const auto field = [&](std::size_t i, Range<double> range) {
    return numberWithin("--layer " + text, std::string(fields[i]), range);
  };
  const Range<double> depth = rangeOf(parameters::kLayerDepth);
  const Range<double> velocity = rangeOf(parameters::kLayerVelocity);
  VelocityLayer layer;
  layer.initialDepth = field(0, depth);
  layer.finalDepth = field(1, depth);
  layer.initialVelocity = field(2, velocity);
  layer.finalVelocity = field(3, velocity);
  if (layer.finalDepth <= layer.initialDepth) {
    throw CLI::ValidationError("--layer", "'" + text + "': the bottom must be deeper than the top");
  }
  return layer;
}

void addGridOptions(CLI::App& app, InvertOptions& options) {
  using parameters::kCellSize, parameters::kDepth, parameters::kNodes;
  addParameter(app, kCellSize, "M",
               meaningOf(kCellSize) +
                   " (default: a quarter of the smallest geophone spacing, at least " +
                   plainNumber(kCellSize.limits.least) + ")",
               [&](double value) {
                 options.cellSize = value;
                 options.ownGrid = true;
               })
      ->group("Grid");
  addParameter(app, kDepth, "M",
               meaningOf(kDepth) + ", at most the array length (default: half the array length)",
               [&](double value) {
                 options.depth = value;
                 options.ownGrid = true;
               })
      ->group("Grid");
  addParameter(
      app, kNodes, "N",
      meaningOf(kNodes) + ", at least " + plainNumber(kNodes.limits.least) + defaultOf(kNodes),
      [&](int value) {
        options.nodes = value;
        options.ownGrid = true;
      })
      ->group("Grid");
  CLI::Option* layer =
      app.add_option_function<std::vector<std::string>>(
             "--layer",
             [&](const std::vector<std::string>& texts) {
               for (const std::string& text : texts) options.layers.push_back(readLayer(text));
               options.ownGrid = true;
             },
             "One layer of the starting model: depths of top and bottom in metres below the "
             "surface " +
                 rangeText(parameters::kLayerDepth) + ", velocities at top and bottom in m/s " +
                 rangeText(parameters::kLayerVelocity) +
                 ". Once per "
                 "layer, from the top down, each beginning with the velocity that the one above "
                 "ends "
                 "with "
                 "(default: a model that grows with depth)")
          ->type_name("TOP:BOTTOM:VTOP:VBOTTOM")
          ->allow_extra_args(false)
          ->group("Grid");
  app.add_option_function<std::string>(
         "--sharp-layers",
         [&](const std::string& text) {
           options.layerFill = {false, readGrading("--sharp-layers", text)};
         },
         "Put the layers of --layer into the grid as they are, not by the spline through them, "
         "which swings where velocities jump: sharp, or graded:M, jumps spread over M metres " +
             rangeText(parameters::kGrading))
      ->type_name("sharp|graded:M")
      ->needs(layer)
      ->group("Grid");
}

SmoothingType readSmoothing(const std::string& text) {
  const auto& words = parameters::kSmoothingType.words;
  const auto found = std::find(words.begin(), words.end(), text);
  if (found != words.end()) return smoothingTypeOf(static_cast<int>(found - words.begin()));
  std::string all;
  for (const char* word : words) all += (all.empty() ? "" : ", ") + std::string(word);
  throw CLI::ValidationError("--smoothing-type", "'" + text + "' is none of " + all);
}

InversionMethod readInversionMethod(const std::string& text) {
  if (text == "smoothed") return InversionMethod::kSmoothed;
  if (text == "fitted") return InversionMethod::kFitted;
  throw CLI::ValidationError("--method", "'" + text +
                                             "' is none of smoothed, fitted (how first breaks are "
                                             "picked is said by --pick-method)");
}

/// "A,B": a floor in milliseconds and a share in percent.
PickErrorRule readErrors(const std::string& text) {
  const auto fields = splitFields(text, ',');
  if (fields.size() != 2 || text.back() == ',') {
    throw CLI::ValidationError("--sigma", "'" + text + "' is not A,B");
  }
  const auto field = [&](std::size_t i, const Parameter<double>& parameter) {
    return numberWithin("--sigma " + text, std::string(fields[i]), rangeOf(parameter));
  };
  return {field(0, parameters::kErrorFloor) / 1000.0, field(1, parameters::kErrorShare) / 100.0};
}

ResolutionPattern readPattern(const std::string& text, const std::string& word) {
  if (word == "checkerboard") return ResolutionPattern::kCheckerboard;
  if (word == "spike") return ResolutionPattern::kSpikes;
  if (word == "layer") return ResolutionPattern::kLayers;
  throw CLI::ValidationError(
      "--resolution", "'" + text + "': '" + word + "' is none of checkerboard, spike, layer");
}

/// "PATTERN:SIZE:STRENGTH": metres, several with commas or "all", and percent.
ResolutionRequest readResolution(const std::string& text) {
  const auto fields = splitFields(text, ':');
  if (fields.size() != 3 || text.back() == ':') {
    throw CLI::ValidationError("--resolution", "'" + text + "' is not PATTERN:SIZE:STRENGTH");
  }
  const std::string what = "--resolution " + text;
  ResolutionRequest request;
  request.test.pattern = readPattern(text, std::string(fields[0]));
  request.trySizes = fields[1] == "all";
  if (!request.trySizes) {
    for (const std::string_view size : splitFields(fields[1], ',')) {
      request.sizes.push_back(
          numberWithin(what, std::string(size), rangeOf(parameters::kPatternSize)));
    }
    request.test.size = request.sizes.front();
  }
  request.test.strength =
      numberWithin(what, std::string(fields[2]), rangeOf(parameters::kPatternStrength)) / 100.0;
  return request;
}

void addResolutionOption(CLI::App& app, InvertOptions& options) {
  CLI::Option* resolution =
      app.add_option_function<std::string>(
             "--resolution",
             [&](const std::string& text) { options.resolution = readResolution(text); },
             "Test afterwards what the survey resolves: disturb the section by a checkerboard, "
             "spike or layer of SIZE metres, STRENGTH percent faster and slower, and find it again "
             "from the times through it with noise by the picks' errors. Several sizes with "
             "commas between them, or 'all', tell the smallest that is resolved at each depth")
          ->type_name("PATTERN:SIZE:STRENGTH");
  resolution->group("Inversion");
  CLI::Option* image =
      addPath(app, "--resolution-image", options.resolutionImage,
              "Draw the first test of --resolution: true and recovered side by side and their "
              "correlation by depth; .png, .svg or .pdf");
  mustEndIn(image, {".png", ".svg", ".pdf"}, true)->needs(resolution)->group("Inversion");
}

std::string readReference(const std::string& text) {
  const std::optional<ReferenceKind> kind = referenceKindOf(text);
  if (text == kBestReference || isProjectFile(text)) return text;
  if (kind && kind != ReferenceKind::kFile) return text;
  throw CLI::ValidationError("--reference", "'" + text +
                                                "' is none of best, gradient, two-layers, "
                                                "three-layers, overburden, default, start, "
                                                "layers and no project (*.tvsk)");
}

/// What only a fit to the errors of the picks has.
/// \return the options that it alone has
std::vector<CLI::Option*> addFitOptions(CLI::App& app, InvertOptions& options) {
  app.add_option_function<std::string>(
         "--sigma", [&](const std::string& text) { options.fitted.errors = readErrors(text); },
         "Errors of picks that state none, one standard deviation: A milliseconds, or B percent "
         "of the time where that is more; chi-square is measured by them (default: " +
             plainNumber(parameters::kErrorFloor.initial) + "," +
             plainNumber(parameters::kErrorShare.initial) + ")")
      ->type_name("A,B")
      ->group("Inversion");
  CLI::Option* blocky =
      app.add_flag("--blocky", options.fitted.fit.blocky,
                   "Of a fitted section: few sharp steps rather than gentle slopes");
  CLI::Option* statics =
      app.add_flag("--statics", options.fitted.fit.statics,
                   "With --method fitted: find a time shift of every shot, too, zero on the whole");
  CLI::Option* trigger =
      addNumber(app, "--trigger-error", "MS", Range<double>{0.1, 1000.0},
                "With --statics: how far shots are thought to be off (default: " +
                    plainNumber(1000.0 * options.fitted.fit.triggerError) + ")",
                [&](double value) { options.fitted.fit.triggerError = value / 1000.0; });
  trigger->needs(statics);
  CLI::Option* plain = app.add_flag_callback(
      "--no-robust", [&] { options.fitted.fit.robust = false; },
      "With --method fitted: let picks that are far off count by the square of their residuals");
  CLI::Option* reference =
      app.add_option_function<std::string>(
             "--reference",
             [&](const std::string& text) { options.reference = readReference(text); },
             "With --method fitted: what the section starts from and departs from no more than the "
             "picks ask for. gradient, two-layers, three-layers and overburden (a velocity that "
             "grows with depth over a refractor) are made from the picks; default is the model of "
             "a new grid, start what the grid has, layers the layered interpretation of the "
             "project, a project FILE (.tvsk) its section; best takes that of the picks whose "
             "times "
             "come nearest to them (default: best)")
          ->type_name("MODEL");
  CLI::Option* constraints = addPath(
      app, "--constraints", options.constraints,
      "With --method fitted: hold the section to what is known of the ground, a table of "
      "boreholes, "
      "depths and bodies of known velocity; 'project' takes what the project knows. --json tells "
      "how the section goes with it; chi-square is of the picks alone");
  const std::vector<CLI::Option*> own = {blocky, statics, trigger, plain, reference, constraints};
  for (CLI::Option* option : own) option->group("Inversion");
  return own;
}

/// \return the options, which go with a fitted section alone
std::vector<CLI::Option*> addCertaintyOptions(CLI::App& app, InvertOptions& options) {
  using parameters::kMembers, parameters::kSeed;
  CLI::Option* members = addParameter(
      app, kMembers, "N",
      "With --method fitted: say how sure the section is, by N sections of picks that are moved by "
      "their errors, from all models that explain them; --json has median, 16 and 84 percent",
      [&](int value) { options.members = value; });
  CLI::Option* seed = addParameter(app, kSeed, "N", meaningOf(kSeed) + defaultOf(kSeed),
                                   [&](int value) { options.seed = value; });
  const std::string name = "--certainty-depths";
  CLI::Option* depths =
      app.add_option_function<std::string>(
             name,
             [&options, name](const std::string& text) {
               options.isovalues = velocitiesWithin(name, text);
             },
             "With --certainty: velocities in m/s; --json has the depths at which they are reached")
          ->type_name("V,V...");
  for (CLI::Option* option : {seed, depths}) option->needs(members);
  for (CLI::Option* option : {members, seed, depths}) option->group("Inversion");
  return {members, seed, depths};
}

void addThreads(CLI::App& app, TomographyParameters& run) {
  CLI::Option* single = app.add_flag("--single-thread", run.singleThread,
                                     "Trace rays on one processor; the results are the same")
                            ->group("Inversion");
  addThreadCount(app,
                 "Pick, trace and solve on so many processors at once; the results are the same "
                 "(default: as many as there are cores)",
                 [&](unsigned count) {
                   run.threads = count;
                   run.singleThread = count == 1;
                 })
      ->group("Inversion")
      ->excludes(single);
}

/// \return the options that only the smoothed method has
std::vector<CLI::Option*> addRunOptions(CLI::App& app, InvertOptions& options) {
  TomographyParameters& run = options.parameters;
  std::vector<CLI::Option*> own;
  app.add_option_function<std::string>(
         "--method", [&](const std::string& text) { options.method = readInversionMethod(text); },
         "How the section is found: smoothed, by solver passes and a smoothing of stated size; "
         "fitted, as close to the picks as their errors are and no closer, stopping by itself "
         "(default: smoothed)")
      ->type_name("METHOD")
      ->group("Inversion");
  addParameter(app, parameters::kIterations, "N",
               meaningOf(parameters::kIterations) + defaultOf(parameters::kIterations) +
                   "; with --method fitted at most so many (default: " +
                   plainNumber(options.fitted.fit.mostIterations) + ")",
               [&](int value) { options.iterations = value; })
      ->group("Inversion");
  const auto count = [&](const Parameter<int>& parameter, int& target) {
    own.push_back(addParameter(app, parameter, "N", meaningOf(parameter) + defaultOf(parameter),
                               [&target](int value) { target = value; }));
    own.back()->group("Inversion");
  };
  count(parameters::kSolverIterations, run.solverIterations);
  count(parameters::kSmoothing, run.smoothing);
  const auto& words = parameters::kSmoothingType.words;
  own.push_back(app.add_option_function<std::string>(
                       std::string("--") + parameters::kSmoothingType.key,
                       [&](const std::string& text) { run.smoothingType = readSmoothing(text); },
                       std::string(words[0]) + ", " + words[1] + ", " + words[2] + " or " +
                           words[3] + " (default: " + words[parameters::kSmoothingType.initial] +
                           ")")
                    ->type_name("TYPE")
                    ->group("Inversion"));
  own.push_back(app.add_flag("--symmetric", run.symmetric,
                             "Smooth as far up and down as sideways, instead of " +
                                 plainNumber(parameters::kFlatness.value) + " times as far")
                    ->group("Inversion"));
  own.push_back(
      app.add_flag("--coarse-to-fine", run.coarseToFine,
                   "Let the smoothing radius shrink to a fifth over the external "
                   "iterations, and keep the one whose section fits the picks best, gross "
                   "errors left out")
          ->group("Inversion"));
  const auto velocity = [&](const Parameter<double>& parameter, double fitted,
                            std::optional<double>& target) {
    addParameter(app, parameter, "M/S",
                 meaningOf(parameter) + defaultOf(parameter, "that of the project, else ") +
                     "; with --method fitted " + plainNumber(fitted),
                 [&target](double value) { target = value; })
        ->group("Inversion");
  };
  velocity(parameters::kMinVelocity, options.fitted.fit.minVelocity, options.minVelocity);
  velocity(parameters::kMaxVelocity, options.fitted.fit.maxVelocity, options.maxVelocity);
  addThreads(app, run);
  return own;
}

/// Throws CLI::ValidationError for options that the method has no use for.
void checkMethod(const InvertOptions& options, const std::vector<CLI::Option*>& smoothed,
                 const std::vector<CLI::Option*>& fitted) {
  const bool fits = options.method == InversionMethod::kFitted;
  for (const CLI::Option* option : fits ? smoothed : fitted) {
    if (option->count() == 0) continue;
    throw CLI::ValidationError(option->get_name(), std::string("does not go with --method ") +
                                                       (fits ? "fitted" : "smoothed"));
  }
}

void addOutputOptions(CLI::App& app, InvertOptions& options) {
  CLI::Option* gridded = addPath(app, "--gridded", options.gridded,
                                 "Write a text line 'X Y Z V' per drawn cell: metres and m/s");
  CLI::Option* lineY = addNumber(app, "--line-y", "M", Range<double>{-1e9, 1e9},
                                 "Y of every line of --gridded, metres (default: 0)",
                                 [&](double value) { options.lineY = value; });
  CLI::Option* zOffset = addNumber(app, "--z-offset", "M", Range<double>{-1e9, 1e9},
                                   "Added to Z in --gridded, metres (default: 0)",
                                   [&](double value) { options.zOffset = value; });
  CLI::Option* image =
      addImages(app, options.images, "Draw the section: .png, .svg or .pdf; once per picture");
  CLI::Option* rays = app.add_flag(
      "--rays", options.rays,
      "Draw the rays in --image; those of a fitted section along the nodes of the grid, "
      "not the finer ones that its times are of");
  CLI::Option* contours =
      addNumber(app, "--contours", "N", Range<int>{0, parameters::kContours.limits.most},
                meaningOf(parameters::kContours) + " in --image and --report (default: 0)",
                [&](int value) { options.contours = value; });
  for (CLI::Option* option : {lineY, zOffset}) option->needs(gridded);
  rays->needs(image);
  CLI::Option* otte =
      addPath(app, "--otte", options.otte, "Write the picks as a travel-time exchange file");
  CLI::Option* residuals = addPath(app, "--residuals", options.residuals, kResidualsHelp);
  CLI::Option* json = addPath(app, "--json", options.json,
                              "Write the results as JSON; '-' is standard output, and then all "
                              "diagnostics go to standard error");
  CLI::Option* project = mustEndIn(
      addPath(app, "-o,--project", options.project,
              "Save the survey with its picks, traces and section as a project named *.tvsk"),
      {".tvsk"}, false);
  for (CLI::Option* option :
       {gridded, lineY, zOffset, image, rays, contours, otte, residuals, json, project}) {
    option->group("Output");
  }
}

}  // namespace

void addInvert(CLI::App& app, InvertOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "invert",
      "Invert first breaks into a velocity section of the ground: the picks of a travel-time file "
      "or a project, or those that 'pick' finds on shot files");
  const auto inputs = std::make_shared<std::vector<std::string>>();
  command
      .add_option("INPUT", *inputs,
                  kindsOfInput() +
                      ". A project brings its grid and velocities to start from, "
                      "unless an option of the grid is given")
      ->required();
  addPickReading(command, options.picks);
  addSurveyedOptions(command, options.shots.surveyed);
  addElevationOptions(command, options.shots.elevations);
  const ShotOptionGroup shots = addShotOptions(command, options.shots, "--pick-method");
  addGridOptions(command, options);
  command
      .add_option("--use", options.run,
                  "The inversion run of the project whose grid and velocities it starts from, by "
                  "its number or name (default: that which the project shows)")
      ->type_name("RUN")
      ->group("Inversion");
  const auto smoothed = addRunOptions(command, options);
  auto fitted = addFitOptions(command, options);
  for (CLI::Option* option : addCertaintyOptions(command, options)) fitted.push_back(option);
  addResolutionOption(command, options);
  addOutputOptions(command, options);
  addReport(command, options.report, options.reportFields);
  addFeet(command);
  CLI::Option* quiet = command.add_flag("--quiet", options.quiet, kQuietHelp);
  command
      .add_flag(
          "--verbose", options.verbose,
          "Print the messages of the readers, the picker and the engine, and lines instead of "
          "a progress bar")
      ->excludes(quiet);
  command.final_callback([inputs, shots, smoothed, fitted, &options] {
    checkMethod(options, smoothed, fitted);
    sortInputs(*inputs, shots.anyGiven(), options.input, options.shots);
    shots.check(options.shots);
    if (!options.run.empty() && !isProjectFile(options.input)) {
      throw CLI::ValidationError("--use", "only a project keeps inversion runs");
    }
    if (options.constraints == kProjectsOwn && !isProjectFile(options.input)) {
      throw CLI::ValidationError("--constraints", "there is no project that knows of ground");
    }
    if (!options.run.empty() && options.ownGrid) {
      throw CLI::ValidationError("--use", "does not go with a grid of its own");
    }
    if (options.contours > 0 && options.images.empty() && options.report.empty()) {
      throw CLI::RequiresError("--contours", "--image or --report");
    }
  });
  command.footer(
      std::string("In JSON velocities are in m/s, cell by cell with row 0 at the surface, and\n"
                  "times in seconds. Ctrl-C stops after the external iteration that is running\n"
                  "(at once with --method fitted) and still writes the results; a second one ends "
                  "the program at once.\n") +
      kExitCodes);
}

}  // namespace talvesk
