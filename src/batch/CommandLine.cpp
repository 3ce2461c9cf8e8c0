#include "batch/CommandLine.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/Manual.h"
#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/ProjectFiles.h"
#include "batch/SurveyedPlaces.h"
#include "figures/GatherSheet.h"
#include "io/FileFormats.h"
#include "model/GatherParameters.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

void addInfo(CLI::App& app, InfoOptions& info) {
  CLI::App& command =
      *app.add_subcommand("info", "Tell what travel-time files, shot files and projects hold");
  command
      .add_option("FILE", info.files,
                  "Travel-time files (" + travelTimeSuffixes() + "), shot files (" +
                      shotSuffixes() + ") and projects (.tvsk), read in this order")
      ->required();
  CLI::Option* json =
      addPath(command, "--json", info.json,
              "Write positions (metres) and times (seconds) as JSON; '-' is standard output. "
              "Several files make one array");
  addPickReading(command, info.picks);
  addSurveyedOptions(command, info.surveyed);
  command.add_flag("--samples", info.samples, "Write the samples of shot files, too")->needs(json);
  CLI::Option* list = command.add_flag(
      "--list", info.listRuns,
      "List the inversion runs that projects keep, the one that is shown with a star; --json has "
      "them in any case");
  CLI::Option* headers = mustEndIn(
      addPath(command, "--headers", info.headers,
              "Write all that is known of every trace as a table (CSV), with the fields that the "
              "headers of the shot files name: of shot files, read as --reader says, or of one "
              "project; with --positions where they stand by that table, beside what the files "
              "say"),
      {".csv"}, true);
  addReader(command, info.reader)
      ->description(
          "By what shot files must be readable: rules, as this program always has; standard, by "
          "the "
          "published standard of their format, whatever their suffix (default: rules). What either "
          "makes of a file is told in any case");
  command.final_callback([&info, list, headers] {
    const auto isShot = [&info](const std::string& file) { return isShotFile(file, info.reader); };
    if (info.samples && std::none_of(info.files.begin(), info.files.end(), isShot)) {
      throw CLI::ValidationError("--samples", "only shot files have samples to write");
    }
    const bool oneProject = info.files.size() == 1 && isProjectFile(info.files.front());
    const bool shots = std::all_of(info.files.begin(), info.files.end(), isShot);
    if (headers->count() > 0 && !oneProject && !shots) {
      throw CLI::ValidationError("--headers", "it takes shot files, or one project");
    }
    if (!info.surveyed.table.empty() && !info.json.empty() && shots) {
      throw CLI::ValidationError("--positions",
                                 "--json tells of shot files what stands in them; ask for the "
                                 "places of the table with --headers or --positions-json");
    }
    if (list->count() > 0 && std::none_of(info.files.begin(), info.files.end(), isProjectFile)) {
      throw CLI::ValidationError("--list", "only projects have inversion runs to list");
    }
    if (!info.surveyed.table.empty() && info.files.size() > 1 && !shots) {
      throw CLI::ValidationError("--positions",
                                 "a table is of one line: it goes with shot files, which make one, "
                                 "or with one travel-time file or project");
    }
  });
}

/// "2x3".
void readSheet(const std::string& text, PickOptions& pick) {
  const std::vector<std::string_view> parts = splitFields(text, 'x');
  double rows = 0.0;
  double columns = 0.0;
  const auto fits = [](double count, std::size_t most) {
    return count >= 1.0 && count <= static_cast<double>(most) && count == std::floor(count);
  };
  const bool read = parts.size() == 2 && parseWholeDouble(parts[0], rows) == NumberError::kNone &&
                    parseWholeDouble(parts[1], columns) == NumberError::kNone;
  if (!read || !fits(rows, GatherSheetOptions::kMostRows) ||
      !fits(columns, GatherSheetOptions::kMostColumns)) {
    throw CLI::ValidationError("--sheet", "'" + text + "' is no 2x3, at most 10x10");
  }
  pick.sheetRows = static_cast<std::size_t>(rows);
  pick.sheetColumns = static_cast<std::size_t>(columns);
}

OffsetOrder readOffsetOrder(const std::string& text) {
  if (text == "signed") return OffsetOrder::kSigned;
  if (text == "absolute") return OffsetOrder::kAbsolute;
  throw CLI::ValidationError("--by-offset", "'" + text + "' is none of signed, absolute");
}

/// How the traces of --image are drawn.
void addGatherManner(CLI::App& command, GatherManner& manner, CLI::Option* image) {
  using namespace parameters;
  const auto add = [image](CLI::Option* option) { option->needs(image); };
  add(command
          .add_option_function<std::string>(
              "--by-offset",
              [&manner](const std::string& text) { manner.byOffset = readOffsetOrder(text); },
              "Put the traces of --image by their offset: signed, geophone minus shot; absolute, "
              "either side over the other")
          ->type_name("ORDER"));
  add(addParameter(command, kReduction, "M/S",
                   std::string("Draw --image in reduced time t - |x|/V. ") + kReduction.help,
                   [&manner](double velocity) { manner.reduction = velocity; }));
  add(addParameter(command, kTimeGain, "N", std::string("Of --image only. ") + kTimeGain.help,
                   [&manner](double exponent) { manner.timeGain = exponent; }));
}

void addPick(CLI::App& app, PickOptions& pick) {
  CLI::App& command =
      *app.add_subcommand("pick", "Find the first breaks of shot files and drop implausible ones");
  command.add_option("SHOTS", pick.shots.files, "Shot files: " + shotSuffixes())->required();
  addSurveyedOptions(command, pick.shots.surveyed);
  addElevationOptions(command, pick.shots.elevations);
  const ShotOptionGroup shots = addShotOptions(command, pick.shots);
  mustEndIn(addPath(command, "-o,--otte", pick.otte,
                    "The travel-time exchange file to write, named *.otte; not needed with "
                    "--sgt or --project"),
            {".otte"}, false);
  mustEndIn(addPath(command, "--sgt", pick.sgt, kUnifiedHelp), {".sgt"}, false);
  mustEndIn(addPath(command, "--project", pick.project,
                    "Save the survey with its picks and traces as a project named *.tvsk"),
            {".tvsk"}, false);
  addPath(command, "--json", pick.json,
          "Write positions (metres) and picks (seconds, -99 is none) as JSON; '-' is standard "
          "output, and then all diagnostics go to standard error");
  CLI::Option* image =
      addImages(command, pick.images,
                "Draw the traces with their picks: a .pdf with a page per shot, or a .png or .svg "
                "per shot, numbered");
  CLI::Option* sheet =
      command
          .add_option_function<std::string>(
              "--sheet", [&pick](const std::string& text) { readSheet(text, pick); },
              "Several shots on each sheet of --image, with one axis of time: ROWSxCOLUMNS, 2x3; "
              "at most 10x10; on A4, and on larger paper where more than 9 shots need it")
          ->type_name("ROWSxCOLUMNS");
  addGatherManner(command, pick.manner, image);
  addFeet(command);
  CLI::Option* quiet = command.add_flag("--quiet", pick.quiet, kQuietHelp);
  command.add_flag("--verbose", pick.verbose, "Print the messages of the readers and the picker")
      ->excludes(quiet);
  command.final_callback([shots, sheet, &pick] {
    if (sheet->count() > 0 && pick.images.empty()) {
      throw CLI::ValidationError("--sheet", "only --image draws sheets");
    }
    if ((pick.otte + pick.sgt + pick.project).empty()) {
      throw CLI::RequiredError("--otte, --sgt or --project");
    }
    shots.check(pick.shots);
  });
}

void addCheck(CLI::App& app, CheckOptions& check) {
  CLI::App& command = *app.add_subcommand(
      "check", "Look for what is doubtful about recordings: positions, triggers, traces");
  command
      .add_option("INPUT", check.shots.files,
                  "Shot files (" + shotSuffixes() + "), or one project (.tvsk)")
      ->required();
  addReader(command, check.shots.reader);
  const ShotOptionGroup positions = addPositionOptions(command, check.shots);
  addPath(
      command, "--json", check.json,
      "Write the findings as JSON, shots and traces from 0, metres and seconds; '-' is standard "
      "output");
  mustEndIn(addPath(command, "--mend", check.project,
                    "Carry out the proposals, check again until nothing is proposed, and save the "
                    "mended survey as a project named *.tvsk"),
            {".tvsk"}, false);
  addParameter(command, parameters::kSureMend, "PERCENT",
               meaningOf(parameters::kSureMend) + defaultOf(parameters::kSureMend),
               [&check](double value) { check.sure = value; });
  command.add_flag("--strict", check.strict,
                   "End with exit code 3 when something is proposed, or left after --mend");
  command.add_flag("--quiet", check.quiet, kQuietHelp);
  command.final_callback([positions, &check] {
    positions.check(check.shots);
    std::vector<std::string>& files = check.shots.files;
    if (std::none_of(files.begin(), files.end(), isProjectFile)) return;
    if (files.size() > 1) {
      throw CLI::ValidationError("INPUT", "a project is checked on its own");
    }
    if (positions.anyGiven()) {
      throw CLI::ValidationError("INPUT", "the options of shot files do not apply to a project");
    }
    check.input = std::move(files.front());
    files.clear();
  });
}

void addConvert(CLI::App& app, ConvertOptions& convert) {
  CLI::App& command = *app.add_subcommand(
      "convert",
      "Rewrite a travel-time file in the exchange format .otte (metres, milliseconds) or in the "
      "unified data format .sgt of pyGIMLi and BERT (metres, seconds)");
  command
      .add_option("INPUT", convert.input,
                  "Travel-time file: " + travelTimeSuffixes() +
                      ", or of any suffix a table with a heading or the unified data format")
      ->required();
  mustEndIn(
      command
          .add_option("OUT", convert.output,
                      "The file to write; its suffix, .otte or .sgt, tells the format; a pipe "
                      "gets .otte")
          ->required(),
      writtenTravelTimeSuffixes(), false, true);
  addSurveyedOptions(command, convert.surveyed);
  addPickReader(command, convert.picks);
  addPickReading(command, convert.picks);
  command.add_flag("--quiet", convert.quiet, kQuietHelp);
}

void addDemo(CLI::App& app, DemoOptions& demo) {
  CLI::App& command = *app.add_subcommand(
      "demo",
      "Write a synthetic line over a buried valley, the same one every time: shot files, positions "
      "and first breaks");
  command.add_option("DIR", demo.folder, "Folder for the files; made when it does not exist")
      ->required();
  command.add_flag("--quiet", demo.quiet, "Print nothing but errors");
}

struct AllOptions {
  InfoOptions info;
  PickOptions pick;
  CheckOptions check;
  InvertOptions invert;
  EnsembleRunOptions ensemble;
  RefractOptions refract;
  ElasticBatchOptions elastic;
  ExportOptions exports;
  ConvertOptions convert;
  RecordsOptions records;
  DemoOptions demo;
  SamplesOnDisk samplesOnDisk = SamplesOnDisk::kWhenLarge;  ///< of all that read recordings
};

constexpr const char* kDescription =
    "Talvesk without windows: shot records to travel times to velocity sections.";

void addCommands(CLI::App& app, AllOptions& all) {
  app.set_version_flag("--version", std::string("talvesk-batch ") + TALVESK_VERSION);
  // One at most: an unknown word is told by its name, a missing one below.
  app.require_subcommand(0, 1);
  app.footer(kExitCodes);  // the commands inherit it
  addInvert(app, all.invert);
  addEnsemble(app, all.ensemble);
  addRefract(app, all.refract);
  addElastic(app, all.elastic);
  addPick(app, all.pick);
  addCheck(app, all.check);
  addInfo(app, all.info);
  addExport(app, all.exports);
  addConvert(app, all.convert);
  addRecords(app, all.records);
  addDemo(app, all.demo);
  for (const char* name : {"invert", "refract", "pick", "check", "info", "export", "records"}) {
    addSamplesOnDisk(*app.get_subcommand(name), all.samplesOnDisk);
  }
}

CLI::App* chosenCommand(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty() ? nullptr : chosen.front();
}

}  // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
  AllOptions all;
  CLI::App app{kDescription, "talvesk-batch"};
  addCommands(app, all);
  app.footer(std::string("'talvesk-batch COMMAND --help' explains a command.\n") + kExitCodes);
  wrapHelp(app);

  CommandLine result;
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      app.exit(error);
      return result;
    }
    const CLI::App* chosen = chosenCommand(app);
    result.exitCode = wrongUsage(chosen ? chosen->get_name() : "", error.what());
    return result;
  }

  if (chosenCommand(app) == nullptr) {
    result.exitCode = wrongUsage(
        "",
        "a command is required: info, pick, check, invert, ensemble, refract, elastic, export, "
        "convert, records or demo");
    return result;
  }
  result.samplesOnDisk = all.samplesOnDisk;
  const std::string name = chosenCommand(app)->get_name();
  if (name == "info") {
    result.command = std::move(all.info);
  } else if (name == "pick") {
    result.command = std::move(all.pick);
  } else if (name == "check") {
    result.command = std::move(all.check);
  } else if (name == "invert") {
    result.command = std::move(all.invert);
  } else if (name == "ensemble") {
    result.command = std::move(all.ensemble);
  } else if (name == "refract") {
    result.command = std::move(all.refract);
  } else if (name == "elastic") {
    result.command = std::move(all.elastic);
  } else if (name == "export") {
    result.command = std::move(all.exports);
  } else if (name == "convert") {
    result.command = std::move(all.convert);
  } else if (name == "records") {
    result.command = std::move(all.records);
  } else {
    result.command = std::move(all.demo);
  }
  return result;
}

std::string manualOfCommands(ManualKind kind) {
  AllOptions all;
  CLI::App app{kDescription, "talvesk-batch"};
  addCommands(app, all);
  return kind == ManualKind::kManualPage ? manualPage(app) : bashCompletion(app);
}

}  // namespace talvesk
