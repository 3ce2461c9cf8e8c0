#pragma once

#include "base/Status.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// One field of a header as it stands in its file.
struct FileField {
  std::string name;  ///< the keyword of a SEG-2 string, or what the standard calls the field
  std::string value;
};

/// Of what has no room so many names are kept: where there are more, they are no names.
constexpr std::size_t kMostLeftOut = 1000;

/// What the headers of a shot file say, whether or not a reader uses it.
struct ShotFileFields {
  std::vector<FileField> common;               ///< of the file
  std::vector<std::vector<FileField>> traces;  ///< of its traces, in the order of the file
  /// Names of fields that are not among them: more in one header than any instrument writes. The
  /// first kMostLeftOut of them.
  std::set<std::string> leftOut;
};

/// Reads the headers of SEG-2, SEG-Y and SU bytes, whatever their samples. Texts are printable
/// UTF-8 of one line, at most kLongestField bytes, with "…" where they are cut; fields that are 0
/// in all traces of a SEG-Y or SU file are left out, for nobody filled them. \param path whose
/// suffix tells SU, which has no mark of its own; without one what is no SEG-Y may be SU \return
/// failure for bytes of none of these; `fields` is as before then
Status readShotFileFields(std::string_view bytes, const std::string& path, ShotFileFields& fields);

constexpr std::size_t kLongestField = 200;

}  // namespace talvesk
