// Throws any bytes at the readers of travel-time files. What a reader accepts must be fit for use,
// and must come back from the exchange format as it was written.
#include "Demand.h"
#include "base/Console.h"
#include "io/OtteFile.h"
#include "io/TravelTimeFile.h"
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  if (size == 0) return 0;
  static const char* const paths[] = {"a.otte", "a.txt", "a.xyz", "a.csv"};
  const std::string_view text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  TravelTimeData data;
  const Status status = parseTravelTimes(text, paths[bytes[0] % 4], data);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return 0;
  demandSane(data);
  demandRoundTrip(std::move(data));
  return 0;
}
