#pragma once

#include "base/Status.h"
#include "base/TableText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// Isovalue files: contour values as delimited text, one line each, the value, the separator and
/// "true". A separator is one of ";", "," and kBlankSeparator, or its text.

/// What a file of isovalues gave. Values that were read before a line that is wrong are kept.
struct IsovalueRead {
  Status status;
  std::vector<double> values;   ///< in the order of the file
  std::size_t invalidLine = 0;  ///< from 1; 0 when no line was wrong
  TableRemarks remarks;         ///< whether a heading was skipped
};

/// Longest line, and most values, that a file may have.
inline constexpr std::size_t kIsovalueLineLimit = 256;
inline constexpr std::size_t kMostIsovalues = 1000;

/// Writes the values in ascending order, each with as many digits as bring it back.
Status writeIsovalues(const std::string& path, const std::string& separator,
                      std::vector<double> values);

/// Reads the bytes of a file, in any encoding of tableText(), up to the first line that is too long
/// or whose first field is not a finite number as a whole, and at most kMostIsovalues values; tells
/// every value on the console. A heading above the values is passed over, empty lines at the end
/// are no lines. \param name of the file, for the message
IsovalueRead parseIsovalues(std::string_view bytes, const std::string& name,
                            const std::string& separator);

/// Reads the whole file for parseIsovalues(); fails when it cannot be read or is far too large.
Status readIsovalueText(const std::string& path, std::string& text);

/// The name itself if it ends in ".csv", in letters of either case; otherwise with ".csv" behind.
std::string withIsovalueSuffix(std::string name);

}  // namespace talvesk
