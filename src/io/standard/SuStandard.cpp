#include "io/standard/SuStandard.h"

#include "io/standard/SegyLayout.h"
#include "io/standard/SegyShots.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace talvesk {
namespace {

SegyLayout layoutOf(std::string_view bytes, ByteOrder order) {
  SegyLayout layout;
  layout.order = order;
  layout.end = bytes.size();
  return layout;
}

bool isKind(std::int16_t kind) {
  return kind >= -1 && kind <= 255;  // none of them is one with its bytes swapped but 0 and -1
}

/// How much speaks for this byte order.
int plausibility(std::string_view bytes, ByteOrder order) {
  const SegyTraceHeader first = segyTraceHeader(bytes, 0, order);
  if (first.samples == 0) return 0;
  int points = 1;
  if (isKind(first.kind)) points += 2;
  if (first.interval <= 32000.0) ++points;
  const SegyFit fit = fitOf(bytes, layoutOf(bytes, order));
  if (fit.whole) points += 4;
  if (fit.traces > 1 && fit.alike == fit.traces) points += 2;
  return points;
}

}  // namespace

Likelihood likelihoodOfSu(std::string_view head, std::size_t fileSize) {
  if (head.size() < kSegyTraceHeaderBytes) return Likelihood::kNo;
  Likelihood likely = Likelihood::kNo;
  for (const ByteOrder order : {ByteOrder::kBig, ByteOrder::kLittle}) {
    const SegyTraceHeader first = segyTraceHeader(head, 0, order);
    const std::uint64_t trace =
        kSegyTraceHeaderBytes + std::uint64_t{first.samples} * sizeof(float);
    if (first.samples == 0 || !isKind(first.kind) || trace > fileSize) continue;
    const bool whole = fileSize % trace == 0;
    if (whole && first.interval > 0.0) return Likelihood::kYes;
    // Traces of different lengths, or cut short, or without an interval.
    if (whole || first.interval > 0.0) likely = Likelihood::kPerhaps;
  }
  return likely;
}

Status findSuByStandard(std::string_view bytes, SegyTraces& found) {
  if (bytes.size() < kSegyTraceHeaderBytes) {
    return Status::failure(Message::tr("it is too short for an SU file with a trace"));
  }
  const bool little =
      plausibility(bytes, ByteOrder::kLittle) > plausibility(bytes, ByteOrder::kBig);
  const SegyLayout layout = layoutOf(bytes, little ? ByteOrder::kLittle : ByteOrder::kBig);
  found.format = "su";
  found.order = layout.order;
  found.code = segySampleCode(kSegyIeeeFloat);
  found.hasLaterKinds = true;
  found.traces = findSegyTraces(bytes, layout, found.warnings);
  if (found.traces.front().samples == 0) {
    return Status::failure(Message::tr("its first trace tells no number of samples"));
  }
  return {};
}

Status readSuByStandard(std::string_view bytes, StandardReading& reading) {
  SegyTraces found;
  if (Status status = findSuByStandard(bytes, found); !status.ok()) return status;
  return readSegyShots(bytes, std::move(found), reading);
}

}  // namespace talvesk
