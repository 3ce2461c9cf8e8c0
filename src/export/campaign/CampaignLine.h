#pragma once

#include "model/ChiSquare.h"
#include "model/GeoTransformer.h"
#include "model/InversionRecord.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A section in few pixels, stretched to fill them, whatever its size. The top line comes first.
struct SmallSection {
  static constexpr std::size_t kColumns = 180;
  static constexpr std::size_t kRows = 56;

  std::vector<float> velocities;  ///< m/s; not a number where there is no cell; empty: no section
};

/// What the page of a campaign shows of a line. Texts are UTF-8.
struct CampaignLine {
  static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

  std::string name;     ///< by which its users know it
  std::string failure;  ///< why nothing below is known; empty: it is
  std::vector<std::string>
      files;  ///< names in the folder of the page; a *.html is that of the line
  std::vector<std::string> notes;  ///< what a reader should know of it

  std::string inverted;  ///< when, UTC, as "2024-05-17T09:30:00Z"; empty: not known
  std::size_t shots = 0;
  std::size_t geophones = 0;  ///< places of them
  std::size_t picks = 0;
  bool hasSection = false;    ///< found by an inversion
  bool picksChanged = false;  ///< since that
  bool smoothed = false;      ///< since that
  SectionMisfit misfit;       ///< of the section that is shown; count 0: not known
  ChiSquare fit;              ///< the same by the errors of the picks
  double length = kUnknown;   ///< of the ground that rays have crossed, along the line, metres
  double depth = kUnknown;    ///< of the deepest cell with a ray below the surface, metres
  double covered = kUnknown;  ///< share of the drawn cells that rays have crossed, 0 to 1
  SmallSection section;
  std::optional<std::array<LonLat, 2>> ends;  ///< where the line lies; none: not known
};

/// A line from the survey as it is. Its misfit is known where its rays are: see recomputeRays().
/// \param name, UTF-8
CampaignLine campaignLineOf(const TomoDocument& document, const std::string& name);

/// A line of which nothing is known.
CampaignLine failedLine(const std::string& name, const std::string& why);

}  // namespace talvesk
