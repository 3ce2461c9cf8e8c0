#include "doctor/Doctor.h"

#include "doctor/FindingParts.h"
#include "doctor/GeometryCheck.h"
#include "doctor/SurveyChecks.h"
#include "doctor/SurveyView.h"
#include "doctor/TraceChecks.h"
#include "doctor/TriggerCheck.h"

#include <algorithm>
#include <set>
#include <utility>

namespace talvesk::doctor {
namespace {

using Found = std::vector<Finding>;

void append(Found more, Found& findings) {
  for (Finding& finding : more) findings.push_back(std::move(finding));
}

/// Shots whose place, or that of their geophones, is in doubt: times are not compared with theirs
/// before that is settled.
std::set<std::size_t> misplaced(const Found& findings, const SurveyView& view) {
  std::set<std::size_t> shots;
  std::set<std::size_t> strings;
  for (const Finding& finding : findings) {
    const bool single =
        finding.kind == Finding::Kind::kShotPosition ||
        (finding.proposal && finding.proposal->kind == Proposal::Kind::kReverseOrder);
    for (const ShotView& shot : view.shots) {
      if (shot.shot != finding.shot) continue;
      shots.insert(shot.shot);
      if (!single) strings.insert(shot.string);
    }
  }
  for (const ShotView& shot : view.shots) {
    if (strings.count(shot.string) > 0) shots.insert(shot.shot);
  }
  return shots;
}

/// Shots whose traces will be others, or in another order, when the proposals are carried out.
std::set<std::size_t> leftForLater(const Found& findings) {
  std::set<std::size_t> shots;
  for (const Finding& finding : findings) {
    if (!finding.shot || !finding.proposal) continue;
    const Proposal& proposal = *finding.proposal;
    const bool turned = proposal.kind == Proposal::Kind::kReverseOrder;
    if (turned || proposal.kind == Proposal::Kind::kDisableShot) shots.insert(*finding.shot);
    if (proposal.kind == Proposal::Kind::kStack) {
      shots.insert(proposal.others.begin(), proposal.others.end());
    }
  }
  return shots;
}

/// Those of a check that may be carried out together with what was found before.
Found without(const std::set<std::size_t>& shots, Found findings) {
  findings.erase(std::remove_if(findings.begin(), findings.end(),
                                [&](const Finding& finding) {
                                  return finding.shot && shots.count(*finding.shot) > 0;
                                }),
                 findings.end());
  return findings;
}

std::vector<const ShotView*> others(const SurveyView& view, const std::set<std::size_t>& shots) {
  std::vector<const ShotView*> left;
  for (const ShotView& shot : view.shots) {
    if (shot.placed && shots.count(shot.shot) == 0) left.push_back(&shot);
  }
  return left;
}

/// Those of a check that are about other traces: a copy of another trace comes when that one does,
/// and swings as it does.
Found ofOtherTraces(Found findings, const Found& before) {
  findings.erase(
      std::remove_if(findings.begin(), findings.end(),
                     [&](const Finding& finding) {
                       return std::any_of(before.begin(), before.end(), [&](const Finding& other) {
                         return finding.shot == other.shot && finding.traces == other.traces;
                       });
                     }),
      findings.end());
  return findings;
}

/// \param placed whether times of neighbours can be compared
Found checkTraces(const ShotView& shot, bool placed) {
  Found findings = checkDeadTraces(shot);
  append(checkClippedTraces(shot), findings);
  append(checkNoisyTraces(shot), findings);
  append(checkDoubledTraces(shot), findings);
  if (!placed) return findings;
  append(ofOtherTraces(checkMistimedTraces(shot), findings), findings);
  return findings;
}

}  // namespace

std::vector<Finding> checkRecordings(const TomoDocument& document,
                                     const std::function<bool()>& goOn) {
  SurveyView view = viewOf(document, goOn);
  Found copies = checkCopies(view);
  const std::set<std::size_t> doubled = leftForLater(copies);
  view.shots.erase(
      std::remove_if(view.shots.begin(), view.shots.end(),
                     [&](const ShotView& shot) { return doubled.count(shot.shot) > 0; }),
      view.shots.end());
  Found findings = checkGeometry(view);
  append(checkGeophoneLine(others(view, misplaced(findings, view))), findings);
  const std::set<std::size_t> apart = misplaced(findings, view);
  append(std::move(copies), findings);
  append(checkRepeats(view, others(view, apart)), findings);
  const std::set<std::size_t> later = leftForLater(findings);
  std::set<std::size_t> untimed = apart;
  untimed.insert(later.begin(), later.end());
  append(checkTriggers(others(view, untimed)), findings);
  const auto ofTraces = [&](const ShotView& shot) {
    return checkTraces(shot, apart.count(shot.shot) == 0);
  };
  append(without(later, findInEachShot(view, ofTraces)), findings);
  append(ofOtherTraces(checkPolarity(others(view, untimed)), findings), findings);
  append(checkIntervals(view), findings);
  append(checkSpreads(view), findings);
  return findings;
}

}  // namespace talvesk::doctor
