#pragma once

#include "base/Message.h"
#include "io/SegyFile.h"
#include "io/Survey.h"

#include <QObject>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

struct SurveyMember;

/// What a project file holds, ready for work.
struct LoadedProject : Survey {
  SegyState shotFiles;  ///< what the readers of its SEG-Y and SU files remember, see ShotLoader
};

/// Loads a project, all of it or nothing. Runs on any thread.
///
/// Rays are not in a project; see recomputeRays(). Computed times of a project of an earlier
/// version are those of the last solver pass until then.
class projectReader : public QObject {
  Q_OBJECT

 public:
  /// Deletes the temporary folders of earlier loads that nobody uses any more, extracts the archive
  /// into a new one and reads its members. 0, or 1 and `project` as before.
  int load(const std::string& archive, const std::string& workingFolder, LoadedProject& project);

  bool hasError() const { return mError; }                          ///< of the last load
  const std::string& message() const { return mReason.english(); }  ///< why it failed
  const Message& reason() const { return mReason; }                 ///< the same, to be translated
  bool tracesFailed() const { return mTracesFailed; }
  /// What a load that succeeded had to leave out: shot files whose traces are empty now, members of
  /// newer versions, ...
  const std::vector<Message>& warnings() const { return mWarnings; }
  /// What else was put right or left out of a load that succeeded, because it cannot be.
  const std::vector<Message>& repairs() const { return mRepairs; }

  // The steps. Each returns 0 or 1. They are virtual so that tests can make each of them fail.
  virtual int read_ZIP(const std::string& archive, const std::string& folder);
  virtual int readTomoDocument_XML(const std::string& path, SurveyMember& survey);
  virtual int readTomoDocumentGrid_XML(const std::string& path, SurveyMember& survey);
  virtual int readTomoDocumentTraces_XML(const std::string& path, TomoDocument& document);
  virtual int readPalettes_XML(const std::string& path, ColorPaletteList& palettes);
  virtual int readRefraction_XML(const std::string& path, const TomoDocument& document,
                                 refractionDataStructure::Interpretation& interpretation);

 signals:
  void read_compressed();
  void read_tomo_xml();
  void read_grid();
  void read_traces();
  void read_palettes();
  void error_read_compressed();
  void error_read_tomo_xml();
  void error_read_grid();
  void error_read_traces();
  void error_read_palettes();

 private:
  int fail(const Message& reason);
  bool step(int result, void (projectReader::*done)(), void (projectReader::*failed)());
  bool readMembers(const std::string& folder, LoadedProject& project);
  int loadInto(const std::string& archive, const std::string& workingFolder,
               LoadedProject& project);

  bool mError = false;
  bool mTracesFailed = false;
  Message mReason;
  std::vector<Message> mWarnings;
  std::vector<Message> mRepairs;
  SegyState mShotFiles;
};

}  // namespace talvesk
