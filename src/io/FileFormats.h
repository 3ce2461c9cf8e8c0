#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "io/TravelTimeData.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

struct SegyState;
struct ShotFileData;

// The formats of the files that the program exchanges: one row each, from which dispatch by suffix,
// the lines of file dialogs and the lists in help texts and messages follow. To add a format is to
// add its row and its reader.

/// What is known of a format before a file is opened.
struct FileFormat {
  const char* id;                     ///< as it stands in the log and in JSON: "seg2"
  std::vector<const char*> suffixes;  ///< with their dots, in the order in which dialogs list them
  Message filter;                     ///< its line in a file dialog; its suffixes stand for %1
};

/// A format of records of shots. Its suffixes are recognised in either case.
struct ShotFormat : FileFormat {
  const char* name;  ///< as people write it, in every language: "SEG-2"
  /// See readShotFile() for what it returns. `state` is what the readers of SEG-Y and SU pass on
  /// from file to file.
  Status (*read)(std::string_view bytes, SegyState& state, ShotFileData& data);
};

/// A format of picks. Its suffixes are compared exactly.
struct TravelTimeFormat : FileFormat {
  std::optional<Refusal> (*read)(std::string_view bytes, TravelTimeData& data);
  /// The text of a file; null where the format is read only. Positions must be finite.
  std::string (*write)(const TravelTimeData& data);
};

const std::vector<ShotFormat>& shotFormats();
const std::vector<TravelTimeFormat>& travelTimeFormats();

const FileFormat& projectFormat();
const TravelTimeFormat& exchangeFormat();  ///< the first that travel times are written in
/// The format that picks are written in to a file of that name: the exchange format unless its
/// suffix, in either case, is that of another one that is written.
const TravelTimeFormat& writtenFormatOf(std::string_view path);

/// The format of a file by the suffix of its path; null when it has none of the table.
const ShotFormat* shotFormatOf(std::string_view path);
const TravelTimeFormat* travelTimeFormatOf(std::string_view path);
/// The format of shot files with that id, or null.
const ShotFormat* shotFormatNamed(std::string_view id);

/// Whether a name ends in a suffix of the format, in either case, with something before it.
bool hasSuffixOf(const FileFormat& format, std::string_view path);
/// Whether a path is meant for the readers of travel times, whatever the case of its suffix; they
/// refuse a wrong one with a message of their own.
bool looksLikeTravelTimes(std::string_view path);

/// The lines of a dialog that opens files of one purpose: all its formats at once, which therefore
/// stands there first, then one by one, then all files.
std::vector<Message> shotFileFilters();
std::vector<Message> travelTimeFileFilters();
/// The lines of a dialog that writes picks: each format that is written, then all files.
std::vector<Message> writtenTravelTimeFilters();
/// The lines of a dialog for files of one format: those, then all files.
std::vector<Message> filtersOf(const FileFormat& format);

/// Suffixes for a sentence, each once whatever its case: ".otte, .txt, .xyz, .csv, .sgt".
std::string shotSuffixes();
std::string travelTimeSuffixes();
/// Of the formats that picks are written in, each with its dot.
std::vector<std::string> writtenTravelTimeSuffixes();

}  // namespace talvesk
