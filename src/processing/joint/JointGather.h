#pragma once

#include "base/Point2D.h"
#include "processing/joint/ArrivalPath.h"
#include "processing/joint/ArrivalSmoothing.h"
#include "processing/joint/JointPickOptions.h"
#include "processing/joint/OnsetTrace.h"
#include "processing/joint/PickRefinement.h"
#include "processing/joint/Reciprocity.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

struct Trace;
class TomoDocument;

/// A shot while it is picked along the line. It looks at the document's traces, which have to stay.
class JointGather {
 public:
  /// Empty when the shot has no traces, and not usable() when none of them has a place and an
  /// interval.
  JointGather(const TomoDocument& document, std::int32_t shot, const JointPickOptions& options);

  /// The arrivals are within a reach of a drawn line from its first to its last point.
  void heed(const GuideLine& guide);

  std::int32_t shot() const { return mShot; }
  std::size_t traceCount() const { return mTraces.size(); }
  std::size_t mendedCount() const { return mMended; }
  bool usable() const;

  /// The frequency of the arrivals, Hz, as a look at little smoothed traces finds it.
  std::optional<double> look(double stretch);

  /// Readies the traces, with times stretched as for arrivals of that period, see OnsetView.
  void prepare(double stretch);
  /// What prepare() takes, which is several times the samples, and giving it back.
  std::size_t preparedBytes() const;
  void forgetPrepared();
  /// Finds the arrivals: the way of all, not yet where exactly each begins.
  void follow();
  /// Where each begins, in agreement with its neighbours, and how far it may be off.
  void refine();
  /// What may be further off than the worst pick asked for goes.
  void leaveOutDoubtful();

  /// The arrivals found.
  ArrivalCurve curve() const;
  /// Has the next follow() heed what other shots say of the same ways.
  void heed(const Reciprocity& reciprocity);

  /// Writes picks to a shot's times and counts them.
  /// \return errors per trace, seconds; not a number where nothing was picked
  std::vector<double> store(TomoDocument& document, JointPickOutcome& outcome) const;

 private:
  void ready(const OnsetView& view);
  void smooth(bool right);
  double errorOf(std::size_t trace, const SmoothArrival& arrival) const;
  Span<double> samplesOf(std::size_t trace) const;

  std::int32_t mShot;
  JointPickOptions mOptions;
  std::size_t mMended = 0;
  double mStretch = 1.0;
  Point2D mSource;
  std::vector<const Trace*> mTraces;  ///< none: takes no part
  std::vector<Point2D> mReceivers;
  std::vector<OnsetTrace> mOnsets;
  std::vector<ArrivalChannel> mChannels;
  std::vector<double> mTimes;  ///< seconds from the first sample; not a number without a pick
  std::vector<double> mErrors;
  std::vector<RefinedPick> mRefined;  ///< per trace; of those that have an error
};

}  // namespace talvesk
