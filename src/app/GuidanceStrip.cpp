#include "app/GuidanceStrip.h"

#include "app/LineIcon.h"
#include "app/StepTexts.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QToolTip>
#include <utility>

namespace talvesk {
namespace {

constexpr int kIconSide = 16;
constexpr int kLeastReason = 90;  ///< pixels of the line that says why
/// How much of the buttons is text where room is scarce.
enum TextLevel { kAllTexts, kNextText, kNoTexts };

QToolButton* flatButton(QWidget* parent, const QString& name) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setAutoRaise(true);
  button->setIconSize({kIconSide, kIconSide});
  // A click must not take the keys away from the traces.
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

GuidanceStrip::GuidanceStrip(std::function<QAction*(const char*)> actionOf, QWidget* parent)
    : QToolBar(parent), mActionOf(std::move(actionOf)), mRow(new QWidget(this)) {
  setObjectName(QStringLiteral("guidanceBar"));
  setMovable(false);
  auto* layout = new QHBoxLayout(mRow);
  layout->setContentsMargins(2, 0, 2, 0);
  layout->setSpacing(2);
  for (std::size_t step = 0; step < kWorkSteps; ++step) addStepButton(step);
  mReason = new QLabel(mRow);
  mReason->setObjectName(QStringLiteral("guidanceReason"));
  mReason->setTextFormat(Qt::PlainText);
  mReason->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  mReason->setMinimumWidth(kLeastReason);
  mReason->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  layout->addWidget(mReason, 1);
  layout->addSpacing(6);
  mNext = flatButton(mRow, QStringLiteral("guidanceNext"));
  mNext->setAutoRaise(false);
  layout->addWidget(mNext);
  connect(mNext, &QToolButton::clicked, this, [this] { give(nextStep(mSteps), mNext); });
  mRow->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  mRow->installEventFilter(this);
  addWidget(mRow);
  retranslate();
}

void GuidanceStrip::addStepButton(std::size_t step) {
  QToolButton* button = flatButton(mRow, QStringLiteral("guidanceStep%1").arg(step + 1));
  button->installEventFilter(this);
  connect(button, &QToolButton::clicked, this,
          [this, step, button] { give(static_cast<WorkStep>(step), button); });
  mRow->layout()->addWidget(button);
  mButtons[step] = button;
}

QAction* GuidanceStrip::commandOf(WorkStep step) const {
  return mActionOf(StepTexts::action(mSteps[static_cast<std::size_t>(step)].command));
}

/// A command that cannot work now says nothing by itself.
void GuidanceStrip::give(WorkStep step, QWidget* from) {
  QAction* command = commandOf(step);
  if (command->isEnabled()) return command->trigger();
  QToolTip::showText(from->mapToGlobal(from->rect().bottomLeft()), from->toolTip(), from);
}

void GuidanceStrip::show(const StepJudgements& steps) {
  mSteps = steps;
  for (std::size_t step = 0; step < kWorkSteps; ++step) showStep(static_cast<WorkStep>(step));
  showNext();
  tellStep(nextStep(mSteps));
  fitInto(mRow->width());
  // Drawn anew button by button, a column between two of them stays black at some widths.
  mRow->update();
}

void GuidanceStrip::retranslate() {
  setWindowTitle(tr("Guidance"));
  toggleViewAction()->setToolTip(
      tr("Show the steps from recordings to a section, and how they "
         "stand"));
  for (std::size_t step = 0; step < kWorkSteps; ++step) {
    mButtons[step]->setText(StepTexts::name(static_cast<WorkStep>(step)));
  }
  show(mSteps);
}

void GuidanceStrip::showStep(WorkStep step) {
  const auto index = static_cast<std::size_t>(step);
  const StepJudgement& judgement = mSteps[index];
  QToolButton& button = *mButtons[index];
  const QString name = StepTexts::name(step);
  const QString state = StepTexts::state(judgement.state);
  const QString line = StepTexts::line(step, judgement);
  const QString command = plainText(commandOf(step)->text());
  button.setIcon(pictureIcon(StepTexts::icon(judgement.state)));
  button.setToolTip(QStringLiteral("<qt><b>%1</b> (%2)<br>%3</qt>")
                        .arg(line.toHtmlEscaped(), state.toHtmlEscaped(),
                             tr("A click: %1").arg(command).toHtmlEscaped()));
  button.setAccessibleName(tr("%1, %2", "step, how it stands").arg(name, state));
  button.setAccessibleDescription(tr("%1. A click: %2").arg(line, command));
}

/// The button follows its command, which others enable and name.
void GuidanceStrip::showNext() {
  const WorkStep step = nextStep(mSteps);
  const QAction* command = commandOf(step);
  const auto follow = [this, command, step] {
    const QString text = plainText(command->text());
    mNext->setText(text);
    mNext->setIcon(command->icon());
    mNext->setEnabled(command->isEnabled());
    mNext->setToolTip(tr("Next: %1").arg(text));
    mNext->setAccessibleName(tr("Next: %1").arg(text));
    mNext->setAccessibleDescription(mButtons[static_cast<std::size_t>(step)]->accessibleName());
  };
  disconnect(mFollowed);
  mFollowed = connect(command, &QAction::changed, this, follow);
  follow();
}

void GuidanceStrip::tellStep(WorkStep step) {
  mLine = StepTexts::line(step, mSteps[static_cast<std::size_t>(step)]);
  mReason->setText(mReason->fontMetrics().elidedText(mLine, Qt::ElideRight, mReason->width()));
  mReason->setToolTip(mLine);
}

/// The names of the steps give way before the name of the command, and that before the reason.
void GuidanceStrip::fitInto(int width) {
  for (const int level : {kAllTexts, kNextText, kNoTexts}) {
    setTextLevel(level);
    if (level == kNoTexts || mRow->layout()->minimumSize().width() <= width) break;
  }
}

void GuidanceStrip::setTextLevel(int level) {
  const auto style = [](bool text) {
    return text ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly;
  };
  for (QToolButton* button : mButtons) button->setToolButtonStyle(style(level == kAllTexts));
  mNext->setToolButtonStyle(style(level != kNoTexts));
}

bool GuidanceStrip::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mRow && event->type() == QEvent::Resize) {
    fitInto(mRow->width());
    mRow->layout()->activate();
    tellStep(nextStep(mSteps));
  }
  for (std::size_t step = 0; step < kWorkSteps; ++step) {
    if (watched != mButtons[step]) continue;
    const QEvent::Type type = event->type();
    if (type == QEvent::Enter || type == QEvent::FocusIn) tellStep(static_cast<WorkStep>(step));
    if (type == QEvent::Leave || type == QEvent::FocusOut) tellStep(nextStep(mSteps));
  }
  return QToolBar::eventFilter(watched, event);
}

void GuidanceStrip::changeEvent(QEvent* event) {
  QToolBar::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    fitInto(mRow->width());
  }
}

}  // namespace talvesk
