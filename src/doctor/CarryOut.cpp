#include "doctor/Doctor.h"
#include "model/GeometryCheck.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"

#include <algorithm>
#include <utility>

namespace talvesk::doctor {
namespace {

using Kind = Proposal::Kind;

Status noSuchShot() {
  return Status::failure(Message::tr("the survey has no such shot; check the recordings again"));
}

GeometryPlace placeAt(const Point2D& point) {
  GeometryPlace place;
  place.x = point.x;
  place.z = point.z;
  place.typed = true;
  return place;
}

bool areUsable(const std::vector<Point2D>& points) {
  return !points.empty() && std::all_of(points.begin(), points.end(), [](const Point2D& point) {
    return isUsable(placeAt(point));
  });
}

bool areEqual(const GeophoneString& a, const GeophoneString& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const GeometryPlace& one, const GeometryPlace& other) {
                      return one.point() == other.point();
                    });
}

/// Shots of a string that has become like another one use that one.
void mergeWithEqual(SurveyGeometry& geometry, std::size_t string) {
  for (std::size_t other = 0; other < geometry.strings.size(); ++other) {
    if (other == string || !areEqual(geometry.strings[other], geometry.strings[string])) continue;
    removeString(geometry, string, static_cast<int>(other < string ? other : other - 1));
    return;
  }
}

Status editGeometry(std::size_t shot, const Proposal& proposal, TomoDocument& document) {
  SurveyGeometry geometry = geometryOf(document);
  if (shot >= geometry.shots.size()) return noSuchShot();
  if (!areUsable(proposal.points)) {
    return Status::failure(
        Message::tr("shot %1: a position is missing, no number or absurdly far away")
            .arg(shot + 1));
  }
  if (proposal.kind == Kind::kMoveShot) {
    geometry.shots[shot].place = placeAt(proposal.points.front());
  } else {
    const int number = geometry.shots[shot].string;
    const auto string = static_cast<std::size_t>(number);
    if (number < 0 || string >= geometry.strings.size() ||
        geometry.strings[string].size() != proposal.points.size()) {
      return Status::failure(Message::tr("shot %1: its geophone string has another number of "
                                         "geophones than the proposal; check the recordings again")
                                 .arg(shot + 1));
    }
    std::transform(proposal.points.begin(), proposal.points.end(), geometry.strings[string].begin(),
                   placeAt);
    mergeWithEqual(geometry, string);
  }
  applyGeometry(geometry, document);
  return {};
}

Status mendTraces(const Proposal& proposal, std::size_t count, ShotMends& mends) {
  for (const std::size_t trace : proposal.traces) {
    if (trace >= count) {
      return Status::failure(
          Message::tr("there is no trace %1; check the recordings again").arg(trace + 1));
    }
    if (mends.traces.size() <= trace) mends.traces.resize(trace + 1);
    TraceMend& mend = mends.traces[trace];
    if (proposal.kind == Kind::kKillTraces) mend.killed = true;
    if (proposal.kind == Kind::kReverseTraces) mend.reversed = !mend.reversed;
    if (proposal.kind == Kind::kMuteTraces) mend.mutedBefore = proposal.seconds;
  }
  return {};
}

/// Mends belong to geophones: those of the first channel go to the last one with it.
void reverseOrder(std::size_t count, ShotMends& mends) {
  mends.orderReversed = !mends.orderReversed;
  if (mends.traces.empty()) return;
  mends.traces.resize(count);
  std::reverse(mends.traces.begin(), mends.traces.end());
}

std::size_t setOf(const TomoDocument& document, std::size_t shot) {
  const std::int32_t set = document.ttArray[shot].traceSetID;
  return set < 0 ? document.recordings->traceSets.size() : static_cast<std::size_t>(set);
}

Status stack(const Proposal& proposal, std::size_t shot, TomoDocument& document,
             std::vector<Message>* notes) {
  const std::size_t set = setOf(document, shot);
  ShotMends mends = mendsOf(*document.recordings, set);
  for (const std::size_t other : proposal.others) {
    if (other >= document.ttArray.size()) return noSuchShot();
    const auto partner = static_cast<std::int32_t>(setOf(document, other));
    if (std::find(mends.stackedWith.begin(), mends.stackedWith.end(), partner) ==
        mends.stackedWith.end()) {
      mends.stackedWith.push_back(partner);
    }
  }
  Status status = setMends(set, std::move(mends), document, notes);
  for (const std::size_t other : proposal.others) {
    if (!status.ok()) break;
    ShotMends off = mendsOf(*document.recordings, setOf(document, other));
    off.disabled = true;
    status = setMends(setOf(document, other), std::move(off), document, notes);
  }
  return status;
}

Status mend(std::size_t shot, const Proposal& proposal, TomoDocument& document,
            std::vector<Message>* notes) {
  const std::size_t set = setOf(document, shot);
  if (set >= document.recordings->traceSets.size()) return noSuchShot();
  if (proposal.kind == Kind::kStack) return stack(proposal, shot, document, notes);
  const std::size_t count = document.recordings->traceSets[set].size();
  ShotMends mends = mendsOf(*document.recordings, set);
  if (proposal.kind == Kind::kTimeShift) mends.timeShift += proposal.seconds;
  if (proposal.kind == Kind::kDisableShot) mends.disabled = true;
  if (proposal.kind == Kind::kReverseOrder) reverseOrder(count, mends);
  const Status status = mendTraces(proposal, count, mends);
  return status.ok() ? setMends(set, std::move(mends), document, notes) : status;
}

}  // namespace

bool changesGeometry(const Proposal& proposal) {
  return proposal.kind == Kind::kMoveShot || proposal.kind == Kind::kMoveGeophones;
}

Status carryOut(const Finding& finding, const Proposal& proposal, TomoDocument& document,
                std::vector<Message>* notes) {
  if (!finding.shot || *finding.shot >= document.ttArray.size()) return noSuchShot();
  TomoDocument next = document;
  std::vector<Message> said;
  Status status = changesGeometry(proposal) ? editGeometry(*finding.shot, proposal, next)
                                            : mend(*finding.shot, proposal, next, &said);
  if (!status.ok()) return status;
  document = std::move(next);
  if (notes != nullptr) notes->insert(notes->end(), said.begin(), said.end());
  return status;
}

}  // namespace talvesk::doctor
