#include "app/StepTexts.h"

#include "app/MessageText.h"

#include <QRegularExpression>

namespace talvesk {

QString StepTexts::name(WorkStep step) {
  switch (step) {
    case WorkStep::kRecordings:
      return tr("Recordings");
    case WorkStep::kGeometry:
      return tr("Geometry");
    case WorkStep::kPicks:
      return tr("Picks");
    case WorkStep::kCheck:
      return tr("Check");
    case WorkStep::kGrid:
      return tr("Grid and start");
    case WorkStep::kInversion:
      return tr("Inversion");
    case WorkStep::kResult:
      return tr("Result");
  }
  return {};
}

QString StepTexts::state(StepState state) {
  switch (state) {
    case StepState::kDone:
      return tr("done");
    case StepState::kDoubtful:
      return tr("doubtful");
    case StepState::kMissing:
      return tr("missing");
    case StepState::kOutOfDate:
      return tr("out of date");
  }
  return {};
}

QString StepTexts::line(WorkStep step, const StepJudgement& judgement) {
  return tr("%1: %2", "step, reason").arg(name(step), textOf(judgement.reason));
}

QString StepTexts::icon(StepState state) {
  switch (state) {
    case StepState::kDone:
      return QStringLiteral(":/icons/step-done.png");
    case StepState::kDoubtful:
      return QStringLiteral(":/icons/step-doubtful.png");
    case StepState::kMissing:
      return QStringLiteral(":/icons/step-missing.png");
    case StepState::kOutOfDate:
      return QStringLiteral(":/icons/step-out-of-date.png");
  }
  return {};
}

const char* StepTexts::action(StepCommand command) {
  switch (command) {
    case StepCommand::kOpenShots:
      return "actionOpen_shot_files";
    case StepCommand::kRecordingDetails:
      return "actionRecording_details";
    case StepCommand::kCountFromShot:
      return "actionCount_from_shot";
    case StepCommand::kGeometry:
      return "actionGeometry";
    case StepCommand::kImportTimes:
      return "actionLoad_TT";
    case StepCommand::kPickLine:
      return "actionAutoPick_survey";
    case StepCommand::kReviewDoubtful:
      return "actionNext_doubtful";
    case StepCommand::kCheckRecordings:
      return "actionCheck_recordings";
    case StepCommand::kReciprocity:
      return "actionReciprocity";
    case StepCommand::kGrid:
      return "actionGrid";
    case StepCommand::kStartingModel:
      return "actionDefine_model_velocity";
    case StepCommand::kInvert:
      return "actionRun_tomography_inversion";
    case StepCommand::kSecondLook:
      return "actionSecond_look";
    case StepCommand::kResiduals:
      return "actionResiduals";
    case StepCommand::kRefraction:
      return "actionRefraction";
    case StepCommand::kCertainty:
      return "actionCertainty";
    case StepCommand::kReport:
      return "actionWeb_page";
  }
  return "";
}

QString plainText(QString text) {
  static const QRegularExpression mark(QStringLiteral("&(.)"));
  return text.replace(mark, QStringLiteral("\\1"));
}

}  // namespace talvesk
