#pragma once

#include "session/WorkSteps.h"

#include <QCoreApplication>
#include <QString>

namespace talvesk {

/// How the steps of the work are called, marked and gone on with in the window.
class StepTexts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::StepTexts)

 public:
  static QString name(WorkStep step);
  static QString state(StepState state);
  /// One line: the step and why it stands as it does.
  static QString line(WorkStep step, const StepJudgement& judgement);
  /// Picture of a state, a resource; its shape tells states apart as its colour does.
  static QString icon(StepState state);
  static const char* action(StepCommand command);  ///< name in the form
};

/// A text of a command as it is read: without mnemonic.
QString plainText(QString text);

}  // namespace talvesk
