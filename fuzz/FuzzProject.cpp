// Throws any bytes at the reader of projects, as a whole archive or in place of one member of a
// sound one. What it accepts must hang together, and must be there again after saving and loading.
#include "Demand.h"
#include "base/Console.h"
#include "io/project/ProjectAssembly.h"
#include "io/project/ProjectWriter.h"
#include "io/project/ProjectZip.h"
#include "io/project/projectReader.h"
#include "model/GroundModel.h"
#include "model/KeptRun.h"
#include "model/KnownGround.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace talvesk;

const char* const kMembers[] = {kSurveyMember,   kGridMember,       kTracesMember,
                                kPalettesMember, kRefractionMember, "picks.xml",
                                "errors.xml",    "runs.xml",        "known.xml"};

void put(const std::string& path, const std::uint8_t* bytes, std::size_t size) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
}

int save(const std::string& path, const std::string& work, const LoadedProject& project) {
  ProjectWriter writer;
  return writer.save(path, work, project.document, project.interpretation, project.palettes,
                     project.section, project.own);
}

/// Two shots into three geophones, with traces and layers, without a file.
LoadedProject soundProject() {
  LoadedProject project;
  project.document.line.edit().goephonesStringSet = {{{0, 100}, {5, 101}, {10, 102}}};
  for (std::int32_t shot = 0; shot < 2; ++shot) {
    TravelTime record;
    record.shotPos2d = {12.0 * shot - 1.0, 100.0};
    record.traceSetID = shot;
    record.ttMisurati.edit() = {0.01, 0.0, -99.0};
    record.ttCalcolati.edit() = {0.01, 0.02, 0.03};
    record.setWaiting(0, shot == 0);
    project.document.ttArray.edit().push_back(record);
    Trace trace;
    trace.waveKind = Trace::kFromFile;
    trace.sampleInterval = 0.01;  // the pick lies within the record
    trace.samples.edit() = {0, 1, 2};
    project.document.recordings.edit().traceSets.push_back({trace, trace, trace});
    project.document.line.edit().shotPositions.push_back(record.shotPos2d.x);
    project.interpretation.edit().ttLayer.push_back(
        {static_cast<std::uint32_t>(shot), {1, 2, 3}, {0, 0, 0}, true});
  }
  project.document.known.edit().boreholes = {{"B1", 5.0, 0.0, {{0, 2, 400, 20}}}};
  project.document.known.edit().depths = {{"P1", 5.0, 3.0}};
  return project;
}

/// The folder of all runs, with the members of the sound project loose in it.
struct Workshop {
  Workshop() {
    const std::string archive = root() + "sound.tvsk";
    QDir(folder.path()).mkdir(QStringLiteral("work"));
    demand(save(archive, work(), soundProject()) == 0, "the sound project can be saved");
    QDir(folder.path()).mkdir(QStringLiteral("loose"));
    Message why;
    demand(readZip(archive, loose(), why) == 0, "and extracted");
  }
  std::string root() const { return folder.path().toStdString() + "/"; }
  std::string loose() const { return root() + "loose/"; }
  /// Its folders are the reader's, to delete with every load.
  std::string work() const { return root() + "work/"; }

  QTemporaryDir folder;
};

/// The archive with the bytes in it.
void build(const Workshop& shop, std::uint8_t place, const std::uint8_t* bytes, std::size_t size,
           const std::string& archive) {
  if (place == 0) return put(archive, bytes, size);
  std::vector<std::string> files;
  const std::string changed = shop.root() + kMembers[place - 1];
  put(changed, bytes, size);
  for (const char* member : kMembers) {
    const std::string sound = shop.loose() + member;
    if (member == kMembers[place - 1]) {
      files.push_back(changed);
    } else if (QFile::exists(QString::fromStdString(sound))) {
      files.push_back(sound);
    }
  }
  Message why;
  demand(writeZip(archive, files, why) == 0, "an archive of any members");
}

void demandRun(const KeptRun& run) {
  const std::size_t cells = run.size.cellCount();
  demand(run.slowness.size() == cells && run.coorcount.size() == cells &&
             run.hitCounts.size() == cells,
         "a value per cell of a run");
  if (!run.record.fit) return;
  demand(run.record.fit->errorFloor > 0.0 && std::isfinite(run.record.fit->errorFloor),
         "errors that residuals can be divided by");
  demand(run.record.fit->reference.size() < 100, "the name of a model");
  for (const FoundShift& shift : run.record.fit->shifts) {
    demand(std::isfinite(shift.late) && std::isfinite(shift.mended), "a time shift");
  }
}

void demandWhole(const LoadedProject& project) {
  const TomoDocument& document = project.document;
  const auto strings = static_cast<std::int64_t>(document.line->goephonesStringSet.size());
  demand(document.recordings->traceSets.empty() ||
             document.recordings->traceSets.size() == document.ttArray.size(),
         "a record for every trace set");
  for (const TravelTime& record : document.ttArray) {
    demand(record.indexStesa >= -1 && record.indexStesa < strings, "a string that exists");
    demand(record.ttCalcolati.size() == record.ttMisurati.size(), "computed times");
    for (std::size_t trace = 0; trace < record.unconfirmed.size(); ++trace) {
      demand(!record.waits(trace) ||
                 (trace < record.ttMisurati.size() && hasPick(record.ttMisurati[trace])),
             "a pick that waits");
    }
  }
  for (std::size_t i = 0; i < document.recordings->traceSets.size(); ++i) {
    demand(document.ttArray[i].ttMisurati.size() >= document.recordings->traceSets[i].size(),
           "enough times");
  }
  if (document.model->grid != nullptr) {
    demand(document.model->grid->invalidSlowness().empty(), "velocities to trace rays through");
    demand(document.result->info_density.size() == document.model->grid->cellCount(),
           "a density per cell");
  }
  demand(faultOf(*document.known).empty(), "ground that can be");
  for (const KeptRun& run : document.runs) demandRun(run);
  demand(project.palettes->currentIndex() < project.palettes->size(), "a current palette");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  if (size == 0 || size > 100000) return 0;
  static const Workshop shop;
  const std::string archive = shop.root() + "fuzz.tvsk";
  build(shop, bytes[0] % (std::size(kMembers) + 1), bytes + 1, size - 1, archive);
  LoadedProject project;
  projectReader reader;
  const bool loaded = reader.load(archive, shop.work(), project) == 0;
  demand(loaded == reader.message().empty(), "a message with every failure");
  if (!loaded) return 0;
  demandWhole(project);
  demand(save(archive, shop.work(), project) == 0, "what was loaded can be saved");
  LoadedProject again;
  demand(reader.load(archive, shop.work(), again) == 0, "and loaded");
  demandWhole(again);
  demand(again.own.carried.size() == project.own.carried.size() || !hasPicks(project.document),
         "carried members stay with their part");
  return 0;
}
