#include "batch/RefractorOutput.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/JsonText.h"
#include "batch/Options.h"
#include "batch/OutputFiles.h"
#include "export/ComparisonText.h"
#include "figures/SectionFigure.h"
#include "io/project/projectReader.h"
#include "model/TomoDocument.h"
#include "tomo/LayeredProfile.h"
#include "tomo/RefractorReading.h"
#include "view/ComparisonLines.h"

#include <QString>
#include <ostream>

namespace talvesk {
namespace {

Json jsonOf(const std::optional<double>& value) {
  return value ? Json(*value) : Json(nullptr);
}

std::string comparisonJson(const LayerComparison& comparison) {
  Json json = Json::object();
  json["layer"] = comparison.refractor + 2;
  json["velocity"] = jsonOf(comparison.sign.velocity);
  json["sign"] = comparison.sign.velocity ? "velocity" : "gradient";
  json["count"] = comparison.count;
  json["mean"] = comparison.count > 0 ? Json(comparison.mean) : Json(nullptr);
  json["rms"] = comparison.count > 0 ? Json(comparison.rms) : Json(nullptr);
  for (const char* key : {"x", "elevation", "layers_depth", "section_depth", "difference"}) {
    json[key] = Json::array();
  }
  for (const ComparedDepth& point : comparison.points) {
    json["x"].push_back(point.x);
    json["elevation"].push_back(point.elevation);
    json["layers_depth"].push_back(jsonOf(point.layers));
    json["section_depth"].push_back(jsonOf(point.section));
    json["difference"].push_back(jsonOf(point.difference()));
  }
  return linePerKey(json);
}

Status compare(const ExportOptions& options, const LoadedProject& project,
               LayerComparison& comparison) {
  const auto& results = project.interpretation->refractData;
  const auto refractor = static_cast<std::size_t>(options.refractorLayer - 2);
  LayeredProfile profile;
  const Status status = LayeredProfile::read(results, profile);
  if (!status.ok()) return status;
  RefractorSign sign;
  if (!options.refractorByGradient) {
    sign.velocity = options.refractorAt;
    if (!sign.velocity && refractor < profile.refractors()) {
      sign.velocity = profile.middleVelocity(refractor);
    }
  }
  return compareRefractor(project.document, results, refractor, sign, comparison);
}

Status writeFile(const std::string& path, const LayerComparison& comparison,
                 const LoadedProject& project) {
  const QString name = QString::fromStdString(path);
  const auto endsIn = [&name](const char* suffix) {
    return name.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
  };
  if (endsIn(".csv")) return writeComparison(path, comparison);
  if (endsIn(".json")) return writeOutput(path, comparisonJson(comparison));
  SectionViewSettings settings = project.section;
  settings.refraction = true;
  return writeSectionFigure(
      project.document,
      sectionFigureOptions(
          settings, project.palettes->current(),
          comparisonLines(comparison, layersLineName(comparison), sectionLineName(comparison))),
      path);
}

void summarize(const LayerComparison& comparison, std::ostream& summary) {
  summary << sectionLineName(comparison).english() << ", against layer " << comparison.refractor + 2
          << ": ";
  if (comparison.count == 0) {
    summary << "no geophone has both depths" << std::endl;
    return;
  }
  summary << "mean difference " << formatDouble(comparison.mean, 3) << " m, RMS "
          << formatDouble(comparison.rms, 3) << " m at " << comparison.count << " of "
          << comparison.points.size() << " geophones" << std::endl;
}

}  // namespace

void writeRefractor(const ExportOptions& options, const LoadedProject& project,
                    OutputAttempts& attempt, std::ostream& summary) {
  if (options.refractors.empty()) return;
  LayerComparison comparison;
  const Status status = compare(options, project, comparison);
  for (const std::string& file : options.refractors) {
    attempt(file, [&](const std::string& path) {
      return status.ok() ? writeFile(path, comparison, project) : status;
    });
  }
  if (!status.ok()) return;
  if (comparison.count < comparison.points.size()) {
    warn(std::to_string(comparison.points.size() - comparison.count) + " of " +
         std::to_string(comparison.points.size()) +
         " geophones lack a depth by the layers or by the section; they are not in mean and RMS");
  }
  summarize(comparison, summary);
}

}  // namespace talvesk
