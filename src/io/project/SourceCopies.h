#pragma once

#include "base/Message.h"

#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What became of the shot files of a survey that was to be saved.
struct SourceCopies {
  std::vector<std::string> files;  ///< the copies, each once
  std::vector<Message> warnings;   ///< files that could not be copied, or share a name
};

/// Copies every shot file that has a name into a folder (ending in "/"), flat. Of files with one
/// bare name the last stays. A copy that fails is told on the console and left out.
SourceCopies copySources(const std::vector<const std::vector<std::string>*>& lists,
                         const std::string& folder);

/// Reads the shot files in the folder as a loader will, and says per trace set whether its samples
/// must be written beside them: they have no file, or the file gives other samples, be it that it
/// was overwritten since, that another shot of its name took its place, or that they were read by
/// the standard of its format, which no loader of these files goes by.
std::vector<bool> setsWithoutFile(const TomoDocument& document, const std::string& folder);

}  // namespace talvesk
