#pragma once

#include "base/SampleStore.h"
#include "batch/Options.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace talvesk {

inline constexpr const char* kExitCodes = "Exit code: 0 done, 1 failed, 2 wrong usage.";

inline constexpr const char* kUnifiedHelp =
    "The picks with their errors in the unified data format, named *.sgt";
inline constexpr const char* kResidualsHelp =
    "Write what the section leaves of every pick as a table (CSV): measured and computed times, "
    "residuals, errors, suspects";
inline constexpr const char* kQuietHelp =
    "Print nothing but errors and what was left out, repaired or taken as 0 while reading";

/// The options that belong to shot files, to ask what was given once the line is parsed.
struct ShotOptionGroup {
  std::vector<CLI::Option*> options;
  std::vector<CLI::Option*> notch;     ///< of these, those of --filter notch
  std::vector<CLI::Option*> velocity;  ///< and of --filter velocity

  bool anyGiven() const;
  /// Throws CLI::ValidationError when options contradict each other.
  void check(const ShotOptions& shots) const;
};

/// --reader: by what files of measurements are read. `reader` must outlive the parsing.
CLI::Option* addReader(CLI::App& command, ShotReader& reader);

/// --samples-on-disk. `when` must outlive the parsing.
CLI::Option* addSamplesOnDisk(CLI::App& command, SamplesOnDisk& when);

/// Whether a file counts as a shot file: by its suffix, or by the standard whatever is no
/// travel-time file and no project.
bool isShotFile(const std::string& path, ShotReader reader);

/// The options with which shot files become picks, --reader among them, which is no part of the
/// group: other files are read by the standard, too. `shots`
/// must outlive the parsing. \param methodOption what the choice of the picker is called: a command
/// may have another method to be chosen
ShotOptionGroup addShotOptions(CLI::App& command, ShotOptions& shots,
                               const std::string& methodOption = "--method");

/// Those of them that say where shots and geophones stand.
ShotOptionGroup addPlaceOptions(CLI::App& command, ShotOptions& shots);

/// Those of them that say where shots and geophones stand, and from when time counts.
ShotOptionGroup addPositionOptions(CLI::App& command, ShotOptions& shots);

/// --elevations and --smooth-elevations, which go with every kind of input.
void addElevationOptions(CLI::App& command, ElevationOptions& elevations);

/// --reader, of a command that takes picks only.
CLI::Option* addPickReader(CLI::App& command, TravelTimeReading& picks);

/// --time-unit, of picks in tables. `picks` must outlive the parsing.
void addPickReading(CLI::App& command, TravelTimeReading& picks);

/// --feet: the unit of pictures, prints and reports; without it that is the metre.
void addFeet(CLI::App& command);

/// A repeatable --image with names that a picture can have.
CLI::Option* addImages(CLI::App& command, std::vector<std::string>& images,
                       const std::string& help);

/// --report and what it says of those it concerns.
CLI::Option* addReport(CLI::App& command, std::string& path, ReportFields& fields);

/// What sortInputs() takes, for a help text.
std::string kindsOfInput();

/// Tells shot files from a travel-time file, which stands alone and has nothing to be filtered.
/// Throws CLI::ValidationError for what does not go together.
/// \param shots its reader decides; its files are set
void sortInputs(const std::vector<std::string>& inputs, bool shotOptionsGiven, std::string& input,
                ShotOptions& shots);

/// The commands `invert` and `refract`.
void addInvert(CLI::App& app, InvertOptions& options);
void addRefract(CLI::App& app, RefractOptions& options);

/// Those of `refract` that say by which methods and how surely: --method, --xy, --bounds, --seed.
void addLayerMethods(CLI::App& command, RefractOptions& options);

/// The command `elastic`.
void addElastic(CLI::App& app, ElasticBatchOptions& options);

/// The command `ensemble`.
void addEnsemble(CLI::App& app, EnsembleRunOptions& options);

/// The command `records`.
void addRecords(CLI::App& app, RecordsOptions& options);

/// The command `export`.
void addExport(CLI::App& app, ExportOptions& options);

}  // namespace talvesk
