#include "session/WorkSteps.h"

#include "io/Survey.h"
#include "model/ChiSquare.h"
#include "model/GeometryCheck.h"
#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/LeftOut.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "processing/DoubtfulPicks.h"
#include "processing/ShotTime.h"
#include "refraction/PicksFingerprint.h"
#include "view/SectionCertainty.h"

#include <algorithm>

namespace talvesk {
namespace {

using Command = StepCommand;

StepJudgement done(Message reason, Command command) {
  return {StepState::kDone, std::move(reason), command};
}

StepJudgement doubtful(Message reason, Command command) {
  return {StepState::kDoubtful, std::move(reason), command};
}

StepJudgement missing(Message reason, Command command) {
  return {StepState::kMissing, std::move(reason), command};
}

StepJudgement outOfDate(Message reason, Command command) {
  return {StepState::kOutOfDate, std::move(reason), command};
}

bool hasTraces(const TomoDocument& document) {
  return !document.recordings->traceSets.empty();
}

template <typename Items, typename Test>
std::size_t countOf(const Items& items, Test test) {
  return static_cast<std::size_t>(std::count_if(items.begin(), items.end(), test));
}

StepJudgement judgeRecordings(const TomoDocument& document) {
  const std::size_t shots = document.ttArray.size();
  if (shots == 0) return missing(Message::tr("no recordings yet"), Command::kOpenShots);
  if (!hasTraces(document)) {
    return done(Message::tr("times of %1 shots, without recordings").arg(shots),
                Command::kImportTimes);
  }
  const Recordings& recordings = *document.recordings;
  const std::size_t early = countOf(recordings.traceSets, [](const TraceSet& traces) {
    return std::any_of(traces.begin(), traces.end(), startsBeforeShot);
  });
  if (early > 0) {
    return doubtful(Message::tr("recordings that begin before their shot: %1").arg(early),
                    Command::kCountFromShot);
  }
  const std::size_t warned =
      countOf(recordings.notes, [](const RecordingNote& note) { return !note.warnings.empty(); });
  if (warned > 0) {
    return doubtful(Message::tr("recordings that were read with warnings: %1").arg(warned),
                    Command::kRecordingDetails);
  }
  return done(Message::tr("shots: %1").arg(shots), Command::kRecordingDetails);
}

StepJudgement judgeGeometry(const TomoDocument& document) {
  std::size_t geophones = 0;
  for (const auto& string : document.line->goephonesStringSet) geophones += string.size();
  if (geophones == 0) return missing(Message::tr("no geophones yet"), Command::kGeometry);
  const std::vector<GeometryMistake> mistakes = geometryMistakes(geometryOf(document));
  const std::size_t blocking =
      countOf(mistakes, [](const GeometryMistake& each) { return each.blocks(); });
  if (blocking > 0) {
    return missing(Message::tr("positions are missing or cannot be"), Command::kGeometry);
  }
  if (!mistakes.empty()) {
    return doubtful(Message::tr("things that look wrong in the positions: %1").arg(mistakes.size()),
                    Command::kGeometry);
  }
  return done(Message::tr("geophones: %1, shots: %2").arg(geophones).arg(document.ttArray.size()),
              Command::kGeometry);
}

StepJudgement judgePicks(const TomoDocument& document) {
  const Command command = document.ttArray.empty() ? Command::kOpenShots
                          : hasTraces(document)    ? Command::kPickLine
                                                   : Command::kImportTimes;
  std::size_t picks = 0;
  std::size_t traces = 0;
  std::size_t shots = 0;
  std::size_t without = 0;
  for (std::size_t shot = 0; shot < document.ttArray.size(); ++shot) {
    const TravelTime& record = document.ttArray[shot];
    if (mendsOfRecord(document, static_cast<std::int32_t>(shot)).disabled) continue;
    ++shots;
    const std::size_t found = pickCount(record);
    if (found == 0) ++without;
    picks += found;
    traces += record.ttMisurati.size();
  }
  if (picks == 0) return missing(Message::tr("no picks yet"), command);
  if (without > 0) {
    const Message some = Message::tr("shots without picks: %1").arg(without);
    // Picking has only begun, as long as there is something to pick on.
    return 2 * without > shots && hasTraces(document) ? missing(some, command)
                                                      : doubtful(some, command);
  }
  if (!document.picksComplete()) {
    return doubtful(Message::tr("only %1 of %2 traces have a pick").arg(picks).arg(traces),
                    command);
  }
  return done(Message::tr("%1 picks on %2 traces").arg(picks).arg(traces), command);
}

StepJudgement judgeCheck(const TomoDocument& document) {
  const Command others = hasTraces(document) ? Command::kCheckRecordings : Command::kReciprocity;
  if (!hasPicks(document)) return missing(Message::tr("no picks to check yet"), others);
  const PickReview review = reviewPicks(document);
  if (!review.doubtful.empty()) {
    return doubtful(Message::tr("%1 of %2 picks that wait for confirmation are doubtful")
                        .arg(review.doubtful.size())
                        .arg(review.waiting),
                    Command::kReviewDoubtful);
  }
  if (review.unknown > 0) {
    return doubtful(Message::tr("of %1 picks nothing is known that could speak against them")
                        .arg(review.unknown),
                    others);
  }
  if (review.waiting > 0) {
    return done(Message::tr("none of the %1 picks that wait for confirmation is doubtful")
                    .arg(review.waiting),
                others);
  }
  return done(Message::tr("no pick waits for confirmation"), others);
}

StepJudgement judgeGrid(const TomoDocument& document) {
  const GroundModel& model = *document.model;
  if (model.grid == nullptr) return missing(Message::tr("no grid yet"), Command::kGrid);
  if (model.grid->cellCount() == 0) {
    return missing(Message::tr("the grid has no cells"), Command::kGrid);
  }
  const LeftOut left = leftOut(document, document.result->excluded);
  const std::size_t beyond = left.shotsBeyond.size() + left.geophoneCount();
  if (beyond > 0) {
    return doubtful(Message::tr("shots and geophones beyond the grid: %1").arg(beyond),
                    Command::kGrid);
  }
  const Message size = Message::tr("%1 x %2 cells").arg(model.grid->righe()).arg(model.grid->col());
  if (model.layers.empty()) {
    return done(Message::tr("%1, the usual starting model").arg(size), Command::kStartingModel);
  }
  return done(
      Message::tr("%1, a starting model with layers: %2").arg(size).arg(model.layers.size()),
      Command::kStartingModel);
}

/// Not where the section was held to no known ground: that may be meant.
bool heldToOtherGround(const TomoDocument& document) {
  const auto& run = document.result->lastInversion;
  return run && run->fit && run->fit->known != 0 &&
         run->fit->known != fingerprintOf(*document.known);
}

StepJudgement judgeInversion(const TomoDocument& document) {
  if (!document.result->has_tomographic_info) {
    return missing(Message::tr("no inversion yet"), Command::kInvert);
  }
  if (picksChangedSince(document)) {
    return outOfDate(Message::tr("the section is older than the picks"), Command::kInvert);
  }
  if (heldToOtherGround(document)) {
    return outOfDate(Message::tr("the known ground is other than that of the section"),
                     Command::kInvert);
  }
  const auto& run = document.result->lastInversion;
  if (run && run->stopped) {
    return doubtful(Message::tr("it was stopped before its end"), Command::kInvert);
  }
  if (run && run->fit && !run->fit->target) {
    return doubtful(
        Message::tr("chi-square is %1 and not near 1").arg(Message::number(run->fit->chi2, 3)),
        Command::kSecondLook);
  }
  const SectionMisfit misfit = sectionMisfitOf(document);
  if (misfit.count == 0) return done(Message::tr("the section is inverted"), Command::kResiduals);
  return done(Message::tr("RMSE %1 ms of %2 picks")
                  .arg(Message::number(1e3 * misfit.rmse, 3))
                  .arg(misfit.count),
              Command::kResiduals);
}

StepJudgement judgeResult(const Survey& survey, const StepJudgement& inversion) {
  const TomoDocument& document = survey.document;
  if (inversion.state == StepState::kMissing) {
    return missing(Message::tr("no section yet"), Command::kInvert);
  }
  if (inversion.state == StepState::kOutOfDate) return inversion;
  if (picksChangedSince(document, survey.interpretation->refractData)) {
    return outOfDate(Message::tr("the layered profile is older than the picks"),
                     Command::kRefraction);
  }
  const bool certain = document.result->certainty && document.model->grid != nullptr;
  const CertaintyNote note = certain ? certaintyNoteOf(document) : CertaintyNote();
  if (note.picksChanged) {
    return outOfDate(Message::tr("the certainty is older than the picks"), Command::kCertainty);
  }
  if (document.result->smoothedResult) {
    return doubtful(Message::tr("the section was smoothed after its inversion"), Command::kInvert);
  }
  if (!note.fits()) {
    return doubtful(Message::tr("the section lies beyond its certainty"), Command::kInvert);
  }
  if (!certain) {
    return done(Message::tr("how certain the section is is not known"), Command::kCertainty);
  }
  return done(Message::tr("the section and its certainty are there"), Command::kReport);
}

}  // namespace

StepJudgements judgeSteps(const Survey& survey) {
  const TomoDocument& document = survey.document;
  const StepJudgement inversion = judgeInversion(document);
  return {judgeRecordings(document),     judgeGeometry(document), judgePicks(document),
          judgeCheck(document),          judgeGrid(document),     inversion,
          judgeResult(survey, inversion)};
}

WorkStep nextStep(const StepJudgements& steps) {
  const auto first = [&steps](const std::initializer_list<StepState>& states) {
    return std::find_if(steps.begin(), steps.end(), [&states](const StepJudgement& step) {
      return std::find(states.begin(), states.end(), step.state) != states.end();
    });
  };
  auto step = first({StepState::kMissing, StepState::kOutOfDate});
  if (step == steps.end()) step = first({StepState::kDoubtful});
  if (step == steps.end()) step = std::prev(steps.end());
  return static_cast<WorkStep>(step - steps.begin());
}

}  // namespace talvesk
