#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/JsonText.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "export/ElasticText.h"
#include "figures/ElasticFigure.h"
#include "figures/SectionFigure.h"
#include "io/project/projectReader.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/elastic/ElasticSurveys.h"
#include "refraction/elastic/MatchWaves.h"
#include "view/ElasticSection.h"

#include <QString>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <system_error>

namespace talvesk {
namespace {

/// One project and its layers.
struct Wave {
  LoadedProject project;
  LayeredWave layers;
};

Status readWave(const std::string& path, const ElasticBatchOptions& options, Wave& wave) {
  const Status status = readProject(path, wave.project);
  if (!status.ok()) return status;
  const auto& interpretation = *wave.project.interpretation;
  if (picksChangedSince(wave.project.document, interpretation.refractData)) {
    warn(path + ": picks have changed since the layered profile was built" +
         (options.bounds > 0 ? "; it gets no errors" : ""));
  }
  BoundsOptions bounds;
  bounds.members = options.bounds;
  bounds.seed = static_cast<std::uint64_t>(options.seed);
  wave.layers = options.bounds > 0 ? layeredWave(wave.project.document, interpretation, bounds)
                                   : layeredWave(interpretation.refractData);
  return {};
}

Json layerJson(const ElasticLayer& layer, bool withErrors) {
  Json json = Json::object();
  json["layer"] = layer.layer;
  for (const char* key : {"x", "elevation", "top_p", "top_s", "tops_differ", "verdict"}) {
    json[key] = Json::array();
  }
  for (const ElasticPoint& point : layer.points) {
    json["x"].push_back(point.x);
    json["elevation"].push_back(point.elevation);
    json["top_p"].push_back(point.topP.value);
    json["top_s"].push_back(point.topS.value);
    json["tops_differ"].push_back(point.topsDiffer);
    json["verdict"].push_back(nameOf(point.state.verdict));
  }
  Json errors = Json::object();
  for (const ElasticColumn& column : kElasticColumns) {
    json[column.key] = Json::array();
    errors[column.key] = Json::array();
    for (const ElasticPoint& point : layer.points) {
      const Estimate& own = point.state[column.quantity];
      json[column.key].push_back(column.factor * own.value);
      errors[column.key].push_back(column.factor * own.sigma);
    }
  }
  if (withErrors) json["errors"] = std::move(errors);
  return json;
}

std::string elasticJson(const ElasticLine& line) {
  const DensityRule& density = line.options.density;
  Json layers = Json::array();
  for (const ElasticLayer& layer : line.layers) layers.push_back(layerJson(layer, line.hasErrors));
  Json remarks = Json::array();
  for (const Message& remark : line.remarks) remarks.push_back(remark.english());
  Json json = Json::object();
  json["density"] = density.gardner ? Json("gardner") : Json(density.layers);
  json["shift"] = line.options.shift;
  json["top_tolerance"] = line.options.topTolerance;
  json["remarks"] = std::move(remarks);
  json["layers"] = std::move(layers);
  return linePerKey(json) + '\n';
}

std::string tableOf(const ElasticLine& line) {
  std::ostringstream text;
  tellElastic(text, line);
  return text.str();
}

std::vector<OutputFile> outputsOf(const ElasticBatchOptions& options) {
  std::vector<OutputFile> outputs = {{"--json", options.json}, {"--out", options.table}};
  for (const std::string& picture : options.pictures) outputs.push_back({"--picture", picture});
  for (const std::string& section : options.sections) outputs.push_back({"--section", section});
  return outputs;
}

bool isTable(const std::string& path) {
  return QString::fromStdString(path).endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

Status drawSection(const ElasticBatchOptions& options, const LoadedProject& project,
                   const ElasticSection& section, const std::string& path) {
  const ElasticQuantity quantity = options.sectionQuantity;
  SectionFigureOptions look = sectionFigureOptions(project.section, project.palettes->current());
  look.scene = SectionSceneOptions();
  look.scene.coverageLimit = false;
  look.scene.values =
      cellValuesOf(section, quantity, elasticName(quantity).toStdString(),
                   elasticUnit(quantity).toStdString(), project.document.model->grid->cellCount());
  return writeSectionFigure(project.document, look, path);
}

/// The sections, which need no layers.
Status writeSections(const ElasticBatchOptions& options, const Wave& p, const Wave& s,
                     OutputAttempts& attempt) {
  if (options.sections.empty()) return {};
  ElasticSection section;
  const Status status =
      matchSections(p.project.document, s.project.document, options.matching, section);
  if (!status.ok()) return status;
  for (const Wave* wave : {&p, &s}) {
    if (wave->project.document.result->has_tomographic_info) continue;
    warn((wave == &p ? options.p : options.s) +
         ": its section is a starting model, for no inversion was run");
  }
  for (const Message& remark : section.remarks) warn(remark);
  for (const std::string& file : options.sections) {
    attempt(file, [&](const auto& path) {
      return isTable(path) ? writeElasticSection(path, section)
                           : drawSection(options, p.project, section, path);
    });
  }
  return {};
}

void writeLayers(const ElasticBatchOptions& options, const std::string& title,
                 const ElasticLine& line, OutputAttempts& attempt) {
  attempt(options.json, [&](const auto& path) { return writeOutput(path, elasticJson(line)); });
  attempt(options.table, [&](const auto& path) { return writeOutput(path, tableOf(line)); });
  for (const std::string& picture : options.pictures) {
    ElasticFigureOptions figure;
    figure.title = title;
    attempt(picture, [&](const auto& path) { return writeElasticFigure(line, figure, path); });
  }
}

}  // namespace

int run(const ElasticBatchOptions& options) {
  const std::vector<OutputFile> outputs = outputsOf(options);
  const Channels channels = openChannels(outputs, options.quiet);
  const Status places = checkOutputFiles(outputs, {options.p, options.s});
  if (places.code() == kWrongUsage) return wrongUsage("elastic", places.message());
  if (!places.ok()) return failed(places.message());
  std::error_code unknown;
  if (std::filesystem::equivalent(options.p, options.s, unknown)) {
    return wrongUsage("elastic", "P and S are the same project, '" + options.p + "'");
  }
  if (!options.pictures.empty() || !options.sections.empty()) prepareDrawing();

  Wave p;
  Wave s;
  Status status = readWave(options.p, options, p);
  if (status.ok()) status = readWave(options.s, options, s);
  if (!status.ok()) return failed(status.message());
  ElasticLine line;
  status = matchWaves(p.layers, s.layers, options.matching, line);
  const bool sectionsOnly = !options.sections.empty() && (options.json + options.table).empty() &&
                            options.pictures.empty();
  if (!status.ok() && !sectionsOnly) return failed(status.message());
  std::vector<Message> remarks =
      compareSurveys(p.project.document, s.project.document, options.matching);
  remarks.insert(remarks.end(), line.remarks.begin(), line.remarks.end());
  line.remarks = std::move(remarks);
  for (const Message& remark : line.remarks) warn(remark);
  OutputAttempts attempt;
  if (status.ok()) writeLayers(options, p.project.document.title, line, attempt);
  status = writeSections(options, p, s, attempt);
  if (!status.ok()) return failed(status.message());
  for (const Message& told : elasticSummary(line)) *channels.summary << told.english() << '\n';
  channels.summary->flush();
  return attempt.exitCode();
}

}  // namespace talvesk
