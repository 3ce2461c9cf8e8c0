#pragma once

#include "base/Message.h"
#include "base/Status.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The files that writePickedCopies() may write: the names of the shot files, in another folder.
std::vector<std::string> pickedCopies(const TomoDocument& document, const std::string& folder);

/// Writes copies of the shot files of a survey with its picks in their trace headers, see
/// PickHeaders.h: times after the shot as it was recorded, without the time shifts of mends. Picks
/// of reversed records are at the channels that they were picked on. Files are written one by one,
/// each whole or not at all, and never over one of the survey's own, by place or by content; where
/// one would be, or two would have one name, nothing is written. Files without picks are left out
/// and noted, unless they replace a copy that had some; so a file that is like its recording is no
/// copy. A file that cannot take its picks is left out and noted, too: miniSEED, S-wave pairs,
/// SEG-2 files of several shots, and those whose traces are not all in the survey. \param notes
/// out: what was left out or replaced \param progress asked before every file is compared with what
/// is in its place, and again before it is written, with the step from 0, two for every file: false
/// stops, and the status says so \return failure, too, where no file could be written
Status writePickedCopies(const TomoDocument& document, const std::string& folder,
                         std::vector<Message>& notes,
                         const std::function<bool(std::size_t)>& progress = {});

}  // namespace talvesk
