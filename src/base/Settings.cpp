#include "base/Settings.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "base/SampleStore.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <sstream>

#include <cereal/archives/xml.hpp>
#include <cereal/types/string.hpp>

namespace talvesk {
namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 16;
// Every nested element costs the XML parser stack, so a file is asked for its number of tags first.
// Ours has under twenty.
constexpr std::ptrdiff_t kMostTags = 1000;

/// One value by its name. False, and the value as it was, when the file has no such value.
bool read(cereal::XMLInputArchive& archive, const char* key, std::string& value) {
  std::string text;
  try {
    archive(cereal::make_nvp(key, text));
  } catch (const cereal::Exception&) {
    return false;
  }
  value = std::move(text);
  return true;
}

/// The archive itself would take any word for false.
bool read(cereal::XMLInputArchive& archive, const char* key, bool& value) {
  std::string text;
  if (!read(archive, key, text)) return false;
  const bool isTrue = text == "true" || text == "1";
  if (!isTrue && text != "false" && text != "0") return false;
  value = isTrue;
  return true;
}

/// A number of our own within its bounds: files of other programs lack it, which is nothing to
/// tell.
void readOwn(cereal::XMLInputArchive& archive, const char* key, int least, int most, int& value) {
  std::string text;
  if (!read(archive, key, text)) return;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc{} && end == text.data() + text.size() && number >= least &&
      number <= most) {
    value = number;
  }
}

/// A value that came with a later version: false unless the file says otherwise.
void readLater(cereal::XMLInputArchive& archive, const char* key, bool& value,
               const char* version) {
  value = false;
  if (read(archive, key, value)) return;
  console::out() << "First time running version " << version << ". Some setting where not in. "
                 << std::endl
                 << "Unknown settings set to default." << std::endl;
}

void readStages(cereal::XMLInputArchive& archive, Settings& settings) {
  bool complete = read(archive, "language", settings.language);
  complete &= read(archive, "zoomIn", settings.zoomIn);
  complete &= read(archive, "cutHorizontal", settings.cutHorizontal);
  complete &= read(archive, "fillWiggle", settings.fillWiggle);
  complete &= read(archive, "showFiltered", settings.showFiltered);
  complete &= read(archive, "showAllTraces", settings.showAllTraces);
  if (!complete) {
    console::error() << "First time running version 2019.1. Some setting where not in." << std::endl
                     << "Unknown settings set to default." << std::endl;
  }
  // Read a second time on purpose: a file of version 2019.1 may hold it or not, and one that lacks
  // it is told about version 2020.0 too.
  readLater(archive, "showAllTraces", settings.showAllTraces, "2020.0");
  readLater(archive, "savePngHColorbar", settings.savePngHColorbar, "2020.0");
  readLater(archive, "twoColors", settings.twoColors, "2020.2");
  readOwn(archive, "undoMegabytes", Settings::kLeastUndo, Settings::kMostUndo,
          settings.undoMegabytes);
  readOwn(archive, "samplesOnDisk", static_cast<int>(SamplesOnDisk::kWhenLarge),
          static_cast<int>(SamplesOnDisk::kNever), settings.samplesOnDisk);
  read(archive, "errorBars", settings.errorBars);  // an own one as well
  read(archive, "showComputedTimes", settings.showComputedTimes);
  read(archive, "showNeighbour", settings.showNeighbour);
  read(archive, "showReciprocalTimes", settings.showReciprocalTimes);
  read(archive, "feet", settings.feet);
}

}  // namespace

bool Settings::load() {
  std::string bytes;
  if (!readWholeFile(mPath, bytes, kMostBytes).ok()) return false;
  if (std::count(bytes.begin(), bytes.end(), '<') > kMostTags) return false;
  try {
    std::istringstream stream(bytes);
    cereal::XMLInputArchive archive(stream);
    Settings found(mPath);
    readStages(archive, found);
    *this = std::move(found);
  } catch (const std::exception&) {
    return false;
  }
  return true;
}

Status Settings::save() const {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  try {
    cereal::XMLOutputArchive archive(stream);
    archive(CEREAL_NVP(language), CEREAL_NVP(zoomIn), CEREAL_NVP(cutHorizontal),
            CEREAL_NVP(fillWiggle), CEREAL_NVP(showFiltered), CEREAL_NVP(showAllTraces),
            CEREAL_NVP(savePngHColorbar), CEREAL_NVP(twoColors), CEREAL_NVP(undoMegabytes),
            CEREAL_NVP(errorBars), CEREAL_NVP(showComputedTimes), CEREAL_NVP(showNeighbour),
            CEREAL_NVP(showReciprocalTimes), CEREAL_NVP(samplesOnDisk), CEREAL_NVP(feet));
  } catch (const std::exception& error) {  // the archive writes its text as it goes out of scope
    return Status::failure(Message::tr("Cannot write %1: %2").arg(mPath).arg(error.what()));
  }
  return writeFileAtomically(mPath, stream.str());
}

}  // namespace talvesk
