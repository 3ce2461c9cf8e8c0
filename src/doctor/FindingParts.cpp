#include "doctor/FindingParts.h"

#include "base/RunForEach.h"
#include "doctor/Placing.h"

#include <cmath>
#include <string>
#include <utility>

namespace talvesk::doctor {
namespace {

/// From 1: "3, 5 and 17".
Message numberList(const std::vector<std::size_t>& indices) {
  if (indices.empty()) return {};
  std::string list;
  for (std::size_t i = 0; i + 1 < indices.size(); ++i) {
    list += (i == 0 ? "" : ", ") + std::to_string(indices[i] + 1);
  }
  const Message last(std::to_string(indices.back() + 1));
  return list.empty() ? last : Message::tr("%1 and %2").arg(list).arg(last);
}

}  // namespace

Message milliseconds(double seconds) {
  return Message::number(seconds * 1e3, 4);
}

Message lateOrEarly(double shift) {
  return shift > 0.0 ? Message::tr("late") : Message::tr("early");
}

Message lateByOthers(double shift, double error, std::size_t pairs) {
  return Message::tr(
             "the record is %1 ms %2: %3 times to the places of other shots differ "
             "by that from the times back, give or take %4 ms")
      .arg(milliseconds(std::fabs(shift)))
      .arg(lateOrEarly(shift))
      .arg(pairs)
      .arg(milliseconds(error));
}

Finding aboutShot(Finding::Kind kind, const ShotView& shot, double confidence, Message text) {
  Finding finding;
  finding.kind = kind;
  finding.shot = shot.shot;
  finding.confidence = confidence;
  finding.text = std::move(text);
  finding.measured = arrivalsOver(shot, shot.geophones);
  return finding;
}

Proposal moveGeophones(std::vector<Point2D> points) {
  Proposal proposal;
  proposal.kind = Proposal::Kind::kMoveGeophones;
  proposal.points = std::move(points);
  return proposal;
}

Proposal moveShot(Point2D point) {
  Proposal proposal;
  proposal.kind = Proposal::Kind::kMoveShot;
  proposal.points = {point};
  return proposal;
}

Proposal ofTraces(Proposal::Kind kind, std::vector<std::size_t> traces) {
  Proposal proposal;
  proposal.kind = kind;
  proposal.traces = std::move(traces);
  return proposal;
}

Message traceList(const std::vector<std::size_t>& traces) {
  return traces.size() == 1 ? Message::tr("trace %1").arg(traces.front() + 1)
                            : Message::tr("traces %1").arg(numberList(traces));
}

Message shotList(const std::vector<std::size_t>& shots) {
  return shots.size() == 1 ? Message::tr("shot %1").arg(shots.front() + 1)
                           : Message::tr("shots %1").arg(numberList(shots));
}

std::vector<Finding> findInEachShot(
    const SurveyView& view, const std::function<std::vector<Finding>(const ShotView&)>& check) {
  std::vector<std::vector<Finding>> found(view.shots.size());
  runForEach(found.size(), [&](std::size_t i) { found[i] = check(view.shots[i]); });
  std::vector<Finding> findings;
  for (std::vector<Finding>& ofShot : found) {
    for (Finding& finding : ofShot) findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor
