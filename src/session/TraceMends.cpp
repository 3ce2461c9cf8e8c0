#include "session/TraceMends.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <cmath>
#include <utility>

namespace talvesk {

Status mendTraces(TomoDocument& document, std::int32_t record,
                  const std::vector<std::size_t>& traces,
                  const std::function<void(TraceMend&)>& change, std::vector<Message>* notes) {
  const std::vector<TravelTime>& records = document.ttArray;
  const bool exists = record >= 0 && static_cast<std::size_t>(record) < records.size();
  const TravelTime* shot = exists ? &records[static_cast<std::size_t>(record)] : nullptr;
  const TraceSet* recorded = shot != nullptr ? document.tracesOf(*shot) : nullptr;
  if (recorded == nullptr) {
    return Status::failure(
        Message::tr("shot %1 has no traces to mend").arg(record + std::int64_t{1}));
  }
  const auto set = static_cast<std::size_t>(shot->traceSetID);
  ShotMends mends = mendsOf(*document.recordings, set);
  for (const std::size_t trace : traces) {
    if (trace >= recorded->size()) {
      return Status::failure(Message::tr("shot %1 has no trace %2").arg(set + 1).arg(trace + 1));
    }
    if (mends.traces.size() <= trace) mends.traces.resize(trace + 1);
    change(mends.traces[trace]);
  }
  return setMends(set, std::move(mends), document, notes);
}

double nextGain(double gain, bool larger) {
  const int power = std::ilogb(gain);
  const double row[] = {std::ldexp(1.5, power - 1), std::ldexp(1.0, power), std::ldexp(1.5, power),
                        std::ldexp(1.0, power + 1)};
  double next = gain;
  for (const double step : row) {
    if (step < TraceMend::kLeastGain || step > TraceMend::kMostGain) continue;
    if (larger && step > gain) return step;
    if (!larger && step < gain) next = step;
  }
  return next;
}

}  // namespace talvesk
