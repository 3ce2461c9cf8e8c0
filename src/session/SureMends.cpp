#include "session/SureMends.h"

#include "doctor/Doctor.h"
#include "io/Survey.h"
#include "session/TableRules.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr int kMostRounds = 6;  // geometry, then triggers, then traces, and what they uncover

Status carryOut(const doctor::Finding& finding, Survey& survey, std::vector<Message>& notes) {
  const bool geometry = doctor::changesGeometry(*finding.proposal);
  return editSurvey(geometry ? Edit::kGeometry : Edit::kMend, survey, [&](Survey& next) {
    return doctor::carryOut(finding, *finding.proposal, next.document, &notes);
  });
}

}  // namespace

SureMends mendWhatIsSure(std::vector<doctor::Finding> findings, double sure, Survey& survey,
                         const std::function<void(const std::vector<doctor::Finding>&)>& again) {
  const auto isSure = [&](const doctor::Finding& finding) { return doctor::isSure(finding, sure); };
  SureMends mends;
  for (int round = 0; round < kMostRounds; ++round) {
    if (std::none_of(findings.begin(), findings.end(), isSure)) break;
    for (const doctor::Finding& finding : findings) {
      if (!isSure(finding)) continue;
      const Status status = carryOut(finding, survey, mends.notes);
      if (status.ok()) {
        ++mends.done;
      } else {
        mends.notes.push_back("a proposal was not carried out: " + status.message());
      }
    }
    findings = doctor::checkRecordings(survey.document);
    if (again) again(findings);
  }
  mends.left = std::move(findings);
  return mends;
}

}  // namespace talvesk
