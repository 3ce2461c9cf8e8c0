#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands that write data for other programs.

namespace talvesk {

void Talvesk_MainWindows::on_actionExport_tomographic_data_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionGridded_Data_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionExportTomographic_profile_2_KML_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionExportSeismic_line_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::on_actionSet_geography_coordinates_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshExportCommands() {
  for (QAction* action : {mUi->actionExport_tomographic_data, mUi->actionGridded_Data,
                          mUi->actionExportTomographic_profile_2_KML, mUi->actionExportSeismic_line,
                          mUi->actionSet_geography_coordinates}) {
    action->setEnabled(false);
  }
}

}  // namespace talvesk
