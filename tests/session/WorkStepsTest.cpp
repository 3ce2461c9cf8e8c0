#include "model/Mending.h"
#include "model/PickFingerprint.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/ShotArrivals.h"
#include "session/FullSurvey.h"
#include "session/WorkSteps.h"

#include <functional>
#include <map>
#include <ostream>

#include <gtest/gtest.h>

namespace talvesk {

static void PrintTo(StepState state, std::ostream* stream) {
  static const char* const kNames[] = {"done", "doubtful", "missing", "out of date"};
  *stream << kNames[static_cast<int>(state)];
}

namespace {

using Step = WorkStep;
using State = StepState;

/// A survey that has gone all the way: its picks made by hand, its section sure.
Survey wholeSurvey() {
  Survey survey = testing::fullSurvey();
  TomoDocument& document = survey.document;
  for (TravelTime& record : document.ttArray.edit()) record.unconfirmed = {};
  document.known = {};
  TomographyOutcome& result = document.result.edit();
  result.timesOfSection = true;
  result.lastInversion->picks = fingerprintOfPicks(document.ttArray);
  Certainty certainty;
  const std::size_t cells = document.model->grid->cellCount();
  certainty.members = 8;
  certainty.touched.assign(cells, 0);
  certainty.deviations.assign(cells, 0.1);
  certainty.velocities = {std::vector<double>(cells, 500.0), std::vector<double>(cells, 450.0),
                          std::vector<double>(cells, 550.0)};
  certainty.picks = fingerprintOfPicks(document.ttArray);
  result.certainty = certainty;
  return survey;
}

StepJudgement judge(const Survey& survey, Step step) {
  return judgeSteps(survey)[static_cast<std::size_t>(step)];
}

struct Case {
  const char* reason;  ///< that the step gives
  Step step;
  State state;
  StepCommand command;
  std::function<void(TomoDocument&, Survey&)> change;  ///< of the whole survey
};

TravelTime& record(TomoDocument& document, std::size_t shot) {
  return document.ttArray.edit()[shot];
}

void movePick(TomoDocument& document) {
  record(document, 1).ttMisurati.edit()[3] += 0.001;
}

FitRecord fitTo(std::uint64_t known, bool target) {
  FitRecord fit;
  fit.known = known;
  fit.target = target;
  fit.chi2 = 3.25;
  return fit;
}

const Case kCases[] = {
    {"no recordings yet", Step::kRecordings, State::kMissing, StepCommand::kOpenShots,
     [](TomoDocument&, Survey& survey) { survey = {}; }},
    {"shots: 3", Step::kRecordings, State::kDone, StepCommand::kRecordingDetails,
     [](TomoDocument&, Survey&) {}},
    {"times of 3 shots, without recordings", Step::kRecordings, State::kDone,
     StepCommand::kImportTimes, [](TomoDocument& document, Survey&) { document.recordings = {}; }},
    {"recordings that begin before their shot: 1", Step::kRecordings, State::kDoubtful,
     StepCommand::kCountFromShot,
     [](TomoDocument& document, Survey&) {
       for (Trace& trace : document.recordings.edit().traceSets[2]) trace.delay = -0.01;
     }},
    {"recordings that were read with warnings: 1", Step::kRecordings, State::kDoubtful,
     StepCommand::kRecordingDetails,
     [](TomoDocument& document, Survey&) {
       document.recordings.edit().noteOf(1).warnings.emplace_back("cut short");
     }},

    {"no geophones yet", Step::kGeometry, State::kMissing, StepCommand::kGeometry,
     [](TomoDocument& document, Survey&) { document.line = {}; }},
    {"positions are missing or cannot be", Step::kGeometry, State::kMissing, StepCommand::kGeometry,
     [](TomoDocument& document, Survey&) {
       document.line.edit().goephonesStringSet[0][2].x = std::nan("");
     }},
    {"things that look wrong in the positions: 1", Step::kGeometry, State::kDoubtful,
     StepCommand::kGeometry,
     [](TomoDocument& document, Survey&) { record(document, 0).shotPos2d.x = 900.0; }},
    {"geophones: 12, shots: 3", Step::kGeometry, State::kDone, StepCommand::kGeometry,
     [](TomoDocument&, Survey&) {}},

    {"no picks yet", Step::kPicks, State::kMissing, StepCommand::kPickLine,
     [](TomoDocument& document, Survey&) {
       for (TravelTime& each : document.ttArray.edit()) each.ttMisurati.edit().assign(12, kNoTime);
     }},
    {"no picks yet", Step::kPicks, State::kMissing, StepCommand::kOpenShots,
     [](TomoDocument&, Survey& survey) { survey = {}; }},
    {"shots without picks: 1", Step::kPicks, State::kDoubtful, StepCommand::kPickLine,
     [](TomoDocument& document, Survey&) {
       record(document, 1).ttMisurati.edit().assign(12, kUnpicked);
     }},
    {"24 picks on 24 traces", Step::kPicks, State::kDone, StepCommand::kPickLine,
     [](TomoDocument& document, Survey&) {
       ShotMends mends;
       mends.disabled = true;
       ASSERT_TRUE(setMends(1, mends, document).ok());
     }},
    {"shots without picks: 2", Step::kPicks, State::kMissing, StepCommand::kPickLine,
     [](TomoDocument& document, Survey&) {
       for (TravelTime& each : document.ttArray.edit()) {
         each.ttMisurati.edit().assign(12, kUnpicked);
       }
       record(document, 1).ttMisurati.edit()[4] = 0.012;
     }},
    {"only 18 of 36 traces have a pick", Step::kPicks, State::kDoubtful, StepCommand::kImportTimes,
     [](TomoDocument& document, Survey&) {
       document.recordings = {};
       for (TravelTime& each : document.ttArray.edit()) {
         std::fill_n(each.ttMisurati.edit().begin(), 6, kUnpicked);
       }
     }},

    {"no picks to check yet", Step::kCheck, State::kMissing, StepCommand::kCheckRecordings,
     [](TomoDocument& document, Survey&) {
       for (TravelTime& each : document.ttArray.edit()) each.ttMisurati.edit().assign(12, kNoTime);
     }},
    {"no pick waits for confirmation", Step::kCheck, State::kDone, StepCommand::kCheckRecordings,
     [](TomoDocument&, Survey&) {}},
    {"1 of 2 picks that wait for confirmation are doubtful", Step::kCheck, State::kDoubtful,
     StepCommand::kReviewDoubtful,
     [](TomoDocument& document, Survey&) {
       record(document, 0).setError(4, 0.02);
       record(document, 0).setWaiting(4, true);
       record(document, 0).setWaiting(11, true);
     }},
    {"none of the 1 picks that wait for confirmation is doubtful", Step::kCheck, State::kDone,
     StepCommand::kReciprocity,
     [](TomoDocument& document, Survey&) {
       document.recordings = {};
       record(document, 0).setWaiting(11, true);
     }},
    {"of 1 picks nothing is known that could speak against them", Step::kCheck, State::kDoubtful,
     StepCommand::kCheckRecordings,
     [](TomoDocument& document, Survey&) {
       document.clearInversion();
       record(document, 0).setWaiting(11, true);
     }},

    {"no grid yet", Step::kGrid, State::kMissing, StepCommand::kGrid,
     [](TomoDocument& document, Survey&) { document.clearModelAndResults(); }},
    {"10 x 25 cells, a starting model with layers: 1", Step::kGrid, State::kDone,
     StepCommand::kStartingModel, [](TomoDocument&, Survey&) {}},
    {"10 x 25 cells, the usual starting model", Step::kGrid, State::kDone,
     StepCommand::kStartingModel,
     [](TomoDocument& document, Survey&) { document.model.edit().layers.clear(); }},
    {"shots and geophones beyond the grid: 2", Step::kGrid, State::kDoubtful, StepCommand::kGrid,
     [](TomoDocument& document, Survey&) {
       document.result.edit().excluded = {{0, 3, 1.0}, {1, 3, 1.0}, {2, -1, 50.0}};
     }},

    {"no inversion yet", Step::kInversion, State::kMissing, StepCommand::kInvert,
     [](TomoDocument& document, Survey&) { document.clearInversion(); }},
    {"RMSE 0 ms of 36 picks", Step::kInversion, State::kDone, StepCommand::kResiduals,
     [](TomoDocument&, Survey&) {}},
    {"the section is older than the picks", Step::kInversion, State::kOutOfDate,
     StepCommand::kInvert, [](TomoDocument& document, Survey&) { movePick(document); }},
    {"the known ground is other than that of the section", Step::kInversion, State::kOutOfDate,
     StepCommand::kInvert,
     [](TomoDocument& document, Survey&) {
       document.result.edit().lastInversion->fit = fitTo(77, true);
     }},
    {"RMSE 0 ms of 36 picks", Step::kInversion, State::kDone, StepCommand::kResiduals,
     [](TomoDocument& document, Survey&) {
       document.known.edit().depths.push_back({"P1", 2.0, 3.0});
       document.result.edit().lastInversion->fit = fitTo(0, true);
     }},
    {"it was stopped before its end", Step::kInversion, State::kDoubtful, StepCommand::kInvert,
     [](TomoDocument& document, Survey&) { document.result.edit().lastInversion->stopped = true; }},
    {"chi-square is 3.25 and not near 1", Step::kInversion, State::kDoubtful,
     StepCommand::kSecondLook,
     [](TomoDocument& document, Survey&) {
       document.result.edit().lastInversion->fit = fitTo(0, false);
     }},

    {"no section yet", Step::kResult, State::kMissing, StepCommand::kInvert,
     [](TomoDocument& document, Survey&) { document.clearInversion(); }},
    {"the section and its certainty are there", Step::kResult, State::kDone, StepCommand::kReport,
     [](TomoDocument&, Survey&) {}},
    {"how certain the section is is not known", Step::kResult, State::kDone,
     StepCommand::kCertainty,
     [](TomoDocument& document, Survey&) { document.result.edit().certainty.reset(); }},
    {"the section is older than the picks", Step::kResult, State::kOutOfDate, StepCommand::kInvert,
     [](TomoDocument& document, Survey&) { movePick(document); }},
    {"the certainty is older than the picks", Step::kResult, State::kOutOfDate,
     StepCommand::kCertainty,
     [](TomoDocument& document, Survey&) { document.result.edit().certainty->picks = 99; }},
    {"the layered profile is older than the picks", Step::kResult, State::kOutOfDate,
     StepCommand::kRefraction,
     [](TomoDocument&, Survey& survey) { survey.interpretation.edit().refractData.picks = 99; }},
    {"the section was smoothed after its inversion", Step::kResult, State::kDoubtful,
     StepCommand::kInvert,
     [](TomoDocument& document, Survey&) { document.result.edit().smoothedResult = true; }},
};

TEST(WorkSteps, areJudgedByTheSurveyAsItIs) {
  for (const Case& each : kCases) {
    SCOPED_TRACE(std::string(each.reason) + ", step " + std::to_string(int(each.step)));
    Survey survey = wholeSurvey();
    each.change(survey.document, survey);
    const StepJudgement found = judge(survey, each.step);
    EXPECT_EQ(found.reason.english(), each.reason);
    EXPECT_EQ(found.state, each.state);
    EXPECT_EQ(static_cast<int>(found.command), static_cast<int>(each.command));
  }
}

TEST(WorkSteps, leadOnToWhatIsMissingBeforeWhatIsDoubtful) {
  const auto next = [](const std::map<Step, State>& others) {
    StepJudgements steps;
    for (StepJudgement& step : steps) step.state = State::kDone;
    for (const auto& [step, state] : others) steps[static_cast<std::size_t>(step)].state = state;
    return static_cast<int>(nextStep(steps));
  };
  EXPECT_EQ(next({}), int(Step::kResult));
  EXPECT_EQ(next({{Step::kCheck, State::kDoubtful}}), int(Step::kCheck));
  EXPECT_EQ(next({{Step::kCheck, State::kDoubtful}, {Step::kGrid, State::kMissing}}),
            int(Step::kGrid));
  EXPECT_EQ(next({{Step::kPicks, State::kDoubtful}, {Step::kInversion, State::kOutOfDate}}),
            int(Step::kInversion));
  EXPECT_EQ(next({{Step::kRecordings, State::kMissing}, {Step::kResult, State::kMissing}}),
            int(Step::kRecordings));
}

}  // namespace
}  // namespace talvesk
