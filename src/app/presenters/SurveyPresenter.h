#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// What the frame of the window says of the survey as a whole: title, misfit, what can be undone.
class SurveyPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit SurveyPresenter(Desk& desk);

  void askForTitle();
  void refresh();  ///< where the session does not tell: file and language

 private:
  void refreshMisfit();
  void refreshTitle();
  void refreshTexts();
  void refreshUndoTexts();
  void tellDroppedSteps();
  void tellUndone(const SurveyChange& change);

  Desk& mDesk;
  QLabel* mMisfitLabel;
  std::size_t mDroppedSteps = 0;  ///< that were told
  Session::Subscription mSubscription;
};

}  // namespace talvesk
