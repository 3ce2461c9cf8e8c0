#pragma once

#include "refraction/LayeredFit.h"

#include <QString>
#include <cstdint>
#include <vector>

class QTableWidget;

namespace talvesk {

/// The misfits of a layered profile: a row per shot with picks that have a computed time, then one
/// of all shots; a column per layer. Picks, mean and chi2 are in the tool tips.
void fillMisfitTable(const LayeredFit& fit, const std::vector<ShotArrivals>& shots,
                     QTableWidget& table);

/// "0.9 ms" of a shot, from 0, and a layer; empty where there is none.
QString misfitText(const LayeredFit& fit, std::uint32_t shot, std::uint32_t layer);

}  // namespace talvesk
