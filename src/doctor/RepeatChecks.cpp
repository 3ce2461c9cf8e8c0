#include "doctor/FindingParts.h"
#include "doctor/SurveyChecks.h"
#include "model/Mending.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace talvesk::doctor {
namespace {

std::size_t setOf(const SurveyView& view, const ShotView& shot) {
  return static_cast<std::size_t>(view.document->ttArray[shot.shot].traceSetID);
}

bool areEqual(const ShotView& a, const ShotView& b) {
  bool anything = false;
  for (const Onset& onset : a.onsets) anything = anything || onset.found;
  return anything && std::equal(a.traces->begin(), a.traces->end(), b.traces->begin(),
                                b.traces->end(), [](const Trace& one, const Trace& other) {
                                  return one.samples == other.samples;
                                });
}

Proposal disable() {
  Proposal proposal;
  proposal.kind = Proposal::Kind::kDisableShot;
  return proposal;
}

double clearness(const ShotView& shot) {
  std::vector<double> ratios;
  for (const Onset& onset : shot.onsets) ratios.push_back(onset.signalToNoise);
  return medianOf(std::move(ratios), 0.0);
}

/// How far apart the arrivals of two records are, in periods of theirs.
double periodsApart(const ShotView& a, const ShotView& b, double& seconds) {
  std::vector<double> differences;
  std::vector<double> periods;
  for (std::size_t t = 0; t < std::min(a.onsets.size(), b.onsets.size()); ++t) {
    if (!isClear(a.onsets[t]) || !isClear(b.onsets[t])) continue;
    differences.push_back(b.onsets[t].time - a.onsets[t].time);
    periods.push_back(a.onsets[t].period);
  }
  seconds = medianOf(std::move(differences), 0.0);
  return std::fabs(seconds) / medianOf(std::move(periods), 0.01);
}

/// Two records of one point: stacked they have less noise, unless one has much more than the other.
Finding ofOnePoint(const SurveyView& view, const ShotView& shot, const ShotView& other) {
  constexpr double kMuchWorse = 3.0;
  constexpr double kTogether = 0.125;  // periods: farther apart, swings begin to cancel
  const double here = clearness(shot);
  const double there = clearness(other);
  const bool worseHere = kMuchWorse * here < there;
  const ShotView& about = worseHere || kMuchWorse * there >= here ? shot : other;
  double seconds = 0.0;
  const double apart = periodsApart(shot, other, seconds);
  if (worseHere || kMuchWorse * there < here) {
    const ShotView& better = worseHere ? other : shot;
    Finding finding = aboutShot(
        Finding::Kind::kRepeatedShot, about, 0.5,
        Message::tr("shot %1 was recorded at the same point, at %2, with %3 times the signal to "
                    "noise of this one")
            .arg(better.shot + 1)
            .arg(Message::length(shot.source.x, 5))
            .arg(
                Message::number(std::max(here, there) / std::max(1e-3, std::min(here, there)), 2)));
    finding.proposal = disable();
    return finding;
  }
  Finding finding = aboutShot(
      Finding::Kind::kRepeatedShot, shot, 0.5,
      Message::tr("shot %1 was recorded at the same point, at %2; its arrivals are %3 ms later")
          .arg(other.shot + 1)
          .arg(Message::length(shot.source.x, 5))
          .arg(milliseconds(seconds)));
  if (apart <= kTogether && canBeStacked(*view.document, setOf(view, shot), setOf(view, other))) {
    finding.proposal.emplace();
    finding.proposal->kind = Proposal::Kind::kStack;
    finding.proposal->others = {other.shot};
  }
  return finding;
}

Message intervalText(double seconds) {
  return Message::number(seconds * 1e3, 6);
}

}  // namespace

std::vector<Finding> checkCopies(const SurveyView& view) {
  std::vector<Finding> findings;
  std::vector<bool> copies(view.shots.size(), false);
  for (std::size_t a = 0; a < view.shots.size(); ++a) {
    for (std::size_t b = a + 1; b < view.shots.size() && !copies[a]; ++b) {
      if (copies[b] || !areEqual(view.shots[a], view.shots[b])) continue;
      copies[b] = true;
      findings.push_back(
          aboutShot(Finding::Kind::kRepeatedShot, view.shots[b], 0.99,
                    Message::tr("the record is that of shot %1 once more, sample for sample")
                        .arg(view.shots[a].shot + 1)));
      findings.back().proposal = disable();
    }
  }
  return findings;
}

std::vector<Finding> checkRepeats(const SurveyView& view,
                                  const std::vector<const ShotView*>& shots) {
  std::vector<Finding> findings;
  std::vector<bool> done(shots.size(), false);
  for (std::size_t a = 0; a < shots.size(); ++a) {
    const ShotMends& mends = mendsOf(*view.document->recordings, setOf(view, *shots[a]));
    if (!mends.stackedWith.empty()) continue;
    for (std::size_t b = a + 1; b < shots.size() && !done[a]; ++b) {
      if (done[b] || shots[a]->source != shots[b]->source ||
          shots[a]->geophones != shots[b]->geophones) {
        continue;
      }
      done[b] = true;
      findings.push_back(ofOnePoint(view, *shots[a], *shots[b]));
    }
  }
  return findings;
}

std::vector<Finding> checkIntervals(const SurveyView& view) {
  std::vector<Finding> findings;
  std::map<double, std::vector<std::size_t>> shotsOf;
  for (const ShotView& shot : view.shots) {
    double least = shot.traces->front().sampleInterval;
    double most = least;
    for (const Trace& trace : *shot.traces) {
      least = std::min(least, trace.sampleInterval);
      most = std::max(most, trace.sampleInterval);
    }
    shotsOf[most].push_back(shot.shot);
    if (least == most && most > 0.0) continue;
    findings.push_back(aboutShot(
        Finding::Kind::kSampleIntervals, shot, 0.9,
        most > 0.0
            ? Message::tr("the sample intervals of its traces differ, %1 to %2 ms: the times of "
                          "some are wrong unless the recorder meant it")
                  .arg(intervalText(least))
                  .arg(intervalText(most))
            : Message::tr("its traces have no sample interval: they have no times")));
  }
  if (shotsOf.size() < 2) return findings;
  const auto most = std::max_element(
      shotsOf.begin(), shotsOf.end(),
      [](const auto& a, const auto& b) { return a.second.size() < b.second.size(); });
  for (const auto& [interval, shots] : shotsOf) {
    if (interval == most->first) continue;
    Finding finding;
    finding.kind = Finding::Kind::kSampleIntervals;
    finding.confidence = 0.3;
    finding.text = Message::tr(
                       "the sample interval is %2 ms in %1, and %3 ms in most others: right if the "
                       "recorder was set so")
                       .arg(shotList(shots))
                       .arg(intervalText(interval))
                       .arg(intervalText(most->first));
    findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor
