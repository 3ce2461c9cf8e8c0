#pragma once

#include "export/campaign/CampaignLine.h"
#include "view/ColorPalette.h"

#include <QString>
#include <optional>
#include <vector>

// Pictures in the page of a campaign, as SVG within its HTML.

namespace talvesk::web {

/// A round range around the velocities of all lines; none without sections.
std::optional<ValueRange> velocitiesOf(const std::vector<CampaignLine>& lines);

/// \param what the picture is called by who cannot see it
QString smallSectionSvg(const SmallSection& section, const ColorTable& colors, const QString& what);

/// The colours with the velocities at their ends.
QString colorBarSvg(const ColorTable& colors, const QString& what);

/// The lines whose place is known, north up, each with its number from 1; empty without any.
QString campaignMapSvg(const std::vector<CampaignLine>& lines, const QString& what);

}  // namespace talvesk::web
