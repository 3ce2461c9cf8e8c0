#include "app/presenters/SurveyPresenter.h"

#include "app/ElidedLabel.h"
#include "app/InversionTexts.h"
#include "app/MessageText.h"
#include "io/Survey.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"

#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>

namespace talvesk {

SurveyPresenter::SurveyPresenter(Desk& desk)
    : mDesk(desk),
      mMisfitLabel(new ElidedLabel(&desk.window)),
      mSubscription(desk.session.subscribe([this](const SurveyChange& change) {
        PartSet fitted;
        for (const Part part : {Part::kPicks, Part::kGeometry, Part::kResult}) fitted.add(part);
        if (change.parts.any(fitted)) refreshMisfit();
        refreshTexts();
        tellUndone(change);
      })) {
  mMisfitLabel->setObjectName(QStringLiteral("misfitLabel"));
  desk.ui.statusBar->insertPermanentWidget(0, mMisfitLabel);
}

void SurveyPresenter::refresh() {
  refreshMisfit();
  refreshTexts();
}

void SurveyPresenter::refreshTexts() {
  refreshTitle();
  refreshUndoTexts();
  tellDroppedSteps();
}

/// What was told of the edit is not true any more, nor what was read in a view.
void SurveyPresenter::tellUndone(const SurveyChange& change) {
  const bool undone = change.kind == SurveyChange::Kind::kUndo;
  if (!undone && change.kind != SurveyChange::Kind::kRedo) return;
  if (mDesk.cursorLabel != nullptr) mDesk.cursorLabel->clear();
  const QString step = textOf(undone ? mDesk.session.redoText() : mDesk.session.undoText());
  mDesk.tell((undone ? tr("Undone: %1") : tr("Done again: %1")).arg(step));
}

/// Once for every time that some went.
void SurveyPresenter::tellDroppedSteps() {
  const std::size_t dropped = mDesk.session.droppedSteps();
  if (dropped > mDroppedSteps) {
    const QString text =
        tr("The oldest steps can no longer be undone: they needed more than %1 MB.")
            .arg(mDesk.settings.undoMegabytes);
    // After the command that has cost them has told its outcome.
    QMetaObject::invokeMethod(
        &mDesk.window,
        [this, text] {
          const QString outcome = mDesk.ui.statusBar->currentMessage();
          mDesk.tell(outcome.isEmpty() ? text : outcome + QLatin1Char(' ') + text);
        },
        Qt::QueuedConnection);
  }
  mDroppedSteps = dropped;
}

void SurveyPresenter::askForTitle() {
  bool accepted = false;
  const QString title =
      QInputDialog::getText(&mDesk.window, tr("Project title"), tr("&Title:"), QLineEdit::Normal,
                            QString::fromStdString(mDesk.document().title), &accepted);
  if (!accepted || title.toStdString() == mDesk.document().title) return;
  mDesk.edit(Edit::kTitle, [&](Survey& survey) { survey.document.title = title.toStdString(); });
}

/// The misfit of the section stays in view, and whether it still is that of the picks it was fitted
/// to.
void SurveyPresenter::refreshMisfit() {
  QString text = sectionMisfitText(mDesk.document());
  if (!text.isEmpty() && picksChangedSince(mDesk.document())) {
    text += QLatin1Char(' ') + tr("Picks have changed since.");
  }
  mMisfitLabel->setText(text);
  mMisfitLabel->setVisible(!text.isEmpty());
}

void SurveyPresenter::refreshTitle() {
  QString title = tr("Talvesk 2022.0") + QStringLiteral("[*]");
  for (QString part : {QFileInfo(mDesk.project.path()).fileName(),
                       QString::fromStdString(mDesk.document().title)}) {
    // Two markers are how Qt writes one that is not its own.
    part.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    if (!part.isEmpty()) title += QStringLiteral(" - ") + part;
  }
  mDesk.window.setWindowTitle(title);
  mDesk.window.setWindowModified(mDesk.session.modified());
}

/// The menu says what would be undone; the form has the texts for when there is nothing.
void SurveyPresenter::refreshUndoTexts() {
  const Message undo = mDesk.session.undoText();
  const Message redo = mDesk.session.redoText();
  mDesk.ui.actionUndo->setText(undo.empty() ? tr("Undo") : tr("Undo \"%1\"").arg(textOf(undo)));
  mDesk.ui.actionRedo->setText(redo.empty() ? tr("Redo") : tr("Redo \"%1\"").arg(textOf(redo)));
}

}  // namespace talvesk
