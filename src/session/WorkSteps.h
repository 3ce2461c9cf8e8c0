#pragma once

#include "base/Message.h"

#include <array>
#include <cstddef>

namespace talvesk {

struct Survey;

/// The way from recordings to a section, in the order in which it is gone.
enum class WorkStep { kRecordings, kGeometry, kPicks, kCheck, kGrid, kInversion, kResult };
inline constexpr std::size_t kWorkSteps = 7;

/// How a step stands.
enum class StepState {
  kDone,
  kDoubtful,  ///< done, but something speaks against it
  kMissing,
  kOutOfDate  ///< done for picks or ground that are others by now
};

/// What leads on from a step: a command of the window.
enum class StepCommand {
  kOpenShots,
  kRecordingDetails,
  kCountFromShot,
  kGeometry,
  kImportTimes,
  kPickLine,
  kReviewDoubtful,
  kCheckRecordings,
  kReciprocity,
  kGrid,
  kStartingModel,
  kInvert,
  kSecondLook,
  kResiduals,
  kRefraction,
  kCertainty,
  kReport
};

/// How one step stands, why, and what to do about it.
struct StepJudgement {
  StepState state = StepState::kMissing;
  Message reason;  ///< one line, without a full stop
  StepCommand command = StepCommand::kOpenShots;
};

using StepJudgements = std::array<StepJudgement, kWorkSteps>;  ///< in the order of WorkStep

/// Judges the steps by nothing but the survey as it is, so that they are true after undo and in a
/// project that somebody else began. Takes a time that grows with the number of picks.
StepJudgements judgeSteps(const Survey& survey);

/// The step to go on with: the first that is missing or out of date, else the first doubtful one,
/// else the last. What is doubtful may well be meant so, and keeps nobody from going on.
WorkStep nextStep(const StepJudgements& steps);

}  // namespace talvesk
