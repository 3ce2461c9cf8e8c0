#pragma once

#include "base/Status.h"
#include "io/ReadShotFile.h"
#include "io/SegyFile.h"
#include "io/ShotRecord.h"
#include "model/ModelLoss.h"
#include "model/Trace.h"

#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Loads shot files into a document and remembers between them, and between calls, what the readers
/// of SEG-Y and SU must remember.
class ShotLoader {
 public:
  /// Appends the files in the order given: per shot of a file, which by the program's rules is one,
  /// a trace set, a record without picks, the path and the position of the source, all taken from
  /// the first trace (0 when there is none). The
  /// receivers become a geophone string unless an equal one exists already. Of grid and results
  /// what belongs to the line as it was is forgotten, see modelLoss(). Files that fail change
  /// nothing. A document that holds records without trace sets, or S-wave pairs, takes no file: the
  /// status of all is 1.
  std::vector<ShotFileOutcome> load(const std::vector<std::string>& paths, TomoDocument& document,
                                    ShotReader reader = ShotReader::kRules);

  /// The first half of it, for those who ask before anything is lost; appendShots() is the other.
  ReadShotFile read(const std::string& path, const TomoDocument& document,
                    ShotReader reader = ShotReader::kRules);

  /// Remembers files that were read elsewhere, those of a project, as if they had been read here.
  void remember(const SegyState& others);

  SegyState& state() { return mState; }

 private:
  SegyState mState;
};

/// Whether a document takes shot files at all; a failure says why not.
Status checkTakesShots(const TomoDocument& document);

/// The traces as the document keeps them.
TraceSet traceSetOf(ShotFileData data);

/// What appending the files that could be read would cost of the document's model.
ModelLoss lossByShots(const std::vector<ReadShotFile>& files, const TomoDocument& document);

/// Appends the files that could be read and forgets what that costs.
/// \return what became of each file
std::vector<ShotFileOutcome> appendShots(std::vector<ReadShotFile> files, TomoDocument& document);

/// Appends the one shot of a file that was read by the program's rules.
void appendShot(const std::string& path, ShotFileData data, TomoDocument& document);

}  // namespace talvesk
