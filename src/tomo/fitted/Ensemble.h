#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "grid/GridGeometry.h"
#include "model/EnsembleState.h"
#include "tomo/fitted/EnsembleCounts.h"
#include "tomo/fitted/MemberFits.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace talvesk {

/// A model that members start from and are held to.
struct EnsembleModel {
  Message name;
  double chi2 = 0.0;       ///< that a fit with it comes to, suspects left out
  bool plausible = false;  ///< whether members take it
  int members = 0;         ///< that were fitted with it and count
};

struct EnsembleProgress {
  int models = 0;  ///< that were tried
  int ofModels = 0;
  int members = 0;  ///< that are done, those left out included
  int ofMembers = 0;
  int leftOut = 0;
};

/// Some of the members of an ensemble, by their numbers.
struct MemberRange {
  int first = 0;
  int end = 0;  ///< behind the last one
};

/// Many sections that explain the picks of a survey as well as one another, to see in what they
/// agree. Members are fitted to picks that are moved by their errors, and held in turn to all
/// models with which the picks can be explained: those that they are read as, the default model and
/// the present section. Member k is a function of data, options and k alone. See docs/certainty.md.
///
/// Knows nothing of a document. What is done is kept: run() may be stopped, and called again.
class Ensemble {
 public:
  /// How many members there can be: sums of squares of more do not fit.
  static constexpr int kMostMembers = 65536;

  /// \param data, geometry of the survey; the options have a start
  Ensemble(std::shared_ptr<const GridGeometry> geometry, FitData data, EnsembleOptions options);
  ~Ensemble();

  using Progress = std::function<void(const EnsembleProgress&)>;
  using GoOn = std::function<bool()>;

  /// Goes on until all members of the range are done. Fails when the picks are explained by none of
  /// the models, and when a fit fails.
  /// \param threads members that are fitted at once, at least 1
  /// \param progress told of every model and member, from any of the threads, one at a time; may be
  /// empty. It may ask for state()
  /// \param goOn asked between the rays of shots from all threads; false stops; may be empty
  Status run(MemberRange range, unsigned threads, const Progress& progress = {},
             const GoOn& goOn = {});
  /// The same of the first members.
  Status run(int members, unsigned threads, const Progress& progress = {}, const GoOn& goOn = {}) {
    return run(MemberRange{0, members}, threads, progress, goOn);
  }

  /// Fits the models, which run() does by itself. \param range for the progress
  Status prepare(MemberRange range, unsigned threads, const Progress& progress = {},
                 const GoOn& goOn = {});
  /// What fits members, here or elsewhere; null before prepare() is through.
  std::shared_ptr<const MemberFits> fits() const { return mFits; }
  /// Counts a member that fits() has fitted. One that is done already changes nothing.
  void take(const EnsembleMember& member);

  // Not to be called while run() runs.
  /// What is done, for an ensemble of the same survey and options; without a key.
  EnsembleState state() const;
  /// Adds the members of a state to those that are done. False, with nothing changed, where it is
  /// none of this ensemble, or has members that are done here as well.
  bool add(const EnsembleState& state);
  int done() const { return doneOf({0, static_cast<int>(mMembers.size())}); }
  int doneOf(MemberRange range) const;  ///< members, those left out included
  int leftOut() const;                  ///< members that do not explain the picks as measured
  std::vector<std::size_t> openOf(MemberRange range) const;  ///< that are not done
  const EnsembleCounts& counts() const { return mCounts; }   ///< of the other ones
  const std::vector<EnsembleModel>& models() const { return mModels; }
  const std::vector<Message>& refused() const { return mRefused; }  ///< models, with the reason

 private:
  struct Run;
  using Part = Status (Ensemble::*)(std::size_t number, RayTracer& tracer, const Run& run);

  void findModels();
  void addModel(const Message& name, bool layered, const std::vector<double>& slownesses);
  Status forEach(const std::vector<std::size_t>& numbers, const Run& run, Part part);
  Status fitModel(std::size_t number, RayTracer& tracer, const Run& run);
  Status fitMember(std::size_t number, RayTracer& tracer, const Run& run);
  Status takePlausible();
  void countMembers();
  void tell(const Run& run) const;

  const std::shared_ptr<const GridGeometry> mGeometry;
  const FitData mData;
  const EnsembleOptions mOptions;
  std::vector<EnsembleModel> mModels;
  std::vector<MemberStart> mStarts;  ///< of the models, as many, manner by manner
  std::shared_ptr<const MemberFits> mFits;
  std::vector<std::uint8_t> mMembers;  ///< EnsembleState::Member of each
  std::vector<Message> mRefused;
  EnsembleCounts mCounts;
  std::mutex mMutex;  ///< of what the parts of a run add to
};

}  // namespace talvesk
