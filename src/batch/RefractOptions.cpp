#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"

#include <memory>

namespace talvesk {

void addRefract(CLI::App& app, RefractOptions& options) {
  CLI::App& command = *app.add_subcommand("refract",
                                          "Interpret first breaks as layers by the generalised "
                                          "reciprocal method: velocities and depths "
                                          "of one or two refractors under the line");
  const auto inputs = std::make_shared<std::vector<std::string>>();
  command.add_option("INPUT", *inputs, kindsOfInput())->required();
  addPickReading(command, options.picks);
  addElevationOptions(command, options.shots.elevations);
  const ShotOptionGroup shots = addShotOptions(command, options.shots, "--pick-method");
  CLI::Option* layers = addPath(
      command, "--layers", options.layers,
      "Which layer every trace belongs to: a line per shot, a number per trace separated by "
      "';', 1 the direct wave, 2 and 3 the refractors, 0 none (default: those of the project, else "
      "as proposed from the break points of the branches)");
  layers->group("Interpretation");
  addLayerMethods(command, options);
  CLI::Option* json = addPath(command, "--json", options.json,
                              "Write the results as JSON; '-' is standard output, and then all "
                              "diagnostics go to standard error");
  CLI::Option* table = addPath(command, "--table", options.table,
                               "Write a text line per receiver: x, depths (metres), tV, tG "
                               "(seconds) and velocities (m/s) of both refractors; with other "
                               "methods or --bounds what all of them find, side by side");
  CLI::Option* image = addImages(command, options.images,
                                 "Draw the section of layers: .png, .svg or .pdf; once per "
                                 "picture");
  CLI::Option* project = mustEndIn(
      addPath(command, "--project", options.project,
              "Save the survey with its picks, traces and layers as a project named *.tvsk"),
      {".tvsk"}, false);
  for (CLI::Option* option : {json, table, image, project}) option->group("Output");
  addReport(command, options.report, options.reportFields);
  CLI::Option* quiet = command.add_flag("--quiet", options.quiet, kQuietHelp);
  command
      .add_flag("--verbose", options.verbose,
                "Print the messages of the readers, the picker and the interpretation")
      ->excludes(quiet);
  command.final_callback([inputs, shots, &options] {
    if (options.json.empty() && options.table.empty() && options.images.empty() &&
        options.project.empty() && options.report.empty()) {
      throw CLI::RequiredError("one of --json, --table, --image, --project and --report");
    }
    sortInputs(*inputs, shots.anyGiven(), options.input, options.shots);
    shots.check(options.shots);
  });
}

}  // namespace talvesk
