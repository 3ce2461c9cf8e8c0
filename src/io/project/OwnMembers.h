#pragma once

#include "base/Message.h"
#include "base/Shared.h"
#include "model/RefractionDataStructure.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

// Members of a project that are ours beside the five that every program knows: other programs, and
// earlier versions of this one, pass them over. Every one is named as isOwnMemberName() says,
// begins with its version, and holds what some part of the survey cannot do with the five alone. To
// add one: a record with its describe() in ProjectMembers_records.inl, and its row in
// OwnMembers.cpp.

/// A member that is passed on as it came, byte for byte: one of a newer version than this program
/// reads, or of a name that it does not know.
struct CarriedMember {
  std::string name;
  Shared<std::string> bytes;
};

/// What a project held of own members that did not become a part of the survey. It belongs to the
/// survey as long as that is the one of the project, and goes into its next save. Copies are cheap.
struct OwnMembers {
  static constexpr std::size_t kMost = 64;                           ///< members
  static constexpr std::size_t kMostBytes = std::size_t{128} << 20;  ///< of all together

  std::vector<CarriedMember> carried;
};

/// Whether a name is one of our own members, of this version or another: at most 64 characters,
/// lower-case letters, digits and underscores with a letter in front, then ".xml", and none of the
/// five.
bool isOwnMemberName(const std::string& name);

/// Puts what the own members in `folder` (ending in "/") hold into the survey. A member that cannot
/// be read, or that does not go with the rest, is left out with a line in `repairs`. One that is
/// carried makes a line in `warnings`, and so do those that are beyond the limits of OwnMembers.
OwnMembers readOwnMembers(const std::string& folder, TomoDocument& document,
                          refractionDataStructure::Interpretation& interpretation,
                          std::vector<Message>& warnings, std::vector<Message>& repairs);

/// Writes the own members of a survey into `folder`, carried ones among them. A carried member of a
/// part that the survey has no more is left out; one of a part that was made anew gives way to it,
/// with a line in `warnings`.
/// \param files out: their paths are added; nothing lies at that of one that could not be written
/// \return false when there is such a one
bool writeOwnMembers(const std::string& folder, const TomoDocument& document,
                     const refractionDataStructure::Interpretation& interpretation,
                     const OwnMembers& own, std::vector<std::string>& files,
                     std::vector<Message>& warnings);

}  // namespace talvesk
