#include "io/project/ProjectWriter.h"

#include "base/Console.h"
#include "base/FileReplacement.h"
#include "io/TemporaryFolder.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ProjectZip.h"
#include "io/project/SourceCopies.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

namespace talvesk {
namespace {

namespace fs = std::filesystem;

}  // namespace

int ProjectWriter::fail(const Message& reason) {
  mError = true;
  mReason = reason;
  return 1;
}

int ProjectWriter::saveTomoDocument_XML(const std::string& path, const TomoDocument& document,
                                        const SectionViewSettings& section) {
  console::log("ProjectWriter::saveTomoDocument_XML");
  return writeSurvey(path, document, section);
}

int ProjectWriter::saveTomoDocumentGrid_XML(const std::string& path, const TomoDocument& document) {
  console::log("ProjectWriter::saveTomoDocumentGrid_XML");
  return writeGrid(path, document);
}

int ProjectWriter::saveTomoDocumentTraces_XML(const std::string& path, const TomoDocument& document,
                                              const std::vector<bool>& withSamples,
                                              SourceFiles& sources) {
  console::log("ProjectWriter::saveTomoDocumentTraces_XML");
  sources = {document.recordings->filenames, document.recordings->filenames_DX,
             document.recordings->filenames_SX};
  return writeTraces(path, document, withSamples);
}

int ProjectWriter::savePalettes_XML(const std::string& path, const ColorPaletteList& palettes) {
  console::log("ProjectWriter::savePalettes_XML");
  return writePalettes(path, palettes);
}

int ProjectWriter::saveRefraction_XML(
    const std::string& path, const refractionDataStructure::Interpretation& interpretation) {
  console::log("ProjectWriter::saveRefraction_XML");
  return writeRefraction(path, interpretation);
}

int ProjectWriter::compress_project(const std::string& archive,
                                    const std::vector<std::string>& files) {
  console::log("ProjectWriter::compress_project");
  Message why;
  return writeZip(archive, files, why) == 0 ? 0 : fail(why);
}

/// The member names the files, the files decide what must be in the member. It is written as if all
/// files could be copied and read again, and once more when that was too hopeful.
int ProjectWriter::writeTracesAndFiles(const std::string& folder, const TomoDocument& document,
                                       std::vector<std::string>& files) {
  SourceFiles sources;
  const std::string member = folder + kTracesMember;
  files.push_back(member);
  const std::vector<bool> hoped(document.recordings->traceSets.size(), false);
  if (saveTomoDocumentTraces_XML(member, document, hoped, sources) != 0) return 1;
  SourceCopies copies = copySources({&sources.main, &sources.dx, &sources.sx}, folder);
  const std::vector<bool> without = setsWithoutFile(document, folder);
  files.insert(files.end(), copies.files.begin(), copies.files.end());
  mWarnings = std::move(copies.warnings);
  return without == hoped ? 0 : writeTraces(member, document, without);
}

/// Emits one signal or the other.
bool ProjectWriter::step(int result, Signal done, Signal failed) {
  emit(this->*(result == 0 ? done : failed))();
  return result == 0;
}

/// All members, whichever of them fail; the last decides whether there is any point in going on.
/// Nothing stays of a member that failed, so that no archive can be built with half of it.
bool ProjectWriter::writeMembers(const std::string& folder, const Project& project,
                                 std::vector<std::string>& files, bool& complete) {
  complete = true;
  const auto add = [&](const char* member) {
    files.push_back(folder + member);
    return files.back();
  };
  const auto giveUp = [&](const char* member) {
    complete = false;
    std::error_code ignored;
    fs::remove(folder + member, ignored);
  };
  const auto check = [&](const char* member, int result, Signal done, Signal failed) {
    if (!step(result, done, failed)) giveUp(member);
  };
  check(kSurveyMember, saveTomoDocument_XML(add(kSurveyMember), project.document, project.section),
        &ProjectWriter::saved_tomo_xml, &ProjectWriter::error_saved_tomo_xml);
  check(kGridMember, saveTomoDocumentGrid_XML(add(kGridMember), project.document),
        &ProjectWriter::saved_grid, &ProjectWriter::error_saved_grid);
  check(kTracesMember, writeTracesAndFiles(folder, project.document, files),
        &ProjectWriter::saved_traces, &ProjectWriter::error_saved_traces);
  check(kPalettesMember, savePalettes_XML(add(kPalettesMember), project.palettes),
        &ProjectWriter::saved_palettes, &ProjectWriter::error_saved_palettes);
  if (!writeOwnMembers(folder, project.document, project.interpretation, project.own, files,
                       mWarnings)) {
    complete = false;
  }
  return step(saveRefraction_XML(add(kRefractionMember), project.interpretation),
              &ProjectWriter::saved_refraction, &ProjectWriter::error_saved_refraction);
}

int ProjectWriter::build(const std::string& archive, const std::string& workingFolder,
                         const Project& project) {
  std::vector<std::string> files;
  bool complete = false;
  int built = 1;
  {
    const auto temporary = TemporaryFolder::create(workingFolder);
    if (temporary == nullptr) {
      console::logError("ERROR: Impossible to save!");
      return fail(Message::tr("No temporary folder can be created in %1.").arg(workingFolder));
    }
    const Message unwritten =
        Message::tr("Its parts cannot be written in %1; is the disk full?").arg(temporary->path());
    if (!writeMembers(temporary->path(), project, files, complete)) {
      return fail(unwritten);
    }
    built = compress_project(archive, files);
    step(built, &ProjectWriter::saved_compressed, &ProjectWriter::error_saved_compressed);
    if (!complete) fail(unwritten);
    if (built != 0 && mReason.empty()) {
      fail(Message::tr("The archive %1 cannot be written.").arg(archive));
    }
  }
  emit saved_completed();
  return built;
}

int ProjectWriter::save(const std::string& archive, const std::string& workingFolder,
                        const TomoDocument& document,
                        const refractionDataStructure::Interpretation& interpretation,
                        const ColorPaletteList& palettes, const SectionViewSettings& section,
                        const OwnMembers& own) {
  mError = false;
  mReason = {};
  mWarnings.clear();
  if (const Status place = checkReplaceable(archive); !place.ok()) {
    console::logError("ERROR: Impossible to save!");
    return fail(place.text());
  }
  TemporaryFolder::clear(workingFolder);
  try {
    return build(archive, workingFolder, {document, interpretation, palettes, section, own});
  } catch (const std::exception& error) {
    return fail(Message::tr("It cannot be put together: %1").arg(error.what()));
  }
}

}  // namespace talvesk
