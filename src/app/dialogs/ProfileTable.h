#pragma once

#include "refraction/ShotArrivals.h"

#include <vector>

class QTableWidget;

namespace talvesk {

struct ProfileErrors;

/// The values of a layered profile: a row per receiver with depth and velocity of each refractor,
/// with their errors where these are known, and what carries the depth. Values that picks do not
/// carry stand in parentheses.
/// \param shots that the interpretation was built of
/// \param errors of the profile; null for none
void fillProfileTable(const std::vector<ShotArrivals>& shots,
                      const refractionDataStructure::Interpretation& interpretation,
                      const ProfileErrors* errors, QTableWidget& table);

}  // namespace talvesk
