#include "app/PaletteDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "app/contourlines_dialog.h"
#include "ui_Talvesk_MainWindows.h"

#include <utility>

// What colours the section: the palettes and the contours.

namespace talvesk {

/// The section follows every change in the dialog of palettes; the survey takes those that it is
/// left with by OK.
struct Talvesk_MainWindows::PaletteTrial {
  explicit PaletteTrial(Session& session)
      : palettes(session.survey().palettes), edit(session, Edit::kPalette) {}

  ColorPaletteList palettes;
  OpenEdit edit;
};

/// The section without its lines: what values it shows. None where there is nothing to show.
std::optional<SectionScene> Talvesk_MainWindows::plainSection(SectionQuantity quantity) const {
  SectionSceneOptions options;
  options.quantity = quantity;
  options.coverageLimit = false;
  SectionScene scene;
  if (!buildSectionScene(document(), options, scene).ok()) return std::nullopt;
  return scene;
}

void Talvesk_MainWindows::on_actionPalette_triggered() {
  logSlot(__func__);
  std::optional<ValueRange> shown;
  if (const auto scene = plainSection(SectionQuantity::kVelocity)) shown = scene->dataRange;
  PaletteTrial trial(mSession);
  mPaletteTrial = &trial;
  PaletteDialog dialog(trial.palettes, section().lockRange, shown, mFolders, this);
  connect(&dialog, &PaletteDialog::changed_max_value, this,
          &Talvesk_MainWindows::update_palette_max);
  connect(&dialog, &PaletteDialog::changed_min_value, this,
          &Talvesk_MainWindows::update_palette_min);
  connect(&dialog, &PaletteDialog::modified, this, &Talvesk_MainWindows::on_vtk_palette_changed);
  const bool changed = dialog.exec() == QDialog::Accepted && dialog.hasChanges();
  mPaletteTrial = nullptr;
  if (!changed) return;
  tellUnlessDone(trial.edit.commit([&](Survey& survey) {
    survey.section.lockRange = dialog.lockRange();
    survey.palettes = trial.palettes;
    return Status();
  }));
}

void Talvesk_MainWindows::update_palette_max(int value) {
  if (mPaletteTrial != nullptr) mPaletteTrial->palettes.current().max_db = value;
  on_vtk_palette_changed();
}

void Talvesk_MainWindows::update_palette_min(int value) {
  if (mPaletteTrial != nullptr) mPaletteTrial->palettes.current().min_db = value;
  on_vtk_palette_changed();
}

void Talvesk_MainWindows::on_vtk_palette_changed() {
  if (mPaletteTrial == nullptr) return;
  tellUnlessDone(mPaletteTrial->edit.preview([this](Survey& survey) {
    survey.palettes = mPaletteTrial->palettes;
    return Status();
  }));
}

void Talvesk_MainWindows::on_actionShow_Contour_Lines_triggered() {
  logSlot(__func__);
  const ValueRange range = contourRange(contouredQuantity(section().quantity));
  // Who wants contours where there are none yet wants to see them.
  const ContourSettings proposed = proposedContours(section().contours, section().quantity, range);
  contourlines_dialog dialog(proposed, section().quantity, range, mFolders, this);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  refreshSectionCommands();  // the click has turned the action over, whatever was answered
  if (!accepted) return;
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  if (dialog.hasChanges() || proposed != section().contours) {
    edit(Edit::kContours,
         [&](Survey& survey) { survey.section.contours = completedContours(dialog.settings()); });
  }
  logContours();
}

/// The palette says what range of velocities is shown; other quantities have their own.
ValueRange Talvesk_MainWindows::contourRange(SectionQuantity quantity) const {
  if (quantity != SectionQuantity::kVelocity) {
    if (const auto scene = plainSection(quantity)) return scene->range;
  }
  return {palettes().current().min_db, palettes().current().max_db};
}

/// Contours of a quantity that is not in view may have been switched on before it had a list.
ContourSettings Talvesk_MainWindows::completedContours(ContourSettings contours) const {
  for (const SectionQuantity quantity :
       {SectionQuantity::kVelocity, SectionQuantity::kVerticalGradient,
        SectionQuantity::kLaplacian}) {
    const bool edited = quantity == contouredQuantity(section().quantity);
    if (edited || !showsContours(contours, quantity)) continue;
    if (!(contours.*contourList(quantity)).empty()) continue;
    contours = proposedContours(contours, quantity, contourRange(quantity));
  }
  return contours;
}

void Talvesk_MainWindows::logContours() {
  const ContourSettings& contours = section().contours;
  const std::pair<const char*, bool> choices[] = {
      {"Equally Spaced Contours: ", !contours.customized},
      {"Customized Contours: ", contours.customized},
      {"Contours on Vertical Gradient: ", contours.onVerticalGradient},
      {"Contours on Laplacian Gradient: ", contours.onLaplacian},
      {"Filled Contours: ", contours.filled}};
  for (const auto& [text, chosen] : choices) {
    mLog.write(std::string(text) + (chosen ? "true" : "false"), 0);
  }
}

void Talvesk_MainWindows::refreshPaletteCommands() {
  mUi->actionPalette->setEnabled(true);
}

}  // namespace talvesk
