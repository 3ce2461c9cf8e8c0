#include "processing/ShotFilters.h"

#include "base/TextNumber.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "processing/Spectrum.h"
#include "processing/TraceFilters.h"

#include <string>

namespace talvesk {
namespace {

double normalised(double hertz, double highestFrequency) {
  return hertz / (2.0 * highestFrequency);
}

Status checkCorner(const Message& name, const FilterCorner& corner, double highestFrequency) {
  const double fc = normalised(corner.hertz, highestFrequency);
  // The design works in single precision, where a frequency just below the limit rounds up to it.
  const auto single = static_cast<float>(fc);
  if (single > 0.0F && single < 0.5F) return {};
  const Message limit =
      highestFrequency > 0.0
          ? Message::tr("must be above 0 Hz and below %1 Hz, the highest frequency of the spectrum")
                .arg(highestFrequency)
          : Message::tr(
                "has no limit to keep to, as the spectrum has no frequency above 0 Hz: the "
                "traces are too short or their sample interval is not known");
  return Status::failure(Message::tr("No filter applied. The %1 cut-off of %2 Hz %3.")
                             .arg(name)
                             .arg(corner.hertz)
                             .arg(limit));
}

void count(FilterOutcome& outcome, const Status& status, const Message& where) {
  if (status.ok()) {
    ++outcome.filtered;
    return;
  }
  ++outcome.failed;
  if (outcome.status.ok()) {
    outcome.status = Status::failure(joined(where, status.text()));
  }
}

void add(FilterOutcome& sum, const FilterOutcome& part, const Message& where) {
  sum.filtered += part.filtered;
  sum.failed += part.failed;
  if (sum.status.ok() && !part.status.ok()) {
    sum.status = Status::failure(joined(where, part.status.text()));
  }
}

TraceSet* tracesOf(TomoDocument& document, std::int32_t shot) {
  if (shot < 0 || static_cast<std::size_t>(shot) >= document.recordings->traceSets.size())
    return nullptr;
  return &document.recordings.edit().traceSets[static_cast<std::size_t>(shot)];
}

// Users count from 1.
Message nameOf(std::int32_t shot) {
  return Message::tr("shot %1").arg(shot + std::int64_t{1});
}
Message nameOf(std::size_t trace) {
  return Message::tr("trace %1").arg(trace + 1);
}

/// Runs an operation over shots and puts their outcomes together.
template <typename Operation>
FilterOutcome overShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                        Operation operation) {
  FilterOutcome outcome;
  for (const std::int32_t shot : shots) {
    TraceSet* traces = tracesOf(document, shot);
    if (traces == nullptr) {
      add(outcome, {0, 0, Status::failure(Message::tr("there are no traces"))}, nameOf(shot));
    } else {
      add(outcome, operation(*traces), nameOf(shot));
    }
  }
  return outcome;
}

}  // namespace

Status checkBandFilter(const BandFilter& filter, double highestFrequency) {
  for (const auto& corner : {filter.low, filter.high}) {
    if (corner && corner->order < 1) {
      return Status::failure(
          Message::tr("No filter applied. Filter order must be greater then 0."));
    }
  }
  Status status;
  if (filter.low) status = checkCorner(Message::tr("low-pass"), *filter.low, highestFrequency);
  if (status.ok() && filter.high) {
    status = checkCorner(Message::tr("high-pass"), *filter.high, highestFrequency);
  }
  return status;
}

Status bandFilterTrace(Span<double> in, const BandFilter& filter, double highestFrequency,
                       std::vector<double>& out) {
  Status status = checkBandFilter(filter, highestFrequency);
  if (!status.ok()) return status;
  std::vector<double> result(in.begin(), in.end());
  if (filter.low) {
    status =
        lowPass(result, filter.low->order, normalised(filter.low->hertz, highestFrequency), result);
  }
  if (status.ok() && filter.high) {
    status = highPass(result, filter.high->order, normalised(filter.high->hertz, highestFrequency),
                      result);
  }
  if (status.ok()) out = std::move(result);
  return status;
}

Status refilter(Trace& trace, const std::function<Status(std::vector<double>&)>& filter) {
  std::vector<double> filtered;
  Status status = filter(filtered);
  if (status.ok()) trace.filtered = {std::move(filtered), trace.samples};
  return status;
}

FilterOutcome bandFilterTraces(TraceSet& traces, const BandFilter& filter,
                               double highestFrequency) {
  if (!filter.low && !filter.high) return {};
  const Status check = checkBandFilter(filter, highestFrequency);
  if (!check.ok()) return {0, traces.size(), check};
  FilterOutcome outcome;
  for (std::size_t t = 0; t < traces.size(); ++t) {
    count(outcome,
          refilter(traces[t],
                   [&](std::vector<double>& out) {
                     return bandFilterTrace(traces[t].samples, filter, highestFrequency, out);
                   }),
          nameOf(t));
  }
  return outcome;
}

FilterOutcome bandFilterShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                              const BandFilter& filter) {
  if (!filter.low && !filter.high) return {};
  FilterOutcome outcome = overShots(document, shots, [&](TraceSet& traces) {
    HighestFrequency highest;
    highest.see(computeSpectrum(traces, true));
    return bandFilterTraces(traces, filter, highest.value());
  });
  if (outcome.filtered > 0) noteFilter(document, shots, stepOf(filter), false);
  return outcome;
}

FilterStep stepOf(const BandFilter& filter) {
  const FilterCorner none{0.0, 0};
  const FilterCorner low = filter.low.value_or(none);
  const FilterCorner high = filter.high.value_or(none);
  return {FilterKind::kBand,
          {low.hertz, static_cast<double>(low.order), high.hertz, static_cast<double>(high.order)}};
}

FilterOutcome agcShots(TomoDocument& document, const std::vector<std::int32_t>& shots) {
  FilterOutcome outcome = filterEachTrace(document, shots, [](Trace& trace) {
    return refilter(trace, [&](std::vector<double>& out) { return agcTrace(trace.samples, out); });
  });
  if (outcome.filtered > 0) noteFilter(document, shots, {FilterKind::kAgc, {}}, false);
  return outcome;
}

FilterOutcome filterEachTrace(TomoDocument& document, const std::vector<std::int32_t>& shots,
                              const std::function<Status(Trace&)>& operation) {
  return overShots(document, shots, [&](TraceSet& traces) {
    FilterOutcome outcome;
    for (std::size_t t = 0; t < traces.size(); ++t) {
      count(outcome, operation(traces[t]), nameOf(t));
    }
    return outcome;
  });
}

}  // namespace talvesk
