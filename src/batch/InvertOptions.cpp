#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "tomo/GridSetup.h"

#include <algorithm>
#include <memory>

namespace talvesk {
namespace {

std::string rangeText(const Parameter<double>& parameter) {
  return "(" + plainNumber(parameter.limits.least) + " to " + plainNumber(parameter.limits.most) +
         ")";
}

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
  app.add_option_function<std::vector<std::string>>(
         "--layer",
         [&](const std::vector<std::string>& texts) {
           for (const std::string& text : texts) options.layers.push_back(readLayer(text));
           options.ownGrid = true;
         },
         "One layer of the starting model: depths of top and bottom in metres below the surface " +
             rangeText(parameters::kLayerDepth) + ", velocities at top and bottom in m/s " +
             rangeText(parameters::kLayerVelocity) +
             ". Once per "
             "layer, from the top down, each beginning with the velocity that the one above ends "
             "with "
             "(default: a model that grows with depth)")
      ->type_name("TOP:BOTTOM:VTOP:VBOTTOM")
      ->allow_extra_args(false)
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

void addRunOptions(CLI::App& app, InvertOptions& options) {
  TomographyParameters& run = options.parameters;
  const auto count = [&](const Parameter<int>& parameter, int& target) {
    addParameter(app, parameter, "N", meaningOf(parameter) + defaultOf(parameter),
                 [&target](int value) { target = value; })
        ->group("Inversion");
  };
  count(parameters::kIterations, run.externalIterations);
  count(parameters::kSolverIterations, run.solverIterations);
  count(parameters::kSmoothing, run.smoothing);
  const auto& words = parameters::kSmoothingType.words;
  app.add_option_function<std::string>(
         std::string("--") + parameters::kSmoothingType.key,
         [&](const std::string& text) { run.smoothingType = readSmoothing(text); },
         std::string(words[0]) + ", " + words[1] + ", " + words[2] + " or " + words[3] +
             " (default: " + words[parameters::kSmoothingType.initial] + ")")
      ->type_name("TYPE")
      ->group("Inversion");
  app.add_flag("--symmetric", run.symmetric,
               "Smooth as far up and down as sideways, instead of " +
                   plainNumber(parameters::kFlatness.value) + " times as far")
      ->group("Inversion");
  const auto velocity = [&](const Parameter<double>& parameter, std::optional<double>& target) {
    addParameter(app, parameter, "M/S",
                 meaningOf(parameter) + defaultOf(parameter, "that of the project, else "),
                 [&target](double value) { target = value; })
        ->group("Inversion");
  };
  velocity(parameters::kMinVelocity, options.minVelocity);
  velocity(parameters::kMaxVelocity, options.maxVelocity);
  app.add_flag("--single-thread", run.singleThread,
               "Trace rays on one processor; the results are the same")
      ->group("Inversion");
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
  CLI::Option* rays = app.add_flag("--rays", options.rays, "Draw the rays in --image");
  CLI::Option* contours =
      addNumber(app, "--contours", "N", Range<int>{0, parameters::kContours.limits.most},
                meaningOf(parameters::kContours) + " in --image and --report (default: 0)",
                [&](int value) { options.contours = value; });
  for (CLI::Option* option : {lineY, zOffset}) option->needs(gridded);
  rays->needs(image);
  CLI::Option* otte =
      addPath(app, "--otte", options.otte, "Write the picks as a travel-time exchange file");
  CLI::Option* json = addPath(app, "--json", options.json,
                              "Write the results as JSON; '-' is standard output, and then all "
                              "diagnostics go to standard error");
  CLI::Option* project = mustEndIn(
      addPath(app, "-o,--project", options.project,
              "Save the survey with its picks, traces and section as a project named *.tvsk"),
      {".tvsk"}, false);
  for (CLI::Option* option :
       {gridded, lineY, zOffset, image, rays, contours, otte, json, project}) {
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
  addElevationOptions(command, options.shots.elevations);
  const ShotOptionGroup shots = addShotOptions(command, options.shots);
  addGridOptions(command, options);
  addRunOptions(command, options);
  addOutputOptions(command, options);
  addReport(command, options.report, options.reportFields);
  CLI::Option* quiet = command.add_flag("--quiet", options.quiet, kQuietHelp);
  command
      .add_flag(
          "--verbose", options.verbose,
          "Print the messages of the readers, the picker and the engine, and lines instead of "
          "a progress bar")
      ->excludes(quiet);
  command.final_callback([inputs, shots, &options] {
    sortInputs(*inputs, shots.anyGiven(), options.input, options.shots);
    shots.check(options.shots);
    if (options.contours > 0 && options.images.empty() && options.report.empty()) {
      throw CLI::RequiresError("--contours", "--image or --report");
    }
  });
  command.footer(
      std::string("In JSON velocities are in m/s, cell by cell with row 0 at the surface, and\n"
                  "times in seconds. Ctrl-C stops after the external iteration that is running\n"
                  "and still writes the results; a second one ends the program at once.\n") +
      kExitCodes);
}

}  // namespace talvesk
