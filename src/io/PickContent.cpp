#include "io/PickContent.h"

#include "io/CsvPickFile.h"
#include "io/UnifiedDataFile.h"

#include <algorithm>

namespace talvesk {
namespace {

/// The format tells its unit itself.
template <std::optional<Refusal> (*kRead)(std::string_view, TravelTimeData&)>
std::optional<Refusal> readAsIs(std::string_view text, std::optional<TimeUnit>,
                                TravelTimeData& data) {
  return kRead(text, data);
}

}  // namespace

const std::vector<PickContent>& pickContents() {
  static const std::vector<PickContent> kContents = {
      {"sgt", Message::tr("the unified data format"), looksLikeUnifiedData,
       readAsIs<readUnifiedData>},
      {"table", Message::tr("a table with a heading"), looksLikeHeadedPicks, readHeadedPicks},
      {"csv", Message::tr("a pick table of long lines"), looksLikeLongCsvPicks,
       readAsIs<readLongCsvPicks>}};
  return kContents;
}

const PickContent* pickContentOf(std::string_view text) {
  const std::vector<PickContent>& contents = pickContents();
  const auto found =
      std::find_if(contents.begin(), contents.end(),
                   [&](const PickContent& content) { return content.looksLike(text); });
  return found == contents.end() ? nullptr : &*found;
}

}  // namespace talvesk
