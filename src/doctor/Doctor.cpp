#include "doctor/Doctor.h"

#include "doctor/GeometryCheck.h"
#include "doctor/SurveyView.h"
#include "doctor/TriggerCheck.h"

#include <set>
#include <utility>

namespace talvesk::doctor {
namespace {

using Kind = Finding::Kind;

void append(std::vector<Finding> more, std::vector<Finding>& findings) {
  for (Finding& finding : more) findings.push_back(std::move(finding));
}

}  // namespace

std::vector<Finding> checkRecordings(const TomoDocument& document,
                                     const std::function<bool()>& goOn) {
  std::vector<Finding> findings;
  const SurveyView view = viewOf(document, goOn);
  append(checkGeometry(view), findings);
  std::vector<const ShotView*> sound;
  bool moved = false;
  for (const Finding& finding : findings) moved = moved || finding.proposal.has_value();
  for (const ShotView& shot : view.shots) {
    if (!moved && shot.placed) sound.push_back(&shot);
  }
  append(checkTriggers(sound), findings);
  return findings;
}

}  // namespace talvesk::doctor
