#include "io/project/projectReader.h"

#include "base/Console.h"
#include "base/SampleStore.h"
#include "io/EntryName.h"
#include "io/project/ProjectAssembly.h"
#include "io/project/ProjectZip.h"
#include "refraction/PlausibleResults.h"

#include <QFileInfo>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

namespace talvesk {
namespace {

/// Why the file cannot even be opened; empty when it can.
Message whyClosed(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return Message::tr("There is no such file.");
  if (!std::filesystem::is_regular_file(path, error)) {
    return Message::tr("It is not a regular file.");
  }
  if (!QFileInfo(QString::fromStdString(path)).isReadable())
    return Message::tr("You may not read it.");
  return {};
}

}  // namespace

int projectReader::fail(const Message& reason) {
  mError = true;
  if (mReason.empty()) mReason = reason;  // the first reason is the one that matters
  return 1;
}

bool projectReader::step(int result, void (projectReader::*done)(),
                         void (projectReader::*failed)()) {
  emit(this->*(result == 0 ? done : failed))();
  if (result != 0) mError = true;
  return result == 0;
}

int projectReader::read_ZIP(const std::string& archive, const std::string& folder) {
  Message why;
  if (readZip(archive, folder, why) == 0) return 0;
  const Message closed = whyClosed(archive);
  return fail(closed.empty() ? Message::tr("It cannot be extracted: %1.").arg(std::move(why))
                             : closed);
}

int projectReader::readTomoDocument_XML(const std::string& path, SurveyMember& survey) {
  Message why;
  if (readSurvey(path, survey, why) != 0) return fail(why);
  const Status status = checkSurvey(survey, mRepairs);
  return status.ok() ? 0 : fail(joined(kSurveyMember, status.text()));
}

int projectReader::readTomoDocumentGrid_XML(const std::string& path, SurveyMember& survey) {
  Message why;
  GridMember grid;
  if (readGrid(path, grid, why) != 0) return fail(why);
  const Status status = installGrid(std::move(grid), survey, mRepairs);
  return status.ok() ? 0 : fail(joined(kGridMember, status.text()));
}

int projectReader::readTomoDocumentTraces_XML(const std::string& path, TomoDocument& document) {
  Message why;
  TracesMember traces;
  if (readTraces(path, traces, why) != 0) return fail(why);
  const std::string folder = path.substr(0, path.size() - bareName(path).size());
  const Status status =
      installTraces(std::move(traces), folder, document, mShotFiles, mWarnings, mRepairs);
  return status.ok() ? 0 : fail(joined(kTracesMember, status.text()));
}

int projectReader::readPalettes_XML(const std::string& path, ColorPaletteList& palettes) {
  Message why;
  return readPalettes(path, palettes, mRepairs, why) == 0 ? 0 : fail(why);
}

int projectReader::readRefraction_XML(const std::string& path, const TomoDocument& document,
                                      refractionDataStructure::Interpretation& interpretation) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return 0;  // projects of earlier versions
  Message why;
  if (readRefraction(path, interpretation, why) != 0) return fail(why);
  const std::size_t left =
      leaveOutImplausible(interpretation.refractData, lineLength(shotArrivals(document)));
  const Status status = checkInterpretation(document, interpretation, mRepairs);
  if (!status.ok()) return fail(joined(kRefractionMember, status.text()));
  if (left > 0) {
    mRepairs.push_back(joined(
        kRefractionMember,
        Message::tr("%1 velocities and depths of the layers are left out: outside %2 to %3, or "
                    "deeper than the line is long")
            .arg(left)
            .arg(Message::velocity(kLeastVelocity))
            .arg(Message::velocity(kGreatestVelocity))));
  }
  return 0;
}

bool projectReader::readMembers(const std::string& folder, LoadedProject& project) {
  SurveyMember survey;
  // Whatever fails, the others are read, so that all that is wrong with a project is told at once;
  // but grid and traces mean nothing without the survey.
  const bool hasSurvey = step(readTomoDocument_XML(folder + kSurveyMember, survey),
                              &projectReader::read_tomo_xml, &projectReader::error_read_tomo_xml);
  const bool hasGrid = step(hasSurvey ? readTomoDocumentGrid_XML(folder + kGridMember, survey) : 1,
                            &projectReader::read_grid, &projectReader::error_read_grid);
  const bool hasTraces =
      step(hasSurvey ? readTomoDocumentTraces_XML(folder + kTracesMember, survey.document) : 1,
           &projectReader::read_traces, &projectReader::error_read_traces);
  mTracesFailed = hasSurvey && !hasTraces;
  step(readPalettes_XML(folder + kPalettesMember, project.palettes.edit()),
       &projectReader::read_palettes, &projectReader::error_read_palettes);
  if (hasSurvey && hasTraces) {
    readRefraction_XML(folder + kRefractionMember, survey.document, project.interpretation.edit());
  }
  if (hasSurvey && hasGrid && hasTraces) {
    project.own =
        readOwnMembers(folder, survey.document, project.interpretation.edit(), mWarnings, mRepairs);
  }
  project.document = std::move(survey.document);
  project.section = survey.section;
  project.shotFiles = mShotFiles;
  return !mError;
}

int projectReader::loadInto(const std::string& archive, const std::string& workingFolder,
                            LoadedProject& project) {
  TemporaryFolder::clear(workingFolder);
  project.folder = TemporaryFolder::create(workingFolder);
  if (project.folder == nullptr) {
    console::logError("ERROR: Impossible to save!");
    return fail(Message::tr("No temporary folder can be created in %1.").arg(workingFolder));
  }
  if (read_ZIP(archive, project.folder->path()) != 0) {
    console::logError("[ERROR] While extracting " + archive);
    emit error_read_compressed();
    return fail(Message::tr("It cannot be extracted."));
  }
  emit read_compressed();
  return readMembers(project.folder->path(), project) ? 0 : 1;
}

int projectReader::load(const std::string& archive, const std::string& workingFolder,
                        LoadedProject& project) {
  mError = false;
  mTracesFailed = false;
  mReason = {};
  mWarnings.clear();
  mRepairs.clear();
  mShotFiles = {};
  try {
    LoadedProject fresh;
    if (loadInto(archive, workingFolder, fresh) != 0) return 1;
    SampleStore::instance().giveBack();
    project = std::move(fresh);
    return 0;
  } catch (const std::exception& error) {
    return fail(Message::tr("It cannot be loaded: %1").arg(error.what()));
  }
}

}  // namespace talvesk
