#pragma once

#include "session/WorkSteps.h"

#include <QToolBar>
#include <array>
#include <functional>

class QLabel;
class QToolButton;

namespace talvesk {

/// A slim bar with the steps from recordings to a section: how each stands, by picture, colour and
/// word, why the one stands so that is to be gone on with, and the command that does. A click on a
/// step gives the command that leads on from it. It shows what it is told and judges nothing.
class GuidanceStrip : public QToolBar {
  Q_OBJECT

 public:
  /// \param actionOf the command of the window by its name in the form; never null
  GuidanceStrip(std::function<QAction*(const char*)> actionOf, QWidget* parent);

  void show(const StepJudgements& steps);
  void retranslate();  ///< all texts, after those of the commands

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QAction* commandOf(WorkStep step) const;
  void addStepButton(std::size_t step);
  void give(WorkStep step, QWidget* from);
  void showStep(WorkStep step);
  void showNext();
  void tellStep(WorkStep step);
  void fitInto(int width);
  void setTextLevel(int level);

  std::function<QAction*(const char*)> mActionOf;
  StepJudgements mSteps;
  std::array<QToolButton*, kWorkSteps> mButtons{};
  QWidget* mRow = nullptr;
  QLabel* mReason = nullptr;  ///< elided to the room there is
  QToolButton* mNext = nullptr;
  QString mLine;                      ///< that the label shows as much of as it can
  QMetaObject::Connection mFollowed;  ///< the command of the button
};

}  // namespace talvesk
