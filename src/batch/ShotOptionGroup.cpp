#include "base/LengthUnit.h"
#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/ShotPicking.h"
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
  if (text == "notch") return PickFilter::kNotch;
  if (text == "velocity") return PickFilter::kVelocity;
  throw CLI::ValidationError("--filter",
                             "'" + text + "' is none of none, agc, hushel, band, notch, velocity");
}

PickMethod readMethod(const std::string& option, const std::string& text) {
  if (text == "single") return PickMethod::kSingle;
  if (text == "joint") return PickMethod::kJoint;
  throw CLI::ValidationError(option, "'" + text + "' is none of single, joint");
}

ShotReader readReader(const std::string& text) {
  if (text == "rules") return ShotReader::kRules;
  if (text == "standard") return ShotReader::kStandard;
  throw CLI::ValidationError("--reader", "'" + text + "' is none of rules, standard");
}

SamplesOnDisk readSamplesOnDisk(const std::string& text) {
  if (text == "automatic") return SamplesOnDisk::kWhenLarge;
  if (text == "always") return SamplesOnDisk::kAlways;
  if (text == "never") return SamplesOnDisk::kNever;
  throw CLI::ValidationError("--samples-on-disk",
                             "'" + text + "' is none of automatic, always, never");
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

VelocityFilter::Direction readDirection(const std::string& text) {
  using Direction = VelocityFilter::Direction;
  if (text == "both") return Direction::kBoth;
  if (text == "forth") return Direction::kForth;
  if (text == "back") return Direction::kBack;
  throw CLI::ValidationError("--direction", "'" + text + "' is none of both, forth, back");
}

std::vector<CLI::Option*> addNotch(CLI::App& command, NotchFilter& notch) {
  using namespace parameters;
  return {
      addParameter(command, kNotch, "HZ", kNotch.help + defaultOf(kNotch),
                   [&notch](double hertz) { notch.hertz = hertz; }),
      addParameter(command, kNotchHarmonics, "N", kNotchHarmonics.help + defaultOf(kNotchHarmonics),
                   [&notch](int count) { notch.harmonics = count; }),
      addParameter(command, kNotchQuality, "Q", kNotchQuality.help + defaultOf(kNotchQuality),
                   [&notch](double quality) { notch.quality = quality; })};
}

std::vector<CLI::Option*> addVelocity(CLI::App& command, VelocityFilter& filter) {
  using namespace parameters;
  return {addParameter(command, kSlowest, "M/S", kSlowest.help + defaultOf(kSlowest),
                       [&filter](double velocity) { filter.slowest = velocity; }),
          addParameter(command, kFastest, "M/S", kFastest.help + defaultOf(kFastest),
                       [&filter](double velocity) { filter.fastest = velocity; }),
          addParameter(command, kVelocityTaper, "PERCENT",
                       kVelocityTaper.help + defaultOf(kVelocityTaper),
                       [&filter](double percent) { filter.taper = percent; }),
          command
              .add_option_function<std::string>(
                  "--direction",
                  [&filter](const std::string& text) { filter.direction = readDirection(text); },
                  "Waves of the velocity filter: forth, towards greater distances; back; both "
                  "(default: both)")
              ->type_name("WAY"),
          command.add_flag("--reject-velocities", filter.rejects,
                           "The velocity filter takes its range out instead of keeping it")};
}

/// Options of a filter go with it only.
void checkBelongs(const std::vector<CLI::Option*>& options, PickFilter filter, PickFilter chosen) {
  for (const CLI::Option* option : options) {
    if (option->count() == 0 || chosen == filter) continue;
    throw CLI::ValidationError(option->get_name(), "it goes with --filter " + nameOf(filter));
  }
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
  checkBelongs(notch, PickFilter::kNotch, shots.filter);
  checkBelongs(velocity, PickFilter::kVelocity, shots.filter);
  if (const Status status = checkVelocityFilter(shots.velocity); !status.ok()) {
    throw CLI::ValidationError("--slowest", status.message());
  }
  const bool separatorGiven = options.back()->count() > 0;
  if (separatorGiven && shots.geophones.empty() && shots.shots.empty()) {
    throw CLI::ValidationError("--separator", "it goes with --geophones and --shots");
  }
}

CLI::Option* addReader(CLI::App& command, ShotReader& reader) {
  return command
      .add_option_function<std::string>(
          "--reader", [&reader](const std::string& text) { reader = readReader(text); },
          "How shot files are read: rules, as this program always has; standard, by the published "
          "standard of their format, which their content decides (default: rules)")
      ->type_name("READER")
      ->group(kGroup);
}

CLI::Option* addSamplesOnDisk(CLI::App& command, SamplesOnDisk& when) {
  return command
      .add_option_function<std::string>(
          "--samples-on-disk", [&when](const std::string& text) { when = readSamplesOnDisk(text); },
          "Where the samples of recordings are kept: automatic, in memory, and on the disk as "
          "soon as they fill a quarter of the memory that the program may have; always, on the "
          "disk; never, in memory (default: automatic). Results are the same")
      ->type_name("WHEN")
      ->group(kGroup);
}

bool isShotFile(const std::string& path, ShotReader reader) {
  if (reader == ShotReader::kRules) return shotFormatOf(path) != nullptr && !holdsTravelTimes(path);
  return travelTimeFormatOf(path) == nullptr && !hasSuffixOf(projectFormat(), path) &&
         !holdsTravelTimes(path);
}

ShotOptionGroup addPlaceOptions(CLI::App& command, ShotOptions& shots) {
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

ShotOptionGroup addPositionOptions(CLI::App& command, ShotOptions& shots) {
  ShotOptionGroup group;
  const auto add = [&](CLI::Option* option) {
    option->group(kGroup);
    group.options.push_back(option);
    return option;
  };
  add(command.add_flag("--as-recorded", shots.asRecorded,
                       "Count time from the first sample of a record, also when recording began "
                       "before the shot"));
  for (CLI::Option* option : addPlaceOptions(command, shots).options) {
    group.options.push_back(option);
  }
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

ShotOptionGroup addShotOptions(CLI::App& command, ShotOptions& shots,
                               const std::string& methodOption) {
  addReader(command, shots.reader);
  ShotOptionGroup group;
  const auto add = [&](CLI::Option* option) {
    option->group(kGroup);
    group.options.push_back(option);
    return option;
  };
  add(command
          .add_option_function<std::string>(
              methodOption,
              [&shots, methodOption](const std::string& text) {
                shots.method = readMethod(methodOption, text);
              },
              "How first breaks are picked: single, trace by trace with a screening by apparent "
              "velocity; joint, along the line, all channels of a shot at once, leaving out picks "
              "that are not sure to " +
                  plainNumber(parameters::kWorstPick.initial) + " ms (default: single)")
          ->type_name("METHOD"));
  add(command
          .add_option_function<std::string>(
              "--filter", [&](const std::string& text) { shots.filter = readFilter(text); },
              "What to pick on: none, the samples as they are; agc, after automatic gain "
              "control; hushel, " +
                  plainNumber(parameters::kHushelHigh.value) + " to " +
                  plainNumber(parameters::kHushelLow.value) +
                  " Hz; band, what --low and --high leave; notch, without the hum of power lines "
                  "(--notch); velocity, waves of the apparent velocities from --slowest to "
                  "--fastest (default: none)")
          ->type_name("TYPE"));
  for (CLI::Option* option : addCorner(command, parameters::kLowPass, shots.band.low)) add(option);
  for (CLI::Option* option : addCorner(command, parameters::kHighPass, shots.band.high))
    add(option);
  group.notch = addNotch(command, shots.notch);
  group.velocity = addVelocity(command, shots.velocity);
  for (const auto& filter : {group.notch, group.velocity}) {
    for (CLI::Option* option : filter) add(option);
  }
  for (CLI::Option* option : addPositionOptions(command, shots).options) {
    group.options.push_back(option);
  }
  return group;
}

CLI::Option* addPickReader(CLI::App& command, TravelTimeReading& picks) {
  return command
      .add_option_function<std::string>(
          "--reader",
          [&picks](const std::string& text) {
            picks.byContent = readReader(text) == ShotReader::kStandard;
          },
          "By what a file is read: rules, by its suffix and only where that fails by its content; "
          "standard, by its content first (default: rules)")
      ->type_name("READER")
      ->group("Travel times");
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

void addFeet(CLI::App& command) {
  command.preparse_callback([](std::size_t) { setLengthUnit(LengthUnit::kMetre); });
  command.add_flag_callback(
      "--feet", [] { setLengthUnit(LengthUnit::kFoot); },
      "Show lengths and velocities in feet (0.3048 m) in pictures, prints and reports; all else "
      "stays in metres");
}

std::string kindsOfInput() {
  return "One travel-time file (" + travelTimeSuffixes() +
         "), one project (.tvsk), or shot files (" + shotSuffixes() + ")";
}

void sortInputs(const std::vector<std::string>& inputs, bool shotOptionsGiven, std::string& input,
                ShotOptions& shots) {
  const auto isShot = [&](const std::string& path) { return isShotFile(path, shots.reader); };
  const auto count = static_cast<std::size_t>(std::count_if(inputs.begin(), inputs.end(), isShot));
  if (count == inputs.size()) {
    shots.files = inputs;
    return;
  }
  if (count > 0) {
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
