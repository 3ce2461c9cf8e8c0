#pragma once

#include "base/Status.h"
#include "model/EnsembleState.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace talvesk {

class Ensemble;

/// Writes the finished members of an ensemble, whole or not at all. A few bytes for every bin of
/// every cell, so that it hardly grows any more once there are some hundred members.
Status writeEnsemble(const std::string& path, const EnsembleState& state);

/// Reads them again. Whether they can be what they say is for Ensemble::add() to find out.
Status readEnsemble(const std::string& path, EnsembleState& state);

/// Keeps the finished members of an ensemble in a file while it is at work, so that it goes on
/// where it was when it is stopped, or killed.
class EnsembleKeeper {
 public:
  /// \param path may be empty: nothing is kept \param key ensembleKey() of the ensemble
  EnsembleKeeper(std::string path, std::uint64_t key);

  /// Adds what the file keeps to an ensemble; nothing where there is no file. Fails, with the
  /// ensemble as it was, for a file of another ensemble.
  Status load(Ensemble& ensemble) const;
  /// Writes the file, as long as no more than a twentieth of the time goes into that. To be called
  /// after every member, from the progress of the ensemble.
  void keep(const Ensemble& ensemble);
  /// Writes the file.
  Status save(const Ensemble& ensemble);
  /// Removes the file.
  void remove();
  /// Of what was written last.
  const Status& status() const { return mStatus; }

 private:
  using Clock = std::chrono::steady_clock;

  std::string mPath;
  std::uint64_t mKey;
  Clock::time_point mNext = Clock::now();
  Status mStatus;
};

/// Adds the members that another run of the same ensemble has kept in a file; nothing where all of
/// them are done already. Fails, with the ensemble as it was, for a file of another ensemble and
/// where some of its members are done.
Status addMembers(const std::string& path, std::uint64_t key, Ensemble& ensemble);

}  // namespace talvesk
