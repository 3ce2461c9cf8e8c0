#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/PaletteArchive.inl"
#include "io/XmlShape.h"
#include "io/project/ProjectMembers.h"

#include <exception>
#include <fstream>
#include <ostream>
#include <sstream>

namespace talvesk {
namespace {

/// Some hundred palettes of as many stops as there may be.
constexpr std::size_t kLargestMember = std::size_t{1} << 22;
constexpr std::size_t kMostLevels = 16;

int failWriting(const std::string& path) {
  console::logError("[ERROR] Error in opening " + path + ".");
  console::logError("[ERROR] Palettes cannot be stored on disk.");
  return 1;
}

int failReading(const Message& reason, Message& why) {
  why = joined(kPalettesMember, reason);
  console::logError("[ERROR] Palettes cannot be read from disk.");
  return 1;
}

}  // namespace

int writePalettes(const std::string& path, const ColorPaletteList& palettes) {
  std::ofstream stream(path, std::ios::binary);
  if (!stream.is_open()) return failWriting(path);
  stream.imbue(std::locale::classic());
  try {
    cereal::XMLOutputArchive archive(stream);
    save(archive, palettes);
  } catch (const std::exception&) {
    return failWriting(path);
  }  // the archive writes its text as it goes out of scope
  stream.close();
  return stream.good() ? 0 : failWriting(path);
}

int readPalettes(const std::string& path, ColorPaletteList& palettes, std::vector<Message>& repairs,
                 Message& why) {
  std::string text;
  if (const Status status = readWholeFile(path, text, kLargestMember); !status.ok()) {
    console::logError("[ERROR] Error in opening " + path + ".");
    return failReading(status.text(), why);
  }
  if (const Status shape = checkXmlShape(text, kPalettesMember, kMostLevels); !shape.ok()) {
    return failReading(shape.text(), why);
  }
  try {
    std::istringstream stream(text);
    cereal::XMLInputArchive archive(stream);
    load(archive, palettes, repairs);
    return 0;
  } catch (const XmlError& error) {
    return failReading(error.reason, why);
  } catch (const std::exception& error) {
    return failReading(error.what(), why);
  }
}

}  // namespace talvesk
