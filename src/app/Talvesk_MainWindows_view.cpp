#include "app/Talvesk_MainWindows.h"

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
void Talvesk_MainWindows::on_actionShow_Contour_Lines_triggered() {
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
void Talvesk_MainWindows::on_actionShow_refraction_triggered() {
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
void Talvesk_MainWindows::on_actionPalette_triggered() {
  logSlot(__func__);
}
void Talvesk_MainWindows::on_actionReset_View_triggered() {
  logSlot(__func__);
}

}  // namespace talvesk
