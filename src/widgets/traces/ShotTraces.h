#pragma once

#include "base/Span.h"
#include "model/Trace.h"
#include "view/GatherMapping.h"

#include <cstddef>
#include <limits>
#include <vector>

namespace talvesk {

class TomoDocument;
struct TravelTime;

/// One record of a document as the trace view sees it: samples, times and positions by channel.
/// Looks everything up anew, so that a document that changed behind its back is read within its
/// bounds; keeps only means and largest deflections. The document is not owned.
class ShotTraces {
 public:
  ShotTraces() = default;
  /// \param record from 0; one that does not exist makes a shot without traces
  /// \param showFiltered prefer the filtered copies
  /// \param manner how it is drawn
  ShotTraces(const TomoDocument* document, int record, bool showFiltered,
             const GatherManner& manner = {});

  int record() const { return mRecord; }
  /// Traces of the trace set; of a record of picks only: its measured times.
  int count() const { return static_cast<int>(mMean.size()); }
  bool hasSamples() const;

  Span<double> samples(int trace) const;  ///< as displayed; empty: none
  double interval(int trace) const;       ///< seconds, above 0; 0.001 where the file gave none
  double recordEnd(int trace) const;      ///< time of the last sample, seconds
  double mean(int trace) const { return mMean[index(trace)]; }
  /// Largest |sample - mean|, each times the gain at its time.
  double peak(int trace) const { return mPeak[index(trace)]; }
  /// That a mend gave the trace, 1 without. Its samples have it already; one that is scaled by its
  /// own peak is drawn so many times as large.
  double gain(int trace) const { return mGain[index(trace)]; }
  double shotPeak() const { return mShotPeak; }  ///< largest of all traces
  /// End of the time axis, seconds, above 0: of the longest trace, or of the latest time.
  double timeEnd() const { return mTimeEnd; }

  const GatherMapping& mapping() const { return mMapping; }
  double drawnTime(int trace, double time) const { return mMapping.drawnTime(index(trace), time); }
  double trueTime(int trace, double drawn) const { return mMapping.trueTime(index(trace), drawn); }
  double drawnBegin() const;  ///< earliest time at which a trace may be drawn, seconds
  double drawnEnd() const;    ///< end of the time axis as drawn, seconds, after its begin

  double receiverX(int trace) const;  ///< metres; NaN unknown
  double shotX() const;               ///< metres; NaN unknown
  double offset(int trace) const { return receiverX(trace) - shotX(); }

  bool canPick(int trace) const;  ///< the record has a time for the trace
  double measured(int trace) const;
  double error(int trace) const;  ///< of the pick, seconds; 0: not known
  double computed(int trace) const;
  const TravelTime* times() const;

 private:
  static std::size_t index(int trace) { return static_cast<std::size_t>(trace); }
  const Trace* find(int trace) const;
  const TraceSet* traceSet() const;
  void measure(const GatherManner& manner);

  const TomoDocument* mDocument = nullptr;
  int mRecord = -1;
  bool mShowFiltered = false;
  GatherMapping mMapping;
  std::vector<double> mMean;
  std::vector<double> mPeak;
  std::vector<double> mGain;
  double mShotPeak = 0.0;
  double mTimeEnd = 0.1;
};

}  // namespace talvesk
