#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The command that edits where geophones and shots stand.

namespace talvesk {

void Talvesk_MainWindows::on_actionGeometry_triggered() {
  logSlot(__func__);
  askGeometry();
}

bool Talvesk_MainWindows::askGeometry() {
  return false;
}

void Talvesk_MainWindows::refreshGeometryCommands() {
  for (QAction* action : {mUi->actionGeometry}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
