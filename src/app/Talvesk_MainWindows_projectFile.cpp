#include "app/Messages.h"
#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands that save and load whole surveys.

namespace talvesk {

bool Talvesk_MainWindows::saveProject() {
  showNote(this, QApplication::applicationName(), tr("Projects cannot be saved yet."),
           tr("To keep the picks, use File > Export > Export TravelTimes..."));
  return false;
}

void Talvesk_MainWindows::on_actionSave_Project_triggered() {
  logSlot(__func__);
  saveProject();
}

void Talvesk_MainWindows::on_actionSave_Project_As_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionLoad_Project_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshProjectCommands() {
  for (QAction* action :
       {mUi->actionLoad_Project, mUi->actionSave_Project, mUi->actionSave_Project_As}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
