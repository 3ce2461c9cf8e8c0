#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// What colours the section: the palettes and the contours.

namespace talvesk {

void Talvesk_MainWindows::on_actionPalette_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionShow_Contour_Lines_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::update_palette_max(int value) {
  mPalettes.current().max_db = value;
}

void Talvesk_MainWindows::update_palette_min(int value) {
  mPalettes.current().min_db = value;
}

void Talvesk_MainWindows::on_vtk_palette_changed() {
  refreshSection();
}

void Talvesk_MainWindows::refreshPaletteCommands() {
  mUi->actionPalette->setEnabled(false);
  mUi->actionShow_Contour_Lines->setEnabled(false);
}

}  // namespace talvesk
