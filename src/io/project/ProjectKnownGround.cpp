#include "io/project/ProjectKnownGround.h"

#include "base/PlainText.h"
#include "model/TomoDocument.h"

#include <utility>

namespace talvesk {
namespace {

template <typename Thing>
void mendNames(std::vector<Thing>& things) {
  for (Thing& thing : things) {
    thing.name = beginningOf(withoutControls(std::move(thing.name)), KnownGround::kLongestName);
  }
}

}  // namespace

std::optional<KnownGroundMember> knownGroundOf(const TomoDocument& document) {
  if (document.known->empty()) return std::nullopt;
  return KnownGroundMember{*document.known};
}

Status installKnownGround(KnownGroundMember member, TomoDocument& document) {
  mendNames(member.known.boreholes);
  mendNames(member.known.depths);
  mendNames(member.known.bodies);
  Message fault = faultOf(member.known);
  if (!fault.empty()) return Status::failure(std::move(fault));
  document.known = std::move(member.known);
  return {};
}

}  // namespace talvesk
