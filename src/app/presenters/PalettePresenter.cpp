#include "app/presenters/PalettePresenter.h"

#include "app/dialogs/PaletteDialog.h"
#include "app/presenters/PlainSection.h"
#include "io/Survey.h"

#include <QtGlobal>
#include <utility>

namespace talvesk {
namespace {

/// A limit in whole m/s. The dialog may have put it there already, with the digits that a number
/// of feet has in metres.
void take(int value, double& limit) {
  if (qRound(limit) != value) limit = value;
}

}  // namespace

/// The survey takes the palettes that the dialog is left with by OK.
struct PalettePresenter::Trial {
  explicit Trial(Session& session)
      : palettes(session.survey().palettes), edit(session, Edit::kPalette) {}

  ColorPaletteList palettes;
  OpenEdit edit;
};

void PalettePresenter::editPalettes() {
  std::optional<ValueRange> shown;
  if (const auto scene = plainSection(mDesk.document(), SectionQuantity::kVelocity)) {
    shown = scene->dataRange;
  }
  Trial trial(mDesk.session);
  mTrial = &trial;
  PaletteDialog dialog(trial.palettes, mDesk.section().lockRange, shown, mDesk.folders,
                       &mDesk.window);
  connect(&dialog, &PaletteDialog::changed_max_value, this, maximumTried);
  connect(&dialog, &PaletteDialog::changed_min_value, this, minimumTried);
  connect(&dialog, &PaletteDialog::modified, this, palettesTried);
  const bool changed = dialog.exec() == QDialog::Accepted && dialog.hasChanges();
  mTrial = nullptr;
  if (!changed) return;
  mDesk.tellUnlessDone(trial.edit.commit([&](Survey& survey) {
    survey.section.lockRange = dialog.lockRange();
    survey.palettes = trial.palettes;
    return Status();
  }));
}

void PalettePresenter::tryMaximum(int value) {
  if (mTrial != nullptr) take(value, mTrial->palettes.current().max_db);
  tryPalettes();
}

void PalettePresenter::tryMinimum(int value) {
  if (mTrial != nullptr) take(value, mTrial->palettes.current().min_db);
  tryPalettes();
}

void PalettePresenter::tryPalettes() {
  if (mTrial == nullptr) return;
  mDesk.tellUnlessDone(mTrial->edit.preview([this](Survey& survey) {
    survey.palettes = mTrial->palettes;
    return Status();
  }));
}

}  // namespace talvesk
