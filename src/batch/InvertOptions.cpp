#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "tomo/GridSetup.h"

#include <algorithm>
#include <memory>

namespace talvesk {
namespace {

constexpr int kLargestInt = 2147483647;

VelocityLayer readLayer(const std::string& text) {
  const auto fields = splitFields(text, ':');
  if (fields.size() != 4 || text.back() == ':') {
    throw CLI::ValidationError("--layer", "'" + text + "' is not TOP:BOTTOM:VTOP:VBOTTOM");
  }
  const auto field = [&](std::size_t i, Range<double> range) {
    return numberWithin("--layer " + text, std::string(fields[i]), range);
  };
  constexpr Range<double> kDepth{0.0, 999.99};
  constexpr Range<double> kVelocity{1.0, 999999.0};
  VelocityLayer layer;
  layer.initialDepth = field(0, kDepth);
  layer.finalDepth = field(1, kDepth);
  layer.initialVelocity = field(2, kVelocity);
  layer.finalVelocity = field(3, kVelocity);
  if (layer.finalDepth <= layer.initialDepth) {
    throw CLI::ValidationError("--layer", "'" + text + "': the bottom must be deeper than the top");
  }
  return layer;
}

void addGridOptions(CLI::App& app, InvertOptions& options) {
  addNumber(
      app, "--cell-size", "M", Range<double>{kSmallestCell, 1e6},
      "Side of the square cells, metres (default: a quarter of the smallest geophone spacing, at "
      "least 0.1)",
      [&](double value) {
        options.cellSize = value;
        options.ownGrid = true;
      })
      ->group("Grid");
  addNumber(app, "--depth", "M", Range<double>{0.0, 1e6},
            "Depth of the grid below the surface, metres, at most the array length "
            "(default: half the array length)",
            [&](double value) {
              options.depth = value;
              options.ownGrid = true;
            })
      ->group("Grid");
  addNumber(app, "--nodes", "N", Range<int>{6, 1000},
            "Nodes per cell side, at least 6 (default: 6)",
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
         "One layer of the starting model: depths of top and bottom in metres below the surface "
         "(0 to 999.99), velocities at top and bottom in m/s (1 to 999999). Once per "
         "layer, from the top down, each beginning with the velocity that the one above ends with "
         "(default: a model that grows with depth)")
      ->type_name("TOP:BOTTOM:VTOP:VBOTTOM")
      ->allow_extra_args(false)
      ->group("Grid");
}

void addRunOptions(CLI::App& app, InvertOptions& options) {
  TomographyParameters& run = options.parameters;
  const auto count = [&](const char* name, int& target, const std::string& help) {
    addNumber(app, name, "N", Range<int>{1, kLargestInt}, help, [&target](int value) {
      target = value;
    })->group("Inversion");
  };
  count("--iterations", run.externalIterations,
        "External iterations, each with new rays (default: 10)");
  count("--solver-iterations", run.solverIterations,
        "Solver iterations on the rays of one external iteration (default: 20)");
  count("--smoothing", run.smoothing, "Smoothing radius, cells (default: 5)");
  app.add_option_function<std::string>(
         "--smoothing-type",
         [&](const std::string& text) {
           if (text == "uniform") {
             run.smoothingType = SmoothingType::kUniform;
           } else if (text == "linear") {
             run.smoothingType = SmoothingType::kLinear;
           } else if (text == "gaussian") {
             run.smoothingType = SmoothingType::kGaussian;
           } else if (text == "ray") {
             run.smoothingType = SmoothingType::kRayBased;
           } else {
             throw CLI::ValidationError("--smoothing-type", "'" + text +
                                                                "' is none of uniform, linear, "
                                                                "gaussian, ray");
           }
         },
         "uniform, linear, gaussian or ray (default: ray)")
      ->type_name("TYPE")
      ->group("Inversion");
  app.add_flag("--symmetric", run.symmetric,
               "Smooth as far up and down as sideways, instead of 0.7 times as far")
      ->group("Inversion");
  const auto velocity = [&](const char* name, std::optional<double>& target,
                            const std::string& help) {
    addNumber(app, name, "M/S", Range<double>{1.0, 999999999.0}, help, [&target](double value) {
      target = value;
    })->group("Inversion");
  };
  velocity("--min-velocity", options.minVelocity,
           "Least velocity of a cell, m/s (default: that of the project, else 250)");
  velocity("--max-velocity", options.maxVelocity,
           "Greatest velocity of a cell, m/s (default: that of the project, else 3500)");
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
      addNumber(app, "--contours", "N", Range<int>{0, 100},
                "Number of contour lines of velocity in --image and --report (default: 0)",
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
    sortInputs(*inputs, shots.anyGiven(), options.input, options.shots.files);
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
