#pragma once

#include "base/Span.h"
#include "base/Status.h"
#include "figures/GatherFigureOptions.h"

#include <QString>
#include <QStringList>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A trace as a gather shows it: about its median, as a part of its full swing.
struct GatherTrace {
  static constexpr double kFlat = 0.0;  ///< scale of a trace that does not swing

  std::size_t channel = 0;  ///< index in the trace set
  double x = 0.0;           ///< on the lower axis
  Span<double> samples;     ///< of the document
  double intervalMs = 0.0;
  std::size_t first = 0;  ///< samples [first, end) lie within the window
  std::size_t end = 0;
  double level = 0.0;            ///< median of all samples
  double scale = kFlat;          ///< largest distance from the level, with its gain, in the window
  std::optional<double> pickMs;  ///< as drawn, within the window
  double errorMs = 0.0;          ///< of the pick, one standard deviation; 0: not known

  double shiftMs = 0.0;   ///< what reduced time takes from its times
  double timeGain = 0.0;  ///< exponent of the gain that its swings have, see GatherMapping

  /// As drawn.
  double timeMs(std::size_t sample) const {
    return static_cast<double>(sample) * intervalMs - shiftMs;
  }
  double gain(std::size_t sample) const;  ///< with time
  /// From -1 to 1 for a trace scaled by itself, times the gain that it has by a mend; not a number
  /// where the sample is none.
  double swing(std::size_t sample) const;
};

/// What the picture of one shot shows. Looks at the document, which must outlive it.
struct GatherScene {
  std::string title;    ///< UTF-8
  std::string caption;  ///< UTF-8
  /// Of the caption, what is left out and what is mended; as a rule empty.
  std::string remarks;
  bool byChannel = false;
  GatherManner manner;  ///< as the offsets of the shot allow; by offset it is not by channel
  /// Those with samples or a pick, in channel order; of very many only every `traceStep`-th.
  std::vector<GatherTrace> traces;
  std::size_t traceStep = 1;
  std::vector<double> receivers;  ///< x of all traces, ascending
  double spacing = 1.0;           ///< usual distance between neighbours, on the lower axis
  double low = 0.0;               ///< of the lower axis: receivers, and the shot where it is near
  double high = 0.0;
  std::optional<double> shotX;  ///< on the lower axis, within low and high
  TimeWindow window;
  bool hasPicks = false;
};

/// Gathers what the options ask for. Fails for a shot that is not there, and for options that make
/// no picture; traces that cannot be drawn (no samples, no sample interval) are left out and
/// counted in the caption.
Status buildGatherScene(const TomoDocument& document, std::size_t shot,
                        const GatherFigureOptions& options, GatherScene& scene);

/// How many of the shots to be drawn cannot be drawn in the manner asked for, because their offsets
/// are not known; their captions say so.
std::size_t shotsLackingOffsets(const TomoDocument& document, const GatherFigureOptions& options);

// What the axes of a gather say, by the manner that it is drawn in, and what of that no axis says.

QString placeAxis(const GatherScene& scene);
QString timeAxis(const GatherScene& scene);
QStringList gainWords(const GatherManner& manner);

}  // namespace talvesk
