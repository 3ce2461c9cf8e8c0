#include "session/TakeProposals.h"

#include "doctor/Doctor.h"
#include "doctor/FindingTexts.h"
#include "io/Survey.h"
#include "session/Session.h"

namespace talvesk {
namespace {

using Taken = std::vector<TakenProposal>;

void append(const std::vector<Message>& more, std::vector<Message>& messages) {
  messages.insert(messages.end(), more.begin(), more.end());
}

Message failureOf(const TakenProposal& taken, const Status& status) {
  return Message::tr("shot %1, %2: %3")
      .arg(taken.finding.shot.value_or(0) + 1)
      .arg(doctor::describe(taken.proposal))
      .arg(status.text());
}

/// Carries out all or none of what is given but for those that fail by themselves. Where none can
/// be, there is no edit, for it would make void what rests on the geometry.
void takeBy(Edit edit, const Taken& taken, Session& session, TakenOutcome& outcome) {
  if (taken.empty()) return;
  TakenOutcome step;
  const Status status = session.apply(edit, [&](Survey& survey) {
    Status last;
    for (const TakenProposal& each : taken) {
      const Status one =
          doctor::carryOut(each.finding, each.proposal, survey.document, &step.notes);
      if (one.ok()) {
        ++step.done;
      } else {
        step.failures.push_back(failureOf(each, one));
        last = one;
      }
    }
    return step.done > 0 ? Status() : last;
  });
  const bool refused = !status.ok() && step.failures.size() < taken.size();
  if (refused) step = {0, {}, std::vector<Message>(1, status.text())};
  outcome.done += step.done;
  append(step.notes, outcome.notes);
  append(step.failures, outcome.failures);
}

}  // namespace

TakenOutcome takeProposals(const Taken& taken, Session& session) {
  Taken geometry;
  Taken mends;
  for (const TakenProposal& each : taken) {
    (doctor::changesGeometry(each.proposal) ? geometry : mends).push_back(each);
  }
  TakenOutcome outcome;
  takeBy(Edit::kGeometry, geometry, session, outcome);
  takeBy(Edit::kMend, mends, session, outcome);
  return outcome;
}

}  // namespace talvesk
