#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "doctor/ReciprocityTable.h"

#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct LoadedProject;
struct ReadShotFile;
struct ReferencedRun;
struct ResolutionReport;
struct TomographyResult;
struct TravelTimeData;

// Results as JSON texts, in UTF-8, keys in a fixed order. Numbers are the shortest that read back
// to the same double; what is no finite number is null. Texts that are not UTF-8 have the wrong
// bytes replaced.

/// Grid, misfit and all cell values (cell order, row 0 at the surface) of a finished inversion, one
/// key per line. "elapsed_s" is the only value that differs between two runs. Misfit values are
/// null when no pick was used. Chi-square is of the section; that of a fitted one counts its
/// statics. \param fit of a fitted section, else null
/// \param resolution where it was tested, else null
std::string inversionJson(const TomoDocument& document, const TomographyResult& result,
                          const ReferencedRun* fit, const ResolutionReport* resolution);

/// Positions in metres, times in seconds.
std::string travelTimesJson(const TravelTimeData& data);

/// A shot file: positions in metres, intervals and delays in seconds. What the program's rules make
/// of it, or their failure as in unreadableJson(), and under "standard" what the standard does.
/// \param losses as of lostByRules()
/// \param samples the samples of the traces, too, in the units of the file
std::string shotFileJson(const std::string& file, const ReadShotFile& byRules,
                         const ReadShotFile& byStandard, const std::vector<Message>& losses,
                         bool samples);

/// Takes the place of a file that could not be read.
std::string unreadableJson(const std::string& file, const Status& status);

/// Positions and picks of a survey of shot files: the keys of travelTimesJson, and what became of
/// the traces of each shot. \param filter what was picked on
std::string picksJson(const TomoDocument& document, const std::string& filter,
                      const doctor::ReciprocityTable& reciprocity);

/// What a project holds: positions in metres, times in seconds, velocities in m/s; keys that it has
/// nothing for are null.
std::string projectJson(const LoadedProject& project);

/// Texts of JSON values as one array.
std::string jsonArray(const std::vector<std::string>& values);

}  // namespace talvesk
