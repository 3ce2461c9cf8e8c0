#include "doctor/FindingTexts.h"

#include "doctor/FindingParts.h"

#include <cmath>

namespace talvesk::doctor {
namespace {

struct KindWords {
  Finding::Kind kind;
  const char* key;
  Message name;
};

const KindWords& wordsOf(Finding::Kind kind) {
  using Kind = Finding::Kind;
  static const KindWords words[] = {
      {Kind::kShotPosition, "shot_position", Message::tr("shot position")},
      {Kind::kStationNumbers, "station_numbers", Message::tr("station numbers")},
      {Kind::kRepeatedPositions, "repeated_positions", Message::tr("repeated positions")},
      {Kind::kReversedOrder, "reversed_order", Message::tr("reversed order")},
      {Kind::kDoubledTrace, "doubled_trace", Message::tr("doubled trace")},
      {Kind::kMovedTrace, "moved_trace", Message::tr("moved traces")},
      {Kind::kGeophoneOffLine, "geophone_off_line", Message::tr("geophone off the line")},
      {Kind::kTriggerTime, "trigger_time", Message::tr("trigger time")},
      {Kind::kDeadTrace, "dead_trace", Message::tr("dead traces")},
      {Kind::kClippedTrace, "clipped_trace", Message::tr("clipped traces")},
      {Kind::kNoisyTrace, "noisy_trace", Message::tr("noisy traces")},
      {Kind::kReversedPolarity, "reversed_polarity", Message::tr("reversed polarity")},
      {Kind::kMistimedTrace, "mistimed_trace", Message::tr("mistimed trace")},
      {Kind::kSampleIntervals, "sample_intervals", Message::tr("sample intervals")},
      {Kind::kRepeatedShot, "repeated_shot", Message::tr("repeated shot")},
      {Kind::kOverlappingSpreads, "overlapping_spreads", Message::tr("overlapping spreads")},
      {Kind::kNoElevations, "no_elevations", Message::tr("no elevations")}};
  for (const KindWords& entry : words) {
    if (entry.kind == kind) return entry;
  }
  return words[0];
}

}  // namespace

Message nameOf(Finding::Kind kind) {
  return wordsOf(kind).name;
}

const char* keyOf(Finding::Kind kind) {
  return wordsOf(kind).key;
}

const char* keyOf(Proposal::Kind kind) {
  switch (kind) {
    case Proposal::Kind::kTimeShift:
      return "time_shift";
    case Proposal::Kind::kKillTraces:
      return "kill_traces";
    case Proposal::Kind::kReverseTraces:
      return "reverse_traces";
    case Proposal::Kind::kMuteTraces:
      return "mute_traces";
    case Proposal::Kind::kReverseOrder:
      return "reverse_order";
    case Proposal::Kind::kMoveShot:
      return "move_shot";
    case Proposal::Kind::kMoveGeophones:
      return "move_geophones";
    case Proposal::Kind::kStack:
      return "stack";
    case Proposal::Kind::kDisableShot:
      break;
  }
  return "disable_shot";
}

Message describe(const Proposal& proposal) {
  const auto first = [&] { return proposal.points.empty() ? Point2D() : proposal.points.front(); };
  const auto last = [&] { return proposal.points.empty() ? Point2D() : proposal.points.back(); };
  switch (proposal.kind) {
    case Proposal::Kind::kTimeShift:
      return proposal.seconds < 0.0 ? Message::tr("move the record later by %1 ms")
                                          .arg(milliseconds(-proposal.seconds))
                                    : Message::tr("move the record earlier by %1 ms")
                                          .arg(milliseconds(proposal.seconds));
    case Proposal::Kind::kKillTraces:
      return Message::tr("kill %1").arg(traceList(proposal.traces));
    case Proposal::Kind::kReverseTraces:
      return Message::tr("reverse the polarity of %1").arg(traceList(proposal.traces));
    case Proposal::Kind::kMuteTraces:
      return Message::tr("mute %1 before %2 ms")
          .arg(traceList(proposal.traces))
          .arg(milliseconds(proposal.seconds));
    case Proposal::Kind::kReverseOrder:
      return Message::tr("read the channels from the last to the first");
    case Proposal::Kind::kMoveShot:
      return Message::tr("put the shot at %1").arg(Message::length(first().x, 5));
    case Proposal::Kind::kMoveGeophones:
      return Message::tr("put the %1 geophones of its string at %2 to %3")
          .arg(proposal.points.size())
          .arg(Message::length(first().x, 5))
          .arg(Message::length(last().x, 5));
    case Proposal::Kind::kStack:
      return Message::tr("stack it with %1; the stack alone counts then")
          .arg(shotList(proposal.others));
    case Proposal::Kind::kDisableShot:
      break;
  }
  return Message::tr("disable the shot");
}

}  // namespace talvesk::doctor
