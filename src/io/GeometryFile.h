#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "base/TableText.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// Small delimited text files of positions: geophones as "x z" lines, shots as "shot_id_... x z"
/// lines, metres. Written without a header line. A separator is one of ";", "," and
/// kBlankSeparator, or its text.

using GeometryRecords = std::vector<std::vector<double>>;

/// What a file of positions holds, and what became of its text on the way.
struct PositionTable {
  GeometryRecords records;
  TableRemarks remarks;  ///< on x and z; what stands behind them is not used
};

/// How the choice of separators names a single blank; means one blank wherever a separator is
/// given.
inline constexpr const char* kBlankSeparator = "(blank space)";
/// The text between two fields for a separator as it was chosen.
std::string separatorText(const std::string& choice);
/// With what the label of a shot begins.
inline constexpr const char* kShotLabel = "shot_id_";

/// Writes one line per record, six significant digits. Status 1 when the file cannot be written.
Status writeRecords(const std::string& path, const std::string& separator,
                    const GeometryRecords& records);
/// The same, each line headed by its label. Status 1, too, when the two lists differ in length.
Status writeLabelledRecords(const std::string& path, const std::string& separator,
                            const std::vector<std::string>& labels, const GeometryRecords& records);

/// Reads one record per line; a field that is no number gives 0, the empty rest after a last
/// separator is no field. Empty lines at the end are no records, and neither is a heading. Status
/// 1, with a message that names file and line, when the file cannot be read, a line exceeds 256
/// characters or a number does not fit a double. `table` is as before then.
Status readRecords(const std::string& path, const std::string& separator, PositionTable& table);
/// The same without the first field of each line.
Status readLabelledRecords(const std::string& path, const std::string& separator,
                           PositionTable& table);

/// The readers on the bytes of a file, in any encoding of tableText(); `name` stands in the
/// messages.
Status parseRecords(std::string_view bytes, const std::string& name, const std::string& separator,
                    bool labelled, PositionTable& table);

/// What a file looks like before it is read.
struct GeometryFileLook {
  std::string separator = " ";  ///< of ";", "," and " " the first that its first line holds
  bool decimalCommas = false;   ///< a comma stands between two digits
};

/// An empty look for a file that cannot be read: its reader says what is wrong.
GeometryFileLook lookAtGeometryFile(const std::string& path);

/// Whether numbers of a file would be cut at their decimal commas, since only points are read.
bool cutsNumbers(const GeometryFileLook& look, const std::string& separator);

/// The first two fields of each record, x and z. Status 1 when a record has fewer, as all have when
/// the file was read with another separator than it was written with.
Status positionsOf(const PositionTable& table, std::vector<Point2D>& positions);

/// The name itself if it ends in ".csv", in lower case; otherwise with ".csv" behind it.
std::string withCsvSuffix(std::string name);

}  // namespace talvesk
