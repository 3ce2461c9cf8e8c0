#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands from the grid to the inverted section.

namespace talvesk {

void Talvesk_MainWindows::on_actionGrid_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionDefine_model_velocity_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionRun_tomography_inversion_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionApply_smoothing_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshTomographyCommands() {
  for (QAction* action : {mUi->actionGrid, mUi->actionDefine_model_velocity,
                          mUi->actionRun_tomography_inversion, mUi->actionApply_smoothing}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
