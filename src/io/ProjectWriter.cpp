#include "io/ProjectWriter.h"

#include "base/Console.h"
#include "io/ProjectZip.h"
#include "io/SourceCopies.h"
#include "io/TemporaryFolder.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace talvesk {
namespace {

namespace fs = std::filesystem;

/// The archive that lay at the target, out of the way while the new one is built.
class OldArchive {
 public:
  explicit OldArchive(const std::string& path) {
    // What a link points at is the archive; the link itself stays.
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    mPath = error ? path : real.string();
  }

  const std::string& path() const { return mPath; }
  std::string keptPath() const { return mPath + "~"; }
  /// A save before this one may have failed, too, and have left it there.
  bool isKept() const {
    std::error_code ignored;
    return fs::exists(keptPath(), ignored) && !fs::exists(mPath, ignored);
  }

  /// False, and the archive where it was, when it cannot be moved.
  bool moveAside() {
    std::error_code error;
    if (!fs::exists(mPath, error)) return !error;
    if (!fs::is_regular_file(mPath, error)) return false;
    fs::rename(mPath, keptPath(), error);
    mMoved = !error;
    return mMoved;
  }
  void remove() const {
    std::error_code ignored;
    if (mMoved) fs::remove(keptPath(), ignored);
  }

 private:
  std::string mPath;
  bool mMoved = false;
};

/// Until it is on the disk, the new archive is not worth deleting the old one for.
bool isOnDisk(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool synced = ::fsync(file) == 0;
  ::close(file);
  return synced;
}

}  // namespace

int ProjectWriter::fail(const Message& reason) {
  mError = true;
  mReason = reason;
  return 1;
}

int ProjectWriter::saveTomoDocument_XML(const std::string& path, const TomoDocument& document,
                                        const SectionViewSettings& section) {
  console::out() << "ProjectWriter::saveTomoDocument_XML" << std::endl;
  return writeSurvey(path, document, section);
}

int ProjectWriter::saveTomoDocumentGrid_XML(const std::string& path, const TomoDocument& document) {
  console::out() << "ProjectWriter::saveTomoDocumentGrid_XML" << std::endl;
  return writeGrid(path, document);
}

int ProjectWriter::saveTomoDocumentTraces_XML(const std::string& path, const TomoDocument& document,
                                              const std::vector<bool>& withSamples,
                                              SourceFiles& sources) {
  console::out() << "ProjectWriter::saveTomoDocumentTraces_XML" << std::endl;
  sources = {document.filenames, document.filenames_DX, document.filenames_SX};
  return writeTraces(path, document, withSamples);
}

int ProjectWriter::savePalettes_XML(const std::string& path, const ColorPaletteList& palettes) {
  console::out() << "ProjectWriter::savePalettes_XML" << std::endl;
  return writePalettes(path, palettes);
}

int ProjectWriter::saveRefraction_XML(
    const std::string& path, const refractionDataStructure::Interpretation& interpretation) {
  console::out() << "ProjectWriter::saveRefraction_XML" << std::endl;
  return writeRefraction(path, interpretation);
}

int ProjectWriter::compress_project(const std::string& archive,
                                    const std::vector<std::string>& files) {
  console::out() << "ProjectWriter::compress_project" << std::endl;
  return writeZip(archive, files);
}

/// The member names the files, the files decide what must be in the member. It is written as if all
/// files could be copied and read again, and once more when that was too hopeful.
int ProjectWriter::writeTracesAndFiles(const std::string& folder, const TomoDocument& document,
                                       std::vector<std::string>& files) {
  SourceFiles sources;
  const std::string member = folder + kTracesMember;
  files.push_back(member);
  const std::vector<bool> hoped(document.traceSets.size(), false);
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
  const auto check = [&](const char* member, int result, Signal done, Signal failed) {
    if (step(result, done, failed)) return;
    complete = false;
    std::error_code ignored;
    fs::remove(folder + member, ignored);
  };
  check(kSurveyMember, saveTomoDocument_XML(add(kSurveyMember), project.document, project.section),
        &ProjectWriter::saved_tomo_xml, &ProjectWriter::error_saved_tomo_xml);
  check(kGridMember, saveTomoDocumentGrid_XML(add(kGridMember), project.document),
        &ProjectWriter::saved_grid, &ProjectWriter::error_saved_grid);
  check(kTracesMember, writeTracesAndFiles(folder, project.document, files),
        &ProjectWriter::saved_traces, &ProjectWriter::error_saved_traces);
  check(kPalettesMember, savePalettes_XML(add(kPalettesMember), project.palettes),
        &ProjectWriter::saved_palettes, &ProjectWriter::error_saved_palettes);
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
      console::error() << "ERROR: Impossible to save!" << std::endl;
      return fail(Message::tr("No temporary folder can be created in %1.").arg(workingFolder));
    }
    const Message unwritten =
        Message::tr("Its parts cannot be written in %1; is the disk full?").arg(temporary->path());
    if (!writeMembers(temporary->path(), project, files, complete)) {
      return fail(unwritten);
    }
    built = compress_project(archive, files);
    if (built == 0 && (!complete || !isOnDisk(archive))) built = 1;
    step(built, &ProjectWriter::saved_compressed, &ProjectWriter::error_saved_compressed);
    if (!complete) fail(unwritten);
    if (complete && built != 0) fail(Message::tr("The archive %1 cannot be written.").arg(archive));
  }
  emit saved_completed();
  return built;
}

int ProjectWriter::save(const std::string& archive, const std::string& workingFolder,
                        const TomoDocument& document,
                        const refractionDataStructure::Interpretation& interpretation,
                        const ColorPaletteList& palettes, const SectionViewSettings& section) {
  mError = false;
  mReason = {};
  mKeptArchive.clear();
  mWarnings.clear();
  OldArchive old(archive);
  if (!old.moveAside()) {
    console::error() << "ERROR: Impossible to save!" << std::endl;
    return fail(
        Message::tr("The file %1 cannot be replaced; choose another place.").arg(old.path()));
  }
  int result = 1;
  try {
    result = build(old.path(), workingFolder, {document, interpretation, palettes, section});
  } catch (const std::exception& error) {
    fail(Message::tr("It cannot be put together: %1").arg(error.what()));
  }
  if (result == 0) {
    old.remove();
  } else if (old.isKept()) {
    mKeptArchive = old.keptPath();
  }
  return result;
}

}  // namespace talvesk
