#include "app/PaletteDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "app/contourlines_dialog.h"
#include "ui_Talvesk_MainWindows.h"

#include <utility>

// What colours the section: the palettes and the contours.

namespace talvesk {

/// The section without its lines: what values it shows. None where there is nothing to show.
std::optional<SectionScene> Talvesk_MainWindows::plainSection(SectionQuantity quantity) const {
  SectionSceneOptions options;
  options.quantity = quantity;
  options.coverageLimit = false;
  SectionScene scene;
  if (!buildSectionScene(mDocument, options, scene).ok()) return std::nullopt;
  return scene;
}

void Talvesk_MainWindows::on_actionPalette_triggered() {
  logSlot(__func__);
  std::optional<ValueRange> shown;
  if (const auto scene = plainSection(SectionQuantity::kVelocity)) shown = scene->dataRange;
  PaletteDialog dialog(mPalettes, mSection.lockRange, shown, mFolders, this);
  connect(&dialog, &PaletteDialog::changed_max_value, this,
          &Talvesk_MainWindows::update_palette_max);
  connect(&dialog, &PaletteDialog::changed_min_value, this,
          &Talvesk_MainWindows::update_palette_min);
  connect(&dialog, &PaletteDialog::modified, this, &Talvesk_MainWindows::on_vtk_palette_changed);
  if (dialog.exec() != QDialog::Accepted || !dialog.hasChanges()) return;
  mSection.lockRange = dialog.lockRange();
  if (!mDocument.ttArray.empty()) documentModified();
}

void Talvesk_MainWindows::update_palette_max(int value) {
  mPalettes.current().max_db = value;
  refreshSection();
}

void Talvesk_MainWindows::update_palette_min(int value) {
  mPalettes.current().min_db = value;
  refreshSection();
}

void Talvesk_MainWindows::on_vtk_palette_changed() {
  refreshSection();
}

void Talvesk_MainWindows::takeOverPalettes(ColorPaletteList palettes) {
  const ValueRange before{mPalettes.current().min_db, mPalettes.current().max_db};
  mPalettes = std::move(palettes);
  if (!mSection.lockRange) return;
  mPalettes.current().min_db = before.min;
  mPalettes.current().max_db = before.max;
}

void Talvesk_MainWindows::on_actionShow_Contour_Lines_triggered() {
  logSlot(__func__);
  const ValueRange range = contourRange(contouredQuantity(mSection.quantity));
  // Who wants contours where there are none yet wants to see them.
  const ContourSettings proposed = proposedContours(mSection.contours, mSection.quantity, range);
  contourlines_dialog dialog(proposed, mSection.quantity, range, mFolders, this);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  refreshSectionCommands();  // the click has turned the action over, whatever was answered
  if (!accepted) return;
  const bool changed = dialog.hasChanges() || proposed != mSection.contours;
  changeSection([&](SectionViewSettings& section) {
    if (!changed) return;
    section.contours = dialog.settings();
    completeContourLists();
  });
  logContours();
  if (!changed) return;
  if (!mDocument.ttArray.empty()) documentModified();
}

/// The palette says what range of velocities is shown; other quantities have their own.
ValueRange Talvesk_MainWindows::contourRange(SectionQuantity quantity) const {
  if (quantity != SectionQuantity::kVelocity) {
    if (const auto scene = plainSection(quantity)) return scene->range;
  }
  return {mPalettes.current().min_db, mPalettes.current().max_db};
}

/// Contours of a quantity that is not in view may have been switched on before it had a list.
void Talvesk_MainWindows::completeContourLists() {
  ContourSettings& contours = mSection.contours;
  for (const SectionQuantity quantity :
       {SectionQuantity::kVelocity, SectionQuantity::kVerticalGradient,
        SectionQuantity::kLaplacian}) {
    const bool edited = quantity == contouredQuantity(mSection.quantity);
    if (edited || !showsContours(contours, quantity)) continue;
    if (!(contours.*contourList(quantity)).empty()) continue;
    contours = proposedContours(contours, quantity, contourRange(quantity));
  }
}

void Talvesk_MainWindows::logContours() {
  const ContourSettings& contours = mSection.contours;
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
