#pragma once

#include "base/Message.h"
#include "io/HeadedPicks.h"
#include "io/TravelTimeData.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// A format of picks that is known by what the text of a file holds, whatever its suffix.
struct PickContent {
  const char* id;  ///< of TravelTimeData::format
  Message name;    ///< within a sentence: "the unified data format"
  bool (*looksLike)(std::string_view text);
  /// \param unit of times whose unit the text does not tell
  std::optional<Refusal> (*read)(std::string_view text, std::optional<TimeUnit> unit,
                                 TravelTimeData& data);
};

const std::vector<PickContent>& pickContents();

/// The format of a text; null when it looks like none. \param text of a file, see tableText()
const PickContent* pickContentOf(std::string_view text);

}  // namespace talvesk
