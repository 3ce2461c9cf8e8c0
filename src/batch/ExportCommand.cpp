#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/DrawingExports.h"
#include "batch/Failure.h"
#include "batch/FittedSection.h"
#include "batch/FreshTimes.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/PrintExports.h"
#include "batch/ProjectFiles.h"
#include "batch/RefractorOutput.h"
#include "batch/ReportIndex.h"
#include "batch/Reports.h"
#include "batch/RunList.h"
#include "export/CertaintyTable.h"
#include "export/ExportFailure.h"
#include "export/ResidualText.h"
#include "export/SectionKml.h"
#include "export/SeismicLineKml.h"
#include "export/SurferGrid.h"
#include "export/VtkGrid.h"
#include "figures/ProfileLines.h"
#include "io/PickedCopies.h"
#include "io/StyleFile.h"
#include "io/project/projectReader.h"
#include "model/GeoTransformer.h"
#include "model/GeographicsCoord.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "refraction/PicksFingerprint.h"
#include "tomo/ForwardPass.h"

#include <QDir>
#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

std::vector<OutputFile> outputsOf(const ExportOptions& options) {
  std::vector<OutputFile> outputs = {{"--gridded", options.gridded},
                                     {"--otte", options.otte},
                                     {"--sgt", options.sgt},
                                     {"--residuals", options.residuals},
                                     {"--vtk", options.vtk},
                                     {"--grd", options.surfer},
                                     {"--certainty-table", options.certainty},
                                     {"--kml-line", options.kmlLine},
                                     {"--kml-section", options.kmlSection},
                                     {"--report", options.report}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  for (const OutputFile& file : filesOf(options.drawings)) outputs.push_back(file);
  for (const OutputFile& file : filesOf(options.prints)) outputs.push_back(file);
  for (const std::string& file : options.refractors) outputs.push_back({"--refractor", file});
  return outputs;
}

/// Those of the section in KML; pictures and reports have the project's.
struct KmlColors {
  const ColorPalette* palette = nullptr;
  ValueRange range;
};

int chooseColors(const ExportOptions& options, const ColorPaletteList& palettes,
                 KmlColors& colors) {
  colors.palette = &palettes.current();
  colors.range = options.range.value_or(ValueRange{colors.palette->min_db, colors.palette->max_db});
  if (options.palette.empty()) return kDone;
  std::string names;
  for (std::size_t i = 0; i < palettes.size(); ++i) {
    if (palettes[i].name == options.palette) {
      colors.palette = &palettes[i];
      return kDone;
    }
    names += (i > 0 ? ", '" : "'") + palettes[i].name + "'";
  }
  return wrongUsage("export", "--palette: '" + options.palette + "' is none of " + names);
}

/// A code that is given here is checked, so that a slip is noticed; one that comes with the project
/// is that of its author.
Status checkSystem(const ExportOptions& options) {
  return options.geography ? GeoTransformer(options.geography->CRS).status() : Status();
}

void copyRecords(const ExportOptions& options, const TomoDocument& document,
                 OutputAttempts& attempt) {
  attempt(options.pickedRecords, [&](const std::string& folder) {
    if (!QDir().mkpath(QString::fromStdString(folder))) {
      return Status::failure("Cannot make the folder " + folder);
    }
    std::vector<Message> notes;
    const Status status = writePickedCopies(document, folder, notes);
    for (const std::string& note : notes) warn(note);
    return status;
  });
}

int writeFiles(const ExportOptions& options, const LoadedProject& project, const KmlColors& colors,
               std::ostream& summary) {
  const TomoDocument& document = project.document;
  OutputAttempts attempt(&summary);
  attempt(options.gridded, [&](const auto& path) {
    announceGriddedText(path);
    return writeGriddedText(path, document, options.griddedText);
  });
  attempt(options.otte, [&](const auto& path) { return writePicks(path, document); });
  attempt(options.sgt, [&](const auto& path) { return writePicksWithErrors(path, document); });
  attempt(options.residuals,
          [&](const auto& path) { return writeResiduals(path, residualTableOf(document)); });
  attempt(options.vtk, [&](const auto& path) { return writeVtkGrid(path, document); });
  attempt(options.surfer, [&](const auto& path) { return writeSurferGrid(path, document); });
  attempt(options.certainty, [&](const auto& path) { return writeCertaintyTable(path, document); });
  attempt(options.kmlLine, [&](const auto& path) {
    const Status system = checkSystem(options);
    return system.ok() ? writeSeismicLineKml(path, document) : cannotWrite(path, system.message());
  });
  attempt(options.kmlSection, [&](const auto& path) {
    const Status system = checkSystem(options);
    return system.ok() ? writeSectionKml(path, document, *colors.palette, colors.range)
                       : cannotWrite(path, system.message());
  });
  copyRecords(options, document, attempt);
  writeDrawings(options.drawings, project, checkSystem(options), attempt);
  warnAboutCertainty(document);
  const SectionFigureOptions section = sectionFigureOptions(
      project.section, project.palettes->current(), profileLines(document, project.interpretation));
  for (const std::string& image : options.images) {
    attempt(image, [&](const auto& path) { return writeSectionFigure(document, section, path); });
  }
  writePrints(options.prints, project, section, attempt);
  writeRefractor(options, project, attempt, summary);
  attempt(options.report, [&](const auto& path) {
    return writeReportFile({document, &*project.interpretation}, options.reportFields, section,
                           path);
  });
  return attempt.exitCode();
}

/// Makes ready what figures and residuals need: rays are not in a project.
Status prepareFigures(const ExportOptions& options, TomoDocument& document) {
  const bool draws = !options.images.empty() || !options.refractors.empty() ||
                     options.prints.any() || !options.report.empty();
  if (!draws && options.residuals.empty()) return {};
  if (draws) prepareDrawing();
  return traceFreshTimes(document);
}

Status layOn(LoadedProject& project, const std::string& file) {
  SectionStyle style;
  Status status = readStyle(file, style);
  if (!status.ok()) return status;
  applyStyle(style, project.document, project.palettes.edit(), project.section);
  return status;
}

/// Where the layered profile is drawn or told.
void warnOfOldProfile(const ExportOptions& options, const LoadedProject& project) {
  const bool shown =
      !options.report.empty() || !options.refractors.empty() || options.drawings.drawsLines() ||
      !options.prints.layers.empty() ||
      (project.section.refraction && (!options.images.empty() || !options.prints.section.empty()));
  if (shown && picksChangedSince(project.document, project.interpretation->refractData)) {
    warn("picks have changed since the layered profile was built");
  }
}

}  // namespace

int run(const ExportOptions& options) {
  if (!options.index.empty()) return writeReportIndex(options);
  const std::vector<OutputFile> outputs = outputsOf(options);
  const Channels channels = openChannels(outputs, options.quiet);
  std::vector<std::string> inputs{options.project};
  if (!options.style.empty()) inputs.push_back(options.style);
  const Status places = checkOutputFiles(outputs, inputs);
  if (places.code() == kWrongUsage) return wrongUsage("export", places.message());
  if (!places.ok()) return failed(places.message());

  LoadedProject project;
  Status status = readProject(options.project, project);
  if (status.ok() && !options.run.empty()) {
    Log log;
    status = chooseRun(options.run, searchThreads(), project, log);
  }
  if (status.ok() && !options.style.empty()) status = layOn(project, options.style);
  if (status.ok()) status = prepareFigures(options, project.document);
  if (!status.ok()) return failed(status.message());
  KmlColors colors;
  if (const int chosen = chooseColors(options, *project.palettes, colors); chosen != kDone) {
    return chosen;
  }
  if (options.geography) {
    project.document.map.edit().geoCoord = *options.geography;
    project.document.map.edit().geoCoord_isSet = true;
  }
  warnOfOldProfile(options, project);
  return writeFiles(options, project, colors, *channels.summary);
}

}  // namespace talvesk
