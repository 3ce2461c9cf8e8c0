#pragma once

#include "base/Message.h"
#include "io/project/OwnMembers.h"
#include "view/SectionViewSettings.h"

#include <QObject>
#include <string>
#include <vector>

namespace talvesk {

class ColorPaletteList;

/// Saves a project: five XML members, those of our own and the shot files that its traces come
/// from, in one archive.
///
/// An archive that lies at the path is replaced by the new one in a single step, when all of that
/// is on the disk. Until then, and after a save that fails, it is as it was. Its permissions stay,
/// and a symbolic link to it does. Runs on any thread; nothing it is given may change meanwhile.
///
/// The steps are virtual so that tests can make each of them fail.
class ProjectWriter : public QObject {
  Q_OBJECT

 public:
  /// Lists of the shot files that a project names, with their folders.
  struct SourceFiles {
    std::vector<std::string> main;
    std::vector<std::string> dx;
    std::vector<std::string> sx;
  };

  /// 0, or 1 when the project is not saved; message() says why.
  /// \param archive path, UTF-8; \param workingFolder ending in "/", where the temporary folder
  /// goes; \param own what the project held that is not in the survey, see readOwnMembers()
  int save(const std::string& archive, const std::string& workingFolder,
           const TomoDocument& document,
           const refractionDataStructure::Interpretation& interpretation,
           const ColorPaletteList& palettes, const SectionViewSettings& section = {},
           const OwnMembers& own = {});

  bool hasError() const { return mError; }                          ///< of the last save
  const std::string& message() const { return mReason.english(); }  ///< why the last save failed
  const Message& reason() const { return mReason; }                 ///< the same, to be translated
  /// What the user should know about a save that succeeded: shot files that are not in it, ...
  const std::vector<Message>& warnings() const { return mWarnings; }

  // The steps. Each returns 0 or 1.
  virtual int saveTomoDocument_XML(const std::string& path, const TomoDocument& document,
                                   const SectionViewSettings& section);
  virtual int saveTomoDocumentGrid_XML(const std::string& path, const TomoDocument& document);
  /// \param withSamples per trace set: its samples are written, no shot file has them
  /// \param sources out: the files to be copied
  virtual int saveTomoDocumentTraces_XML(const std::string& path, const TomoDocument& document,
                                         const std::vector<bool>& withSamples,
                                         SourceFiles& sources);
  virtual int savePalettes_XML(const std::string& path, const ColorPaletteList& palettes);
  virtual int saveRefraction_XML(const std::string& path,
                                 const refractionDataStructure::Interpretation& interpretation);
  virtual int compress_project(const std::string& archive, const std::vector<std::string>& files);

 signals:
  void saved_tomo_xml();
  void saved_grid();
  void saved_traces();
  void saved_palettes();
  void saved_refraction();
  void saved_compressed();
  void saved_completed();
  void error_saved_tomo_xml();
  void error_saved_grid();
  void error_saved_traces();
  void error_saved_palettes();
  void error_saved_refraction();
  void error_saved_compressed();

 private:
  struct Project {
    const TomoDocument& document;
    const refractionDataStructure::Interpretation& interpretation;
    const ColorPaletteList& palettes;
    const SectionViewSettings& section;
    const OwnMembers& own;
  };

  using Signal = void (ProjectWriter::*)();

  int fail(const Message& reason);
  int writeTracesAndFiles(const std::string& folder, const TomoDocument& document,
                          std::vector<std::string>& files);
  bool step(int result, Signal done, Signal failed);
  bool writeMembers(const std::string& folder, const Project& project,
                    std::vector<std::string>& files, bool& complete);
  int build(const std::string& archive, const std::string& workingFolder, const Project& project);

  bool mError = false;
  Message mReason;
  std::vector<Message> mWarnings;
};

}  // namespace talvesk
