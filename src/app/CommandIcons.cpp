#include "app/CommandIcons.h"

#include "app/LineIcon.h"

#include <QAction>

namespace talvesk {
namespace {

struct CommandIcon {
  const char* action;
  const char* icon;
};

constexpr CommandIcon kIcons[] = {
    {"actionNew", ":/icons/new-file.png"},
    {"actionRun_tomography_inversion", ":/icons/speed.png"},
    {"actionInversion_runs", ":/icons/table.png"},
    {"actionKnown_ground", ":/icons/layers.png"},
    {"actionDefine_model_velocity", ":/icons/layers.png"},
    {"actionNext_file", ":/icons/next.png"},
    {"actionPrev_file", ":/icons/back.png"},
    {"actionLoad_Project", ":/icons/open-folder-with-document.png"},
    {"actionSave_Project_As", ":/icons/save.png"},
    {"actionPrint", ":/icons/print.png"},
    {"actionImages", ":/icons/png.png"},
    {"actionAutoPick", ":/icons/autopickingICO.png"},
    {"actionAutoPick_line", ":/icons/autopick-line.png"},
    {"actionAutoPick_survey", ":/icons/autopick-survey.png"},
    {"actionGeometry", ":/icons/settings.png"},
    {"actionGrid", ":/icons/grid.png"},
    {"actionPDF", ":/icons/pdf.png"},
    {"actionPalette", ":/icons/pantone.png"},
    {"actionODT", ":/icons/odt-document-outlined-interface-symbol.png"},
    {"actionWeb_page", ":/icons/web-page.png"},
    {"actionCampaign_page", ":/icons/web-page.png"},
    {"actionShow_Contour_Lines", ":/icons/isolines.png"},
    {"actionSave_Project", ":/icons/save-file-option.png"},
    {"actionApply_Hushel", ":/icons/Hushel_Icon.png"},
    {"actionScreenshot", ":/icons/screenshot.png"},
    {"actionSet_title", ":/icons/title.png"},
    {"actionOpen_shot_files", ":/icons/open-shots.png"},
    {"actionLoad_TT", ":/icons/import.png"},
    {"actionExport_TravelTimes", ":/icons/export.png"},
    {"actionExport_recordings", ":/icons/export.png"},
    {"actionExport_pick_headers", ":/icons/export.png"},
    {"actionSurveyed_positions", ":/icons/table.png"},
    {"actionSet_geography_coordinates", ":/icons/globe.png"},
    {"actionExportTomographic_profile_2_KML", ":/icons/globe.png"},
    {"actionExportSeismic_line", ":/icons/globe.png"},
    {"actionGridded_Data", ":/icons/table.png"},
    {"actionExport_tomographic_data", ":/icons/table.png"},
    {"actionExport_certainty", ":/icons/table.png"},
    {"actionExport_VTK", ":/icons/mesh.png"},
    {"actionExport_Surfer", ":/icons/mesh.png"},
    {"actionExport_DXF", ":/icons/isolines.png"},
    {"actionExport_curtain", ":/icons/mesh.png"},
    {"actionExport_GeoPackage", ":/icons/globe.png"},
    {"actionFilter", ":/icons/filter.png"},
    {"actionAGC", ":/icons/agc.png"},
    {"actionUndo", ":/icons/undo.png"},
    {"actionRedo", ":/icons/redo.png"},
    {"actionShow_rays", ":/icons/rays.png"},
    {"actionReset_View", ":/icons/fit.png"},
    {"actionRecording_details", ":/icons/info.png"},
    {"actionTrace_headers", ":/icons/table.png"},
    {"actionCheck_recordings", ":/icons/check-recordings.png"},
    {"actionReciprocity", ":/icons/reciprocity.png"},
    {"actionSettings", ":/icons/preferences.png"},
    {"actionHelp", ":/icons/help.png"},
    {"actionUser_guide", ":/icons/guide.png"},
    {"actionTool_pick", ":/icons/tool-pick.png"},
    {"actionTool_zoom", ":/icons/tool-zoom.png"},
    {"actionTool_pan", ":/icons/tool-pan.png"},
    {"actionTool_ruler", ":/icons/tool-ruler.png"},
    {"actionTool_guide", ":/icons/tool-guide.png"},
    {"actionTool_select", ":/icons/tool-select.png"},
    {"actionFit", ":/icons/fit.png"},
    {"actionZoom_back", ":/icons/zoom-back.png"},
    {"actionZoom_forward", ":/icons/zoom-forward.png"},
    {"actionConfirm_picks", ":/icons/confirm.png"},
    {"actionExit", ":/icons/exit.png"},
};

}  // namespace

void setCommandIcons(QObject& window) {
  for (const CommandIcon& entry : kIcons) {
    auto* action = window.findChild<QAction*>(QLatin1String(entry.action));
    if (action != nullptr) action->setIcon(lineIcon(QLatin1String(entry.icon)));
  }
}

}  // namespace talvesk
