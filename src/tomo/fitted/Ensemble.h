#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "grid/GridGeometry.h"
#include "model/EnsembleState.h"
#include "tomo/fitted/EnsembleCounts.h"
#include "tomo/fitted/FitData.h"
#include "tomo/fitted/FittedInversion.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace talvesk {

/// What the members of an ensemble have in common.
struct EnsembleOptions {
  FittedOptions fit;              ///< the start is the present section; the reference is not used
  std::uint64_t seed = 1;         ///< of the errors that picks are given
  std::vector<double> isovalues;  ///< m/s, whose depths are asked for
};

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

/// Many sections that explain the picks of a survey as well as one another, to see in what they
/// agree. Members are fitted to picks that are moved by their errors, and held in turn to all
/// models with which the picks can be explained: those that they are read as, the default model and
/// the present section. Member k is a function of data, options and k alone. See docs/certainty.md.
///
/// Knows nothing of a document. What is done is kept: run() may be stopped, and called again.
class Ensemble {
 public:
  /// Chi-square up to which a model or a member explains the picks.
  static constexpr double kPlausible = 1.6;

  /// \param data, geometry of the survey; the options have a start
  Ensemble(std::shared_ptr<const GridGeometry> geometry, FitData data, EnsembleOptions options);
  ~Ensemble();

  /// Goes on until there are `members` members. Fails when the picks are explained by none of the
  /// models, and when a fit fails.
  /// \param threads members that are fitted at once, at least 1
  /// \param progress told of every model and member, from any of the threads, one at a time; may be
  /// empty
  /// \param goOn asked between the rays of shots from all threads; false stops; may be empty
  Status run(int members, unsigned threads,
             const std::function<void(const EnsembleProgress&)>& progress = {},
             const std::function<bool()>& goOn = {});

  // Not to be called while run() runs.
  /// What is done, for an ensemble of the same survey and options; without a key.
  EnsembleState state() const;
  /// Goes on from there. False, with nothing changed, where the state is none of this ensemble.
  bool restore(const EnsembleState& state);
  int done() const;     ///< members, those left out included
  int leftOut() const;  ///< members that do not explain the picks as measured
  const EnsembleCounts& counts() const { return mCounts; }  ///< of the other ones
  const std::vector<EnsembleModel>& models() const { return mModels; }
  const std::vector<Message>& refused() const { return mRefused; }  ///< models, with the reason

 private:
  struct Start;
  struct Run;
  using Part = Status (Ensemble::*)(std::size_t number, RayTracer& tracer, const Run& run);

  void findModels();
  void addModel(Message name, bool layered, std::vector<double> slownesses);
  std::size_t modelOf(std::size_t member) const;
  Status forEach(const std::vector<std::size_t>& numbers, const Run& run, Part part);
  Status fitModel(std::size_t number, RayTracer& tracer, const Run& run);
  Status fitMember(std::size_t number, RayTracer& tracer, const Run& run);
  FittedOptions optionsFrom(std::vector<double> start, const std::vector<double>& reference) const;
  double chi2AsMeasured(const FittedResult& fit) const;
  void countMembers();
  void tell(const Run& run) const;

  const std::shared_ptr<const GridGeometry> mGeometry;
  const FitData mData;
  const EnsembleOptions mOptions;
  std::vector<EnsembleModel> mModels;
  std::vector<Start> mStarts;          ///< of the models, as many
  std::vector<std::uint8_t> mMembers;  ///< EnsembleState::Member of each
  std::vector<Message> mRefused;
  EnsembleCounts mCounts;
  std::mutex mMutex;  ///< of what the parts of a run add to
};

}  // namespace talvesk
