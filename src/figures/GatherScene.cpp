#include "figures/GatherScene.h"

#include "base/TextNumber.h"
#include "figures/DrawableValues.h"
#include "figures/FigureWords.h"
#include "figures/GatherWindow.h"
#include "figures/ShownLength.h"
#include "figures/ToldLength.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"
#include "view/SectionTexts.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

/// A shot further from the spread than this part of the spread's length is not drawn: the traces
/// would lose their room to it. The title tells where it is.
constexpr double kShotReach = 0.35;
/// More wiggles than this stand too close for any eye; every second or third is drawn then.
constexpr std::size_t kMostTraces = 600;
constexpr double kMaxGain = 1e6;

const TravelTime* recordOf(const TomoDocument& document, std::size_t shot) {
  const auto belongs = [shot](const TravelTime& record) {
    return record.traceSetID >= 0 && static_cast<std::size_t>(record.traceSetID) == shot;
  };
  const auto& records = document.ttArray;
  if (shot < records.size() && belongs(records[shot])) return &records[shot];
  const auto found = std::find_if(records.begin(), records.end(), belongs);
  if (found != records.end()) return &*found;
  return records.size() == document.recordings->traceSets.size() ? &records[shot] : nullptr;
}

/// Positions that say something about every trace: known, and not all at one place.
bool tellApart(const std::vector<double>& positions) {
  const auto known = std::all_of(positions.begin(), positions.end(), isPosition);
  if (!known || positions.empty()) return false;
  const auto [low, high] = std::minmax_element(positions.begin(), positions.end());
  return positions.size() == 1 || *low < *high;
}

std::vector<double> stringPositions(const TomoDocument& document, const TravelTime* record,
                                    std::size_t traces) {
  const auto& strings = document.line->goephonesStringSet;
  if (record == nullptr || record->indexStesa < 0) return {};
  const auto index = static_cast<std::size_t>(record->indexStesa);
  if (index >= strings.size() || strings[index].size() < traces) return {};
  std::vector<double> positions;
  for (std::size_t i = 0; i < traces; ++i) positions.push_back(strings[index][i].x);
  return positions;
}

std::vector<double> positionsOf(const TomoDocument& document, const TravelTime* record,
                                const TraceSet& set, bool& byChannel) {
  std::vector<double> positions;
  if (!byChannel) {
    positions = stringPositions(document, record, set.size());
    if (tellApart(positions)) return positions;
    positions.clear();
    for (const Trace& trace : set) positions.push_back(trace.receiverPosition.x);
    if (tellApart(positions)) return positions;
  }
  byChannel = true;
  positions.clear();
  for (std::size_t i = 0; i < set.size(); ++i) positions.push_back(static_cast<double>(i + 1));
  return positions;
}

/// A shot has no offsets where its own position, or that of a geophone, is not known.
GatherMapping mappingOf(const TomoDocument& document, const TravelTime* record, const TraceSet& set,
                        const GatherManner& manner) {
  std::vector<double> offsets;
  bool byChannel = false;
  const std::vector<double> positions = positionsOf(document, record, set, byChannel);
  if (!byChannel && record != nullptr && isPosition(record->shotPos2d.x)) {
    for (const double x : positions) offsets.push_back(x - record->shotPos2d.x);
  }
  return GatherMapping(manner, std::move(offsets));
}

/// The level that the trace swings about. Not the mean, which a strong late phase pulls away from
/// the quiet before the first break.
double levelOf(Span<double> samples) {
  std::vector<double> known;
  known.reserve(samples.size());
  for (const double v : samples) {
    if (std::isfinite(v)) known.push_back(v);
  }
  return medianOf(std::move(known), 0.0);
}

/// What of the samples lies in the window, and how far they swing there.
void measure(GatherTrace& trace, const TimeWindow& window) {
  const Span<double> samples = trace.samples;
  const auto index = [&](double drawnMs) {
    const double ms = drawnMs + trace.shiftMs;
    return static_cast<std::size_t>(
        std::clamp(ms / trace.intervalMs, 0.0, static_cast<double>(samples.size())));
  };
  // A hair of slack: a window that ends on a sample has that sample.
  const double slack = 1e-6 * trace.intervalMs;
  trace.first = index(window.beginMs + trace.intervalMs - slack);
  trace.end = std::min(index(window.endMs + slack) + 1, samples.size());
  trace.first = std::min(trace.first, trace.end);

  trace.level = levelOf(samples);
  trace.scale = GatherTrace::kFlat;
  for (std::size_t i = trace.first; i < trace.end; ++i) {
    if (!std::isfinite(samples[i])) continue;
    trace.scale = std::max(trace.scale, std::min(std::abs(samples[i] - trace.level) * trace.gain(i),
                                                 std::numeric_limits<double>::max()));
  }
}

/// \param reduced times before the shot are drawn, too
Status checkWindow(const TimeWindow& window, bool reduced) {
  const double earliest = reduced ? -kLongestGatherMs : 0.0;
  if (window.beginMs >= earliest && window.endMs <= kLongestGatherMs &&
      window.endMs > window.beginMs) {
    return {};
  }
  return Status::failure(Message::tr("The times from %1 to %2 ms cannot be drawn: choose a begin "
                                     "of 0 or more and an end after it.")
                             .arg(window.beginMs)
                             .arg(window.endMs));
}

Status checkOptions(const GatherFigureOptions& options) {
  if (options.window) {
    const bool reduced = options.manner.reduction > 0.0;
    if (Status status = checkWindow(*options.window, reduced); !status.ok()) return status;
  }
  if (!(options.gain > 0.0 && options.gain <= kMaxGain)) {
    return Status::failure(
        Message::tr("The gain of a gather must lie above 0 and not above %1.").arg(kMaxGain));
  }
  if (!(options.clip > 0.0 && options.clip <= 100.0)) {
    return Status::failure(
        Message::tr("Wiggles can be cut at more than 0 and up to 100 trace distances."));
  }
  return {};
}

std::string titleOf(const TomoDocument& document, std::size_t shot, const TravelTime* record,
                    bool receiversKnown, const GatherFigureOptions& options) {
  std::string title = options.title;
  if (title.empty()) {
    title = shotFile(document, shot);
    title.erase(0, title.find_last_of("/\\") + 1);
  }
  QStringList parts;
  if (!title.empty()) parts += QString::fromStdString(title);
  const std::size_t count = document.recordings->traceSets.size();
  QString number = count > 1 ? FigureWords::tr("Shot %1 of %2").arg(shot + 1).arg(count)
                             : FigureWords::tr("Shot %1").arg(shot + 1);
  // Where nothing else has a position, 0 is what stands for none.
  if (record != nullptr && isPosition(record->shotPos2d.x) &&
      (receiversKnown || record->shotPos2d.x != 0.0)) {
    number =
        FigureWords::tr("%1 at %2", "shot, place")
            .arg(number,
                 withLengthUnit(figureDigits(valueText(toldLength(record->shotPos2d.x), 0.1))));
  }
  return FigureWords::joined(parts << number).toStdString();
}

/// What became of the traces of a shot.
struct Counts {
  std::size_t looked = 0;
  std::size_t drawn = 0;
  std::size_t filtered = 0;
  std::size_t picks = 0;
  std::size_t hiddenPicks = 0;
  std::size_t errors = 0;  ///< bars of picks in the window
};

QStringList offsetWords(const GatherMapping& mapping) {
  if (!mapping.lacksOffsets()) return {};
  return {FigureWords::tr("offsets not known: not drawn by offset or reduced as asked")};
}

std::string captionOf(const Counts& counts, std::size_t step, const ShotMends& mends,
                      const GatherMapping& mapping, const GatherFigureOptions& options) {
  QString traces = FigureWords::traces(counts.drawn);
  if (counts.filtered > 0) {
    traces = (counts.filtered == counts.drawn ? FigureWords::tr("%1, filtered", "traces")
                                              : FigureWords::tr("%1, some filtered", "traces"))
                 .arg(traces);
  }
  QStringList parts{traces};
  if (step > 1) parts += FigureWords::tr("One of every %1 is drawn").arg(step);
  if (counts.drawn < counts.looked) {
    parts +=
        FigureWords::tr("%1 without samples or sample interval").arg(counts.looked - counts.drawn);
  }
  const bool own = options.scaling == GatherScaling::kEachTrace;
  parts += (own ? FigureWords::tr("Each trace to its own maximum, gain %1")
                : FigureWords::tr("All traces to one maximum, gain %1"))
               .arg(figureDigits(formatDouble(options.gain, 3)));
  parts += gainWords(mapping.manner());
  parts += offsetWords(mapping);
  if (options.picks) {
    parts += counts.picks == 0 ? FigureWords::tr("no picks") : FigureWords::picks(counts.picks);
  }
  if (counts.hiddenPicks > 0) {
    parts += FigureWords::tr("%1 outside the times shown", "picks")
                 .arg(FigureWords::picks(counts.hiddenPicks));
  }
  if (counts.errors > 0) parts += FigureWords::errorBars();
  parts += FigureWords::mends(mends);
  return FigureWords::joined(parts).toStdString();
}

/// What stands below a sheet of several shots, too.
std::string remarksOf(const Counts& counts, std::size_t step, const ShotMends& mends,
                      const GatherMapping& mapping) {
  QStringList parts;
  if (step > 1) parts += FigureWords::tr("One of every %1 is drawn").arg(step);
  if (counts.drawn < counts.looked) {
    parts +=
        FigureWords::tr("%1 without samples or sample interval").arg(counts.looked - counts.drawn);
  }
  if (counts.hiddenPicks > 0) {
    parts += FigureWords::tr("%1 outside the times shown", "picks")
                 .arg(FigureWords::picks(counts.hiddenPicks));
  }
  parts += offsetWords(mapping);
  parts += FigureWords::mends(mends);
  return parts.join(QStringLiteral(", ")).toStdString();
}

/// \param positions on the axis
void setAxis(const std::vector<double>& positions, const TravelTime* record,
             const GatherMapping& mapping, GatherScene& scene) {
  scene.low = scene.high = 1.0;
  if (positions.empty()) return;
  scene.receivers = positions;
  std::sort(scene.receivers.begin(), scene.receivers.end());
  std::vector<double> unfolded = mapping.isByOffset() ? mapping.offsets() : scene.receivers;
  std::sort(unfolded.begin(), unfolded.end());
  scene.spacing = medianGap(unfolded);
  scene.low = scene.receivers.front();
  scene.high = scene.receivers.back();
  if (scene.byChannel || record == nullptr || !isPosition(record->shotPos2d.x)) return;
  const double reach = std::max(kShotReach * (scene.high - scene.low), 2.0 * scene.spacing);
  const double x = mapping.isByOffset() ? 0.0 : record->shotPos2d.x;
  if (x < scene.low - reach || x > scene.high + reach) return;
  scene.shotX = x;
  scene.low = std::min(scene.low, x);
  scene.high = std::max(scene.high, x);
}

/// Adds a trace unless there is nothing of it to draw. \param gain that it was given by a mend
void addTrace(const TraceSet& set, std::size_t channel, double x, double gain,
              const TravelTime* record, const GatherMapping& mapping,
              const GatherFigureOptions& options, GatherScene& scene, Counts& counts) {
  const Trace& source = set[channel];
  GatherTrace trace;
  trace.channel = channel;
  trace.x = x;
  trace.shiftMs = 1e3 * mapping.shift(channel);
  trace.timeGain = mapping.manner().timeGain;
  ++counts.looked;
  if (options.picks && record != nullptr && channel < record->ttMisurati.size() &&
      isDrawableTime(record->ttMisurati[channel])) {
    const double ms = 1e3 * record->ttMisurati[channel] - trace.shiftMs;
    const bool inside = ms >= scene.window.beginMs && ms <= scene.window.endMs;
    if (inside) {
      trace.pickMs = ms;
      if (options.errorBars) trace.errorMs = 1e3 * record->errorOf(channel);
      if (trace.errorMs > 0.0) ++counts.errors;
    }
    ++(inside ? counts.picks : counts.hiddenPicks);
  }
  const bool filtered = options.filtered && !source.filtered.empty();
  trace.samples = filtered ? source.filtered : source.samples;
  if (!trace.samples.empty() && hasInterval(source)) {
    trace.intervalMs = 1e3 * source.sampleInterval;
    measure(trace, scene.window);
    ++counts.drawn;
    counts.filtered += filtered ? 1 : 0;
  } else if (!trace.pickMs) {
    return;
  }
  // A trace that was given a gain of its own is drawn so much larger than by its own measure.
  if (options.scaling == GatherScaling::kEachTrace) trace.scale /= gain;
  scene.traces.push_back(trace);
}

/// One scale for all traces that swing at all.
void scaleAlike(std::vector<GatherTrace>& traces) {
  double largest = GatherTrace::kFlat;
  for (const GatherTrace& trace : traces) largest = std::max(largest, trace.scale);
  for (GatherTrace& trace : traces) {
    if (trace.scale > GatherTrace::kFlat) trace.scale = largest;
  }
}

}  // namespace

double GatherTrace::gain(std::size_t sample) const {
  return timeGainAt(1e-3 * static_cast<double>(sample) * intervalMs, timeGain);
}

double GatherTrace::swing(std::size_t sample) const {
  const double value = samples[sample];
  if (!std::isfinite(value)) return std::numeric_limits<double>::quiet_NaN();
  if (scale <= kFlat) return 0.0;
  return std::clamp((value - level) * gain(sample), -std::numeric_limits<double>::max(),
                    std::numeric_limits<double>::max()) /
         scale;
}

Status buildGatherScene(const TomoDocument& document, std::size_t shot,
                        const GatherFigureOptions& options, GatherScene& scene) {
  if (shot >= document.recordings->traceSets.size()) {
    const std::size_t shots = document.recordings->traceSets.size();
    return Status::failure(
        Message::tr("There is no shot %1 to draw: the document has %2 with traces.")
            .arg(shot + 1)
            .arg(shots == 1 ? Message::tr("1 shot") : Message::tr("%1 shots").arg(shots)));
  }
  if (Status status = checkOptions(options); !status.ok()) return status;
  const TraceSet& set = document.recordings->traceSets[shot];
  const TravelTime* record = recordOf(document, shot);
  GatherScene made;
  made.byChannel = options.byChannel;
  const GatherMapping mapping = mappingOf(document, record, set, options.manner);
  made.manner = mapping.manner();
  made.window = options.window.value_or(gatherWindow(set, record, mapping));
  std::vector<double> positions = positionsOf(document, record, set, made.byChannel);
  made.title = titleOf(document, shot, record, options.byChannel || !made.byChannel, options);
  if (mapping.isByOffset()) {
    made.byChannel = false;
    for (std::size_t i = 0; i < set.size(); ++i) positions[i] = mapping.place(i);
  }
  setAxis(positions, record, mapping, made);

  made.traceStep = std::max<std::size_t>((set.size() + kMostTraces - 1) / kMostTraces, 1);
  const ShotMends& mends = mendsOf(document.recordings->mends, shot);
  Counts counts;
  for (std::size_t i = 0; i < set.size(); i += made.traceStep) {
    addTrace(set, i, positions[i], mendOf(mends, i).gain, record, mapping, options, made, counts);
  }
  if (options.scaling == GatherScaling::kWholeShot) scaleAlike(made.traces);
  made.hasPicks = counts.picks > 0;
  made.caption = captionOf(counts, made.traceStep, mends, mapping, options);
  made.remarks = remarksOf(counts, made.traceStep, mends, mapping);
  scene = std::move(made);
  return {};
}

std::size_t shotsLackingOffsets(const TomoDocument& document, const GatherFigureOptions& options) {
  const auto& sets = document.recordings->traceSets;
  std::size_t lacking = 0;
  for (std::size_t i = 0; i < sets.size(); ++i) {
    if (options.shot && *options.shot != i) continue;
    const TravelTime* record = recordOf(document, i);
    if (mappingOf(document, record, sets[i], options.manner).lacksOffsets()) ++lacking;
  }
  return lacking;
}

QStringList gainWords(const GatherManner& manner) {
  if (!(manner.timeGain > 0.0)) return {};
  return {FigureWords::tr("gain with time t^%1", "exponent")
              .arg(figureDigits(formatDouble(manner.timeGain, 3)))};
}

QString placeAxis(const GatherScene& scene) {
  if (scene.byChannel) return FigureWords::channelAxis();
  if (scene.manner.byOffset == OffsetOrder::kNone) return FigureWords::distanceAxis();
  return (scene.manner.byOffset == OffsetOrder::kAbsolute ? FigureWords::tr("Absolute offset [%1]")
                                                          : FigureWords::tr("Offset [%1]"))
      .arg(lengthUnitText());
}

QString timeAxis(const GatherScene& scene) {
  if (!(scene.manner.reduction > 0.0)) return FigureWords::timeAxis();
  return FigureWords::tr("Reduced time [ms], t - |x|/%1 %2")
      .arg(QString::fromStdString(formatDouble(std::round(shownLength(scene.manner.reduction)))),
           velocityUnitText());
}

}  // namespace talvesk
