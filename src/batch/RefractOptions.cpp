#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/SurveyedPlaces.h"

#include <memory>

namespace talvesk {
namespace {

void addProposal(CLI::App& command, RefractOptions& options, CLI::Option* layers) {
  command
      .add_option_function<std::string>(
          "--propose",
          [&options](const std::string& text) {
            if (text != "curves" && text != "survey") {
              throw CLI::ValidationError("--propose", "'" + text + "' is none of curves, survey");
            }
            options.propose = text == "survey" ? ProposalMethod::kSurvey : ProposalMethod::kCurves;
          },
          "How layers are proposed: curves, from the break points of every curve by itself, or "
          "survey, from all picks together by their errors, which says how many layers there are "
          "and how they fit; marks of a project are then replaced (default: curves, if the "
          "project has no marks)")
      ->type_name("HOW")
      ->group("Interpretation")
      ->excludes(layers);
  addNumber<int>(command, "--layer-count", "N", {1, 3},
                 "Number of layers that --propose survey gives (default: as many as fit best)",
                 [&options](int count) { options.layerCount = static_cast<std::uint32_t>(count); })
      ->group("Interpretation");
  command
      .add_option_function<std::string>(
          "--profile",
          [&options](const std::string& text) {
            if (text != "reciprocal" && text != "fitted") {
              throw CLI::ValidationError("--profile",
                                         "'" + text + "' is none of reciprocal, fitted");
            }
            options.profile =
                text == "fitted" ? ProfileMethod::kFitted : ProfileMethod::kReciprocal;
          },
          "How depths and velocities are found: reciprocal, by the generalised reciprocal method, "
          "or fitted, so that the times computed through them are those of all picks, which needs "
          "--propose survey (default: fitted with --propose survey where no --xy is given, else "
          "reciprocal)")
      ->type_name("HOW")
      ->group("Interpretation");
}

}  // namespace

void addRefract(CLI::App& app, RefractOptions& options) {
  CLI::App& command = *app.add_subcommand("refract",
                                          "Interpret first breaks as layers by the generalised "
                                          "reciprocal method: velocities and depths "
                                          "of one or two refractors under the line");
  const auto inputs = std::make_shared<std::vector<std::string>>();
  command.add_option("INPUT", *inputs, kindsOfInput())->required();
  addPickReading(command, options.picks);
  addSurveyedOptions(command, options.shots.surveyed);
  addElevationOptions(command, options.shots.elevations);
  const ShotOptionGroup shots = addShotOptions(command, options.shots, "--pick-method");
  CLI::Option* layers = addPath(
      command, "--layers", options.layers,
      "Which layer every trace belongs to: a line per shot, a number per trace separated by "
      "';', 1 the direct wave, 2 and 3 the refractors, 0 none (default: those of the project, else "
      "as proposed from the break points of the branches)");
  addProposal(command, options, layers);
  layers->group("Interpretation");
  addLayerMethods(command, options);
  CLI::Option* json = addPath(command, "--json", options.json,
                              "Write the results as JSON; '-' is standard output, and then all "
                              "diagnostics go to standard error");
  CLI::Option* table = addPath(command, "--table", options.table,
                               "Write a text line per receiver: x, depths (metres), tV, tG "
                               "(seconds) and velocities (m/s) of both refractors; with other "
                               "methods or --bounds, below it, what all of them find, side by "
                               "side");
  CLI::Option* misfit = addPath(
      command, "--misfit", options.misfit,
      "Write how arrivals computed through the profile fit the picks, a text line per shot and "
      "layer: number of picks, RMS and mean (ms), chi2 by the errors of the picks");
  CLI::Option* image = addImages(command, options.images,
                                 "Draw the section of layers: .png, .svg or .pdf; once per "
                                 "picture");
  CLI::Option* project = mustEndIn(
      addPath(command, "-o,--project", options.project,
              "Save the survey with its picks, traces and layers as a project named *.tvsk"),
      {".tvsk"}, false);
  CLI::Option* start =
      command
          .add_option_function<std::string>(
              "--start-model",
              [&options](const std::string& text) {
                options.startModel = readGrading("--start-model", text);
              },
              "Put the layered profile into the grid of --project, so that an inversion starts "
              "from it: sharp, each cell in the layer of its middle, or graded:M, jumps spread "
              "over M metres " +
                  rangeText(parameters::kGrading) +
                  ". A survey without a grid gets the one that 'invert' proposes")
          ->type_name("sharp|graded:M")
          ->needs(project);
  for (CLI::Option* option : {json, table, misfit, image, project, start}) option->group("Output");
  addReport(command, options.report, options.reportFields);
  addFeet(command);
  CLI::Option* quiet = command.add_flag("--quiet", options.quiet, kQuietHelp);
  command
      .add_flag("--verbose", options.verbose,
                "Print the messages of the readers, the picker and the interpretation")
      ->excludes(quiet);
  command.final_callback([inputs, shots, &options] {
    if (options.json.empty() && options.table.empty() && options.misfit.empty() &&
        options.images.empty() && options.project.empty() && options.report.empty()) {
      throw CLI::RequiredError("one of --json, --table, --misfit, --image, --project and --report");
    }
    if (options.layerCount > 0 && options.propose != ProposalMethod::kSurvey) {
      throw CLI::RequiredError("--layer-count: --propose survey");
    }
    if (options.profile == ProfileMethod::kFitted) {
      if (options.propose != ProposalMethod::kSurvey) {
        throw CLI::RequiredError("--profile fitted: --propose survey");
      }
      if (options.xy || options.layering.xyRule != XYRule::kGiven) {
        throw CLI::ExcludesError("--profile fitted", "--xy");
      }
    }
    sortInputs(*inputs, shots.anyGiven(), options.input, options.shots);
    shots.check(options.shots);
  });
}

}  // namespace talvesk
