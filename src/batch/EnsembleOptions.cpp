#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "tomo/fitted/Ensemble.h"

#include <map>

namespace talvesk {
namespace {

constexpr const char* kEnsembleGroup = "Ensemble";
constexpr Range<double> kFactor{0.001, 1000.0};

bool readYes(const std::string& option, std::string_view word) {
  if (word == "yes") return true;
  if (word == "no") return false;
  throw CLI::ValidationError(option, "'" + std::string(word) + "' is neither yes nor no");
}

/// "blocky=no,yes" or "smoothing=0.5,1,2".
void readVariation(const std::string& text, EnsembleVariation& vary) {
  const std::map<std::string, std::vector<bool>*> lists = {
      {"robust", &vary.robust}, {"blocky", &vary.blocky}, {"statics", &vary.statics}};
  const std::size_t equals = text.find('=');
  const std::string name = text.substr(0, equals);
  const std::string option = "--vary " + text;
  if (equals == std::string::npos || equals + 1 == text.size() || text.back() == ',') {
    throw CLI::ValidationError("--vary", "'" + text + "' is not SETTING=VALUE,VALUE...");
  }
  const auto list = lists.find(name);
  if (name != "smoothing" && list == lists.end()) {
    throw CLI::ValidationError("--vary",
                               "'" + name + "' is none of smoothing, blocky, robust, statics");
  }
  if (list != lists.end() ? !list->second->empty() : !vary.smoothing.empty()) {
    throw CLI::ValidationError("--vary", "'" + name +
                                             "' is given twice; name all of its values "
                                             "at once, separated by commas");
  }
  for (const std::string_view value : splitFields(std::string_view(text).substr(equals + 1), ',')) {
    if (list != lists.end()) {
      list->second->push_back(readYes(option, value));
    } else {
      vary.smoothing.push_back(numberWithin(option, std::string(value), kFactor));
    }
  }
}

void addMembers(CLI::App& command, EnsembleRunOptions& options) {
  constexpr Range<int> kNumbers{1, Ensemble::kMostMembers};
  const auto number = [&](const char* name, int& target, const std::string& help) {
    addNumber(command, name, "N", kNumbers, help + " (default: " + plainNumber(target) + ")",
              [&target](int value) { target = value; })
        ->group(kEnsembleGroup);
  };
  number("--members", options.members, "How many members there are to be");
  number("--from", options.from,
         "The member to begin with, if others are fitted elsewhere; --add puts them together");
  addParameter(command, parameters::kSeed, "N",
               meaningOf(parameters::kSeed) + defaultOf(parameters::kSeed),
               [&](int value) { options.seed = value; })
      ->group(kEnsembleGroup);
  command
      .add_option_function<std::vector<std::string>>(
          "--isovalue",
          [&options](const std::vector<std::string>& texts) {
            for (const std::string& text : texts) {
              options.isovalues.push_back(
                  numberWithin("--isovalue", text, rangeOf(parameters::kMinVelocity)));
            }
          },
          "A velocity in m/s whose depth is asked for; once per velocity")
      ->type_name("V")
      ->allow_extra_args(false)
      ->group(kEnsembleGroup);
  command
      .add_option_function<std::vector<std::string>>(
          "--vary",
          [&options](const std::vector<std::string>& texts) {
            for (const std::string& text : texts) readVariation(text, options.vary);
          },
          "A setting in which members differ beside errors and models; each takes one of its "
          "values: smoothing, numbers by which the weight of the roughness is multiplied; blocky, "
          "robust and statics, yes or no; once per setting (default: all as the section was "
          "fitted)")
      ->type_name("SETTING=V,V...")
      ->allow_extra_args(false)
      ->group(kEnsembleGroup);
}

}  // namespace

void addEnsemble(CLI::App& app, EnsembleRunOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "ensemble",
      "Find out how sure the section of a project is, by many sections that explain its picks as "
      "well: median, 16 and 84 %, deviations, depths of velocities. What is stopped goes on when "
      "the same command is given again");
  mustEndIn(
      command.add_option("PROJECT", options.project, "The project with a section, named *.tvsk")
          ->required(),
      {".tvsk"}, true);
  addMembers(command, options);
  addThreadCount(command, "Members that are fitted at once (default: as many as there are cores)",
                 [&](unsigned count) { options.threads = count; })
      ->group(kEnsembleGroup);
  addPath(command, "--keep", options.keep,
          "File that finished members are kept in while others are fitted (default: that of --out "
          "with .members behind its name, which goes away when all are done)")
      ->group(kEnsembleGroup);
  command
      .add_option("--add", options.add,
                  "Take the members that another run of the same ensemble has kept with --keep; "
                  "once per file")
      ->type_name("FILE")
      ->allow_extra_args(false)
      ->group(kEnsembleGroup);
  mustEndIn(addPath(command, "-o,--out", options.out,
                    "Save the survey with its certainty as a project named *.tvsk; export writes "
                    "tables and grids of it, the window shows it"),
            {".tvsk"}, false);
  addPath(command, "--json", options.json,
          "Write the results as JSON; '-' is standard output, and then all diagnostics go to "
          "standard error");
  mustEndIn(addPath(command, "--table", options.table,
                    "A line per drawn cell, named *.csv: median, 16 and 84 %, spread, deviation"),
            {".csv"}, true);
  mustEndIn(addPath(command, "--depths", options.depths,
                    "The depths of the velocities of --isovalue along the line, named *.csv"),
            {".csv"}, true);
  command.add_flag("--quiet", options.quiet, kQuietHelp);
  command.final_callback([&options] {
    if (!options.writesResults() && options.keep.empty()) {
      throw CLI::RequiredError("one of --out, --json, --table, --depths and --keep");
    }
    if (options.members < 2 && options.writesResults()) {
      throw CLI::ValidationError("--members",
                                 "one member alone does not tell how sure the section is: at "
                                 "least 2, or --keep as the only output");
    }
    if (options.from > options.members) {
      throw CLI::ValidationError("--from",
                                 "it is beyond the last member, " + plainNumber(options.members));
    }
    if (!options.depths.empty() && options.isovalues.empty()) {
      throw CLI::ValidationError("--depths", "no --isovalue is asked for");
    }
  });
}

}  // namespace talvesk
