#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"

// The commands of the section view. Their actions are disabled until there is a section to view.

namespace talvesk {

void Talvesk_MainWindows::on_actionShow_Tomographic_Profile_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionGrid_view_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionSmooth_view_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionShow_rays_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionShow_Information_Density_Layer_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionVertical_Gradient_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionLaplacian_Gradient_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionShow_scalarbar_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionShow_Grid_Lines_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionSmallGeo_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionNormalGeo_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionLargeGeo_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionShow_title_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionReset_View_triggered() {
  logSlot(__func__);
}

void Talvesk_MainWindows::refreshSectionCommands() {
  for (QAction* action :
       {mUi->actionShow_Tomographic_Profile, mUi->actionGrid_view, mUi->actionSmooth_view,
        mUi->actionShow_rays, mUi->actionShow_Information_Density_Layer,
        mUi->actionVertical_Gradient, mUi->actionLaplacian_Gradient, mUi->actionShow_scalarbar,
        mUi->actionShow_Grid_Lines, mUi->actionSmallGeo, mUi->actionNormalGeo, mUi->actionLargeGeo,
        mUi->actionShow_title, mUi->actionReset_View}) {
    action->setEnabled(false);
  }
}

void Talvesk_MainWindows::refreshSection() {}

}  // namespace talvesk
