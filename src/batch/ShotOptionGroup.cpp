#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "io/FileFormats.h"
#include "io/GeometryFile.h"
#include "io/TravelTimeFile.h"

#include <algorithm>

namespace talvesk {
namespace {

constexpr const char* kGroup = "Shot files";

PickFilter readFilter(const std::string& text) {
  if (text == "none") return PickFilter::kNone;
  if (text == "agc") return PickFilter::kAgc;
  if (text == "hushel") return PickFilter::kHushel;
  if (text == "band") return PickFilter::kBand;
  throw CLI::ValidationError("--filter", "'" + text + "' is none of none, agc, hushel, band");
}

std::string readSeparator(const std::string& text) {
  if (text == ";" || text == "," || text == " ") return text;
  if (text == kBlankSeparator || text == "blank") return " ";
  throw CLI::ValidationError("--separator", "'" + text + "' is none of ';', ',', ' '");
}

TimeUnit readTimeUnit(const std::string& text) {
  if (text == "ms") return TimeUnit::kMilliseconds;
  if (text == "s") return TimeUnit::kSeconds;
  throw CLI::ValidationError("--time-unit", "'" + text + "' is none of ms, s");
}

/// Cut-off and order of one end of the band.
std::vector<CLI::Option*> addCorner(CLI::App& command, const Parameter<double>& frequency,
                                    std::optional<FilterCorner>& corner) {
  CLI::Option* cutOff =
      addParameter(command, frequency, "HZ", frequency.help, [&corner](double hertz) {
        if (!corner) corner.emplace();
        corner->hertz = hertz;
      });
  constexpr const Parameter<int>& kOrder = parameters::kFilterOrder;
  const std::string name = std::string("--") + frequency.key;
  CLI::Option* orderOption =
      addNumber(command, name + '-' + kOrder.key, "N", rangeOf(kOrder),
                kOrder.help + (" of " + name) + defaultOf(kOrder), [&corner](int value) {
                  if (!corner) corner.emplace();
                  corner->order = value;
                });
  orderOption->needs(cutOff);
  return {cutOff, orderOption};
}

}  // namespace

bool ShotOptionGroup::anyGiven() const {
  return std::any_of(options.begin(), options.end(),
                     [](const CLI::Option* option) { return option->count() > 0; });
}

void ShotOptionGroup::check(const ShotOptions& shots) const {
  const bool corners = shots.band.low || shots.band.high;
  if (shots.filter == PickFilter::kBand && !corners) {
    throw CLI::ValidationError("--filter", "band needs --low, --high or both");
  }
  if (shots.filter != PickFilter::kBand && corners) {
    throw CLI::ValidationError("--low and --high", "they go with --filter band");
  }
  const bool separatorGiven = options.back()->count() > 0;
  if (separatorGiven && shots.geophones.empty() && shots.shots.empty()) {
    throw CLI::ValidationError("--separator", "it goes with --geophones and --shots");
  }
}

ShotOptionGroup addPositionOptions(CLI::App& command, ShotOptions& shots) {
  ShotOptionGroup group;
  const auto add = [&](CLI::Option* option) {
    option->group(kGroup);
    group.options.push_back(option);
  };
  add(addPath(command, "--geophones", shots.geophones,
              "Positions of the geophones, a line 'x;z' (metres) per trace, instead of those "
              "in the shot files; the same for all shots"));
  add(addPath(command, "--shots", shots.shots,
              "Positions of the shots, a line 'shot_id_...;x;z' (metres) per shot file, "
              "instead of those in the shot files"));
  add(command
          .add_option_function<std::string>(
              "--separator",
              [&](const std::string& text) { shots.separator = readSeparator(text); },
              "Separator of --geophones and --shots: ';', ',' or ' ' (default: ';')")
          ->type_name("CHAR"));
  return group;
}

void addElevationOptions(CLI::App& command, ElevationOptions& elevations) {
  CLI::Option* table = addPath(
      command, "--elevations", elevations.table,
      "Elevations of all geophones and shots: a table of distances and elevations (metres), "
      "whose heading names both or that has two columns");
  CLI::Option* smooth =
      command.add_flag("--smooth-elevations", elevations.smooth,
                       "Follow a smooth curve through the points of --elevations, instead of "
                       "straight lines");
  smooth->needs(table);
  for (CLI::Option* option : {table, smooth}) option->group("Positions");
}

ShotOptionGroup addShotOptions(CLI::App& command, ShotOptions& shots) {
  ShotOptionGroup group;
  const auto add = [&](CLI::Option* option) {
    option->group(kGroup);
    group.options.push_back(option);
    return option;
  };
  add(command
          .add_option_function<std::string>(
              "--filter", [&](const std::string& text) { shots.filter = readFilter(text); },
              "What to pick on: none, the samples as they are; agc, after automatic gain "
              "control; hushel, " +
                  plainNumber(parameters::kHushelHigh.value) + " to " +
                  plainNumber(parameters::kHushelLow.value) +
                  " Hz; band, what --low and --high leave (default: none)")
          ->type_name("TYPE"));
  for (CLI::Option* option : addCorner(command, parameters::kLowPass, shots.band.low)) add(option);
  for (CLI::Option* option : addCorner(command, parameters::kHighPass, shots.band.high))
    add(option);
  add(command.add_flag("--as-recorded", shots.asRecorded,
                       "Count time from the first sample of a record, also when recording began "
                       "before the shot"));
  const ShotOptionGroup positions = addPositionOptions(command, shots);
  group.options.insert(group.options.end(), positions.options.begin(), positions.options.end());
  return group;
}

void addPickReading(CLI::App& command, TravelTimeReading& picks) {
  command
      .add_option_function<std::string>(
          "--time-unit", [&](const std::string& text) { picks.timeUnit = readTimeUnit(text); },
          "Unit of the times in a table whose heading names none: ms or s")
      ->type_name("UNIT")
      ->group("Travel times");
}

CLI::Option* addImages(CLI::App& command, std::vector<std::string>& images,
                       const std::string& help) {
  CLI::Option* image =
      command.add_option("--image", images, help)->type_name("FILE")->allow_extra_args(false);
  return mustEndIn(image, {".png", ".svg", ".pdf"}, true);
}

std::string kindsOfInput() {
  return "One travel-time file (" + travelTimeSuffixes() +
         "), one project (.tvsk), or shot files (" + shotSuffixes() + ")";
}

void sortInputs(const std::vector<std::string>& inputs, bool shotOptionsGiven, std::string& input,
                std::vector<std::string>& shotFiles) {
  // A suffix of shot files may be one of travel times, too.
  const auto isShot = [](const std::string& file) {
    return shotFormatOf(file) != nullptr && !holdsTravelTimes(file);
  };
  const auto shots = static_cast<std::size_t>(std::count_if(inputs.begin(), inputs.end(), isShot));
  if (shots == inputs.size()) {
    shotFiles = inputs;
    return;
  }
  if (shots > 0) {
    throw CLI::ValidationError("INPUT",
                               "shot files do not go together with travel-time files or projects");
  }
  if (inputs.size() > 1) {
    throw CLI::ValidationError("INPUT",
                               "only one travel-time file or project can be read at a time");
  }
  if (shotOptionsGiven) {
    throw CLI::ValidationError("INPUT", "'" + inputs.front() +
                                            "' is no shot file; the options of shot files do not "
                                            "apply");
  }
  input = inputs.front();
}

}  // namespace talvesk
