#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "io/WrittenShot.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

enum class RecordFormat { kSeg2, kSegy };

/// How the records of a survey are written.
struct RecordExport {
  RecordFormat format = RecordFormat::kSegy;
  std::string folder;     ///< that exists
  bool together = false;  ///< all shots in one file; SEG-Y only
};

/// Files that an export writes: "shot07.sg2" or "shot07.sgy" by the number of the shot, or
/// "shots.sgy", with their folder.
std::vector<std::string> recordFiles(const TomoDocument& document, const RecordExport& wanted);

/// Makes the record of a shot as the survey has it now: its mended samples with the positions of
/// the survey. Samples become 32-bit floats. Readers that never read the last sample of a trace
/// would lose it, so a trace whose last sample is not 0 makes all of the shot longer by a 0.
/// \param shot from 0 \param number that the record has in files and complaints
/// \param rounded out, added to: samples that such a float does not hold exactly
/// \return failure for a shot whose traces have no common interval, start or length in time, or a
/// sample beyond every float
Status writtenShotOf(const TomoDocument& document, std::size_t shot, int number,
                     WrittenShot& written, std::size_t& rounded);

/// Writes the records of a survey, every file whole or not at all. Nothing is written where a shot
/// does not fit the format. Shots without samples and disabled shots are left out.
/// \param notes out: what was left out or rounded
/// \param progress asked before every shot, with its place from 0: false stops, and the status says
/// so
Status exportRecords(const TomoDocument& document, const RecordExport& wanted,
                     std::vector<Message>& notes,
                     const std::function<bool(std::size_t)>& progress = {});

/// Writes the record of one shot to a file of any name. Fails as writtenShotOf(), and where the
/// shot does not fit the format. \param notes out, added to: what was rounded
Status writeRecord(const TomoDocument& document, std::size_t shot, int number, RecordFormat format,
                   const std::string& path, std::vector<Message>& notes);

}  // namespace talvesk
