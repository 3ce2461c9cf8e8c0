#include "processing/TraceLine.h"

#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace talvesk {
namespace {

constexpr std::size_t kFewest = 4;

const TravelTime* recordOf(const TomoDocument& document, std::int32_t shot) {
  const auto found =
      std::find_if(document.ttArray.begin(), document.ttArray.end(),
                   [shot](const TravelTime& record) { return record.traceSetID == shot; });
  return found == document.ttArray.end() ? nullptr : &*found;
}

const Samples& samplesOf(const Trace& trace, bool ofFiltered) {
  return ofFiltered && !trace.filtered.empty() ? trace.filtered : trace.samples;
}

Status measure(const TraceSet& traces, bool ofFiltered, TraceLine& line) {
  for (std::size_t t = 0; t < traces.size(); ++t) {
    const Span<double> samples = samplesOf(traces[t], ofFiltered);
    const double interval = traces[t].sampleInterval;
    if (t == 0) {
      line.samples = samples.size();
      line.interval = interval;
    }
    if (samples.size() != line.samples || interval != line.interval) {
      return Status::failure(
          Message::tr("trace %1 has another length or sample interval than trace 1").arg(t + 1));
    }
    if (!std::all_of(samples.begin(), samples.end(), [](double v) { return std::isfinite(v); })) {
      return Status::failure(Message::tr("trace %1 has samples that are no numbers").arg(t + 1));
    }
  }
  if (line.samples == 0 || !(line.interval > 0.0) || !std::isfinite(line.interval)) {
    return Status::failure(Message::tr("it has no samples, or no known sample interval"));
  }
  return {};
}

/// Gives every trace its place among evenly spaced ones.
Status place(const std::vector<double>& x, TraceLine& line) {
  std::vector<std::size_t> order(x.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&x](std::size_t a, std::size_t b) { return x[a] < x[b]; });
  std::vector<double> ascending;
  for (const std::size_t trace : order) ascending.push_back(x[trace]);
  line.spacing = medianGap(ascending);
  for (std::size_t i = 0; i < order.size(); ++i) {
    const double places = (ascending[i] - ascending.front()) / line.spacing;
    const double gap = i == 0 ? 1.0 : (ascending[i] - ascending[i - 1]) / line.spacing;
    const double whole = std::round(gap);
    if (whole < 1.0 || std::fabs(gap - whole) > kUnevenSpacing ||
        std::fabs(places - std::round(places)) > 2.0 * kUnevenSpacing ||
        places > 2.0 * static_cast<double>(order.size())) {
      return Status::failure(
          Message::tr("its geophones are not evenly spaced: trace %1 at %2 is %3 from the one "
                      "before, the usual distance is %4")
              .arg(order[i] + 1)
              .arg(Message::length(ascending[i]))
              .arg(Message::length(i == 0 ? 0.0 : ascending[i] - ascending[i - 1]))
              .arg(Message::length(line.spacing)));
    }
    line.traces.resize(static_cast<std::size_t>(std::lround(places)) + 1, TraceLine::kNone);
    line.traces.back() = order[i];
  }
  return {};
}

}  // namespace

Status findTraceLine(const TomoDocument& document, std::int32_t shot, bool ofFiltered,
                     TraceLine& line) {
  line = {};
  const TravelTime* record = recordOf(document, shot);
  const TraceSet* traces = record != nullptr ? document.tracesOf(*record) : nullptr;
  if (traces == nullptr || traces->size() < kFewest) {
    return Status::failure(Message::tr("it has fewer than %1 traces").arg(kFewest));
  }
  std::vector<double> x;
  for (const Point2D& point : document.receiversOf(*record)) x.push_back(point.x);
  const auto isKnown = [](double place) { return std::isfinite(place); };
  if (x.size() < traces->size() || !std::all_of(x.begin(), x.end(), isKnown)) {
    return Status::failure(Message::tr("the positions of its geophones are not known"));
  }
  x.resize(traces->size());
  Status status = measure(*traces, ofFiltered, line);
  if (status.ok()) status = place(x, line);
  if (!status.ok()) return status;
  for (const std::size_t trace : line.traces) {
    const bool none = trace == TraceLine::kNone || [](Span<double> samples) {
      return std::all_of(samples.begin(), samples.end(), [](double v) { return v == 0.0; });
    }(samplesOf((*traces)[trace], ofFiltered));
    if (none) ++line.missing;
  }
  if (2 * line.missing > line.traces.size()) {
    return Status::failure(Message::tr("of %1 places along its line %2 have no trace")
                               .arg(line.traces.size())
                               .arg(line.missing));
  }
  return {};
}

}  // namespace talvesk
