#include "processing/VelocityFilter.h"

#include "model/FilterSteps.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "processing/FkTransform.h"

#include <cmath>
#include <utility>

namespace talvesk {
namespace {

using Direction = VelocityFilter::Direction;

/// 1 at a distance of 0 or less, 0 at that of the whole taper.
double cosine(double distance, double taper) {
  if (distance <= 0.0) return 1.0;
  return distance >= taper ? 0.0 : 0.5 + 0.5 * std::cos(M_PI * distance / taper);
}

/// How much of a slowness (s/m, 0 and above) lies within the range.
double withinRange(const VelocityFilter& filter, double slowness) {
  const double share = filter.taper / 100.0;
  const double most = 1.0 / filter.slowest;
  const double least = filter.fastest > 0.0 ? 1.0 / filter.fastest : 0.0;
  return cosine(slowness - most, share * most) * cosine(least - slowness, share * least);
}

Status filterShot(TomoDocument& document, std::int32_t shot, const VelocityFilter& filter,
                  bool ofFiltered, std::vector<Message>& notes) {
  TraceLine line;
  const Status status = findTraceLine(document, shot, ofFiltered, line);
  if (!status.ok()) return status;
  TraceSet& traces = document.recordings.edit().traceSets[static_cast<std::size_t>(shot)];
  FkTransform transform(traces, line, ofFiltered);
  transform.weigh([&filter](double frequency, double wavenumber) {
    return weightOf(filter, frequency, wavenumber);
  });
  for (std::size_t place = 0; place < line.traces.size(); ++place) {
    if (line.traces[place] == TraceLine::kNone) continue;
    Trace& trace = traces[line.traces[place]];
    trace.filtered = {transform.trace(place), trace.samples};
  }
  if (line.missing > 0) {
    notes.push_back(
        Message::tr("shot %1: of %2 places along its line %3 have no trace, or a killed "
                    "one; they count as zero, beside them the filter is less sharp")
            .arg(shot + std::int64_t{1})
            .arg(line.traces.size())
            .arg(line.missing));
  }
  return {};
}

std::size_t tracesOf(const TomoDocument& document, std::int32_t shot) {
  const auto& sets = document.recordings->traceSets;
  const auto set = static_cast<std::size_t>(shot);
  return shot >= 0 && set < sets.size() ? sets[set].size() : 0;
}

}  // namespace

Status checkVelocityFilter(const VelocityFilter& filter) {
  if (!(filter.slowest > 0.0) || !(filter.fastest >= 0.0) ||
      (filter.fastest > 0.0 && !(filter.fastest > filter.slowest))) {
    return Status::failure(
        Message::tr("the slowest velocity, %1, must be above 0 and below the fastest, %2")
            .arg(Message::velocity(filter.slowest))
            .arg(Message::velocity(filter.fastest)));
  }
  if (!(filter.taper >= 0.0 && filter.taper < 100.0)) {
    return Status::failure(
        Message::tr("the taper must be 0 or more and less than 100 percent of a limit"));
  }
  return {};
}

double weightOf(const VelocityFilter& filter, double frequency, double wavenumber) {
  const bool itsWay = filter.direction == Direction::kBoth || wavenumber == 0.0 ||
                      (wavenumber > 0.0) == (filter.direction == Direction::kForth);
  const double size = std::fabs(wavenumber);
  double within = 0.0;
  if (itsWay && (frequency > 0.0 || size == 0.0)) {
    within = withinRange(filter, size == 0.0 ? 0.0 : size / frequency);
  }
  return filter.rejects ? 1.0 - within : within;
}

FilterOutcome velocityFilterShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                                  const VelocityFilter& filter, bool ofFiltered,
                                  std::vector<Message>& notes) {
  FilterOutcome outcome;
  const Status sound = checkVelocityFilter(filter);
  for (const std::int32_t shot : shots) {
    const std::size_t traces = tracesOf(document, shot);
    const Status done = sound.ok() ? filterShot(document, shot, filter, ofFiltered, notes) : sound;
    (done.ok() ? outcome.filtered : outcome.failed) += traces;
    if (!done.ok()) {
      if (outcome.status.ok()) {
        outcome.status = Status::failure(
            joined(Message::tr("shot %1").arg(shot + std::int64_t{1}), done.text()));
      }
      continue;
    }
    const double way = filter.direction == Direction::kForth  ? 1.0
                       : filter.direction == Direction::kBack ? -1.0
                                                              : 0.0;
    noteFilter(document, {shot},
               {FilterKind::kVelocity,
                {filter.slowest, filter.fastest, way, filter.rejects ? 0.0 : 1.0, filter.taper}},
               ofFiltered);
  }
  return outcome;
}

}  // namespace talvesk
