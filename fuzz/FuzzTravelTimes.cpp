// Throws any bytes at the readers of travel-time files. What a reader accepts must be fit for use,
// and must come back from the formats that picks are written in as it was written. The first byte
// chooses the suffix, and what the user says of the file.
#include "Demand.h"
#include "base/Console.h"
#include "io/OtteFile.h"
#include "io/TravelTimeFile.h"
#include "io/UnifiedDataFile.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace talvesk;

void demandSane(const TravelTimeData& data) {
  for (const auto& string : data.strings) {
    for (const Point2D& geophone : string) demand(isFinite(geophone), "finite geophones");
  }
  for (const TravelTime& record : data.records) {
    const auto string = static_cast<std::size_t>(record.indexStesa);
    demand(record.indexStesa >= 0 && string < data.strings.size(), "a string for every record");
    demand(record.ttMisurati.size() <= data.strings[string].size(), "a geophone for every time");
    demand(record.ttCalcolati.size() == record.ttMisurati.size(), "computed times");
    demand(record.traceSetID >= 0, "a trace set");
    demand(isFinite(record.shotPos2d), "finite shots");
    for (const double time : record.ttMisurati) demand(std::isfinite(time), "finite times");
  }
  for (const TravelTime& record : data.records) {
    demand(record.pickErrors.size() <= record.ttMisurati.size(), "errors of times that there are");
    for (const PickError& error : record.pickErrors) {
      demand(error.sigma == 0.0 || isPickError(error.sigma), "errors that are unknown or can be");
    }
  }
}

/// Strings that no record names, and records shorter than their string, do not always come back.
bool tellsItsStrings(const TravelTimeData& data) {
  std::vector<std::size_t> longest(data.strings.size(), 0);
  for (const TravelTime& record : data.records) {
    auto& length = longest[static_cast<std::size_t>(record.indexStesa)];
    length = std::max(length, record.ttMisurati.size());
  }
  for (std::size_t i = 0; i < longest.size(); ++i) {
    if (longest[i] != data.strings[i].size()) return false;
  }
  return true;
}

void demandRoundTrip(TravelTimeData data) {
  const bool complete = tellsItsStrings(data);
  TomoDocument document;
  demand(importTravelTimes(std::move(data), document).ok(), "import");
  const std::string text = formatOtte(document);
  std::string version;
  TravelTimeData restored;
  const bool read = !readOtte(text, version, restored);
  if (!complete) return;
  demand(read, "what was written can be read");
  TomoDocument again;
  demand(importTravelTimes(std::move(restored), again).ok(), "second import");
  demand(formatOtte(again) == text, "the same text after reading");
}

/// What was read from the unified data format comes back from it. Other formats hold positions that
/// this one refuses, and shots and geophones without picks, which it does not tell.
void demandUnifiedRoundTrip(const TravelTimeData& data) {
  TravelTimeData once;
  if (readUnifiedData(formatUnifiedData(data), once)) return;
  const std::string text = formatUnifiedData(once);
  TravelTimeData twice;
  demand(!readUnifiedData(text, twice), "unified data that was written can be read");
  demand(formatUnifiedData(twice) == text, "the same unified data after reading");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  if (size == 0) return 0;
  static const char* const paths[] = {"a.otte", "a.txt", "a.xyz", "a.csv", "a.sgt", "a.tab"};
  const std::string_view text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  TravelTimeData data;
  TravelTimeReading reading;
  reading.byContent = (bytes[0] & 0x40) != 0;
  if ((bytes[0] & 0x20) != 0) reading.timeUnit = TimeUnit::kSeconds;
  const Status status = parseTravelTimes(text, paths[bytes[0] % 0x20 % 6], data, reading);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return 0;
  demandSane(data);
  demandUnifiedRoundTrip(data);
  demandRoundTrip(std::move(data));
  return 0;
}
