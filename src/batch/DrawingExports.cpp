#include "batch/DrawingExports.h"

#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/Options.h"
#include "export/CurtainTable.h"
#include "export/ExportFailure.h"
#include "export/SectionDxf.h"
#include "export/SectionGeoPackage.h"
#include "export/VtkGrid.h"
#include "figures/ProfileLines.h"
#include "io/project/projectReader.h"

#include <QString>

namespace talvesk {
namespace {

constexpr const char* kGroup = "Drawings and maps";

void addIsovalues(CLI::App& command, DrawingExports& exports) {
  command
      .add_option_function<std::string>(
          "--isovalues",
          [&exports](const std::string& text) {
            exports.isovalues = velocitiesWithin("--isovalues", text);
          },
          "Velocities that become lines in --dxf and --gpkg, m/s, with commas between them "
          "(default: the contours that the project shows, else round values)")
      ->type_name("V,V,...")
      ->group(kGroup);
}

DrawingOptions drawingOptions(const DrawingExports& exports, const LoadedProject& project) {
  DrawingOptions options;
  options.isovalues = exports.isovalues;
  if (options.isovalues.empty()) {
    options.isovalues =
        proposedIsovalues(project.document, project.section, project.palettes->current());
  }
  options.refractors = profileLines(project.document, project.interpretation);
  return options;
}

}  // namespace

std::vector<OutputFile> filesOf(const DrawingExports& exports) {
  std::vector<OutputFile> files = {{"--dxf", exports.dxf}, {"--gpkg", exports.geoPackage}};
  for (const std::string& file : exports.curtains) files.push_back({"--curtain", file});
  return files;
}

std::vector<CLI::Option*> addDrawingExports(CLI::App& command, DrawingExports& exports) {
  CLI::Option* dxf = mustEndIn(
      addPath(command, "--dxf", exports.dxf,
              "Surface, isolines, refractors, geophones, shots and annotations as a drawing in "
              "metres, distance to the right and elevation up, named *.dxf")
          ->group(kGroup),
      {".dxf"}, true);
  CLI::Option* dxfOnMap = command
                              .add_flag("--dxf-map", exports.dxfOnMap,
                                        "The drawing in space: easting, northing and elevation")
                              ->needs(dxf)
                              ->group(kGroup);
  CLI::Option* geoPackage = mustEndIn(
      addPath(command, "--gpkg", exports.geoPackage,
              "Line, geophones, shots, isolines, refractors and depths of isovalues as layers of a "
              "GeoPackage, named *.gpkg")
          ->group(kGroup),
      {".gpkg"}, true);
  CLI::Option* curtain =
      mustEndIn(command
                    .add_option("--curtain", exports.curtains,
                                "The drawn cells where they lie on the map: .vtu, a VTK grid, or "
                                ".csv, a table with velocity and coverage; once per file")
                    ->type_name("FILE")
                    ->allow_extra_args(false)
                    ->group(kGroup),
                {".vtu", ".csv"}, true);
  addIsovalues(command, exports);
  return {dxfOnMap, geoPackage, curtain};
}

void writeDrawings(const DrawingExports& exports, const LoadedProject& project, const Status& place,
                   OutputAttempts& attempt) {
  const TomoDocument& document = project.document;
  const auto onMap = [&](const std::string& file, const OutputAttempts::Write& write) {
    attempt(file, [&](const std::string& path) {
      return place.ok() ? write(path) : cannotWrite(path, place.text());
    });
  };
  for (const std::string& file : exports.curtains) {
    const bool table = QString::fromStdString(file).endsWith(".csv", Qt::CaseInsensitive);
    onMap(file, [&](const std::string& path) {
      return table ? writeCurtainTable(path, document) : writeVtkCurtain(path, document);
    });
  }
  if (!exports.drawsLines()) return;
  const DrawingOptions options = drawingOptions(exports, project);
  if (exports.dxfOnMap) {
    onMap(exports.dxf, [&](const std::string& path) {
      return writeSectionDxf(path, document, options, DrawingPlace::kMap);
    });
  } else {
    attempt(exports.dxf, [&](const std::string& path) {
      return writeSectionDxf(path, document, options, DrawingPlace::kSection);
    });
  }
  onMap(exports.geoPackage,
        [&](const std::string& path) { return writeSectionGeoPackage(path, document, options); });
}

}  // namespace talvesk
