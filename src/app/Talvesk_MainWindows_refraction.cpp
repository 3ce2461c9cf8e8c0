#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands of the layered interpretation.

namespace talvesk {

void Talvesk_MainWindows::on_actionRefraction_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionShow_refraction_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshRefractionCommands() {
  for (QAction* action : {mUi->actionRefraction, mUi->actionShow_refraction}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
