#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands that write pictures and reports.

namespace talvesk {

void Talvesk_MainWindows::on_actionImages_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionScreenshot_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionPDF_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionODT_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshReportCommands() {
  for (QAction* action :
       {mUi->actionImages, mUi->actionScreenshot, mUi->actionPDF, mUi->actionODT}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
