#pragma once

namespace talvesk {

/// The unit that lengths and velocities are shown and asked for in. Inside, in every file, in the
/// log and on the console they are in metres and metres per second, whatever the unit is; only
/// windows, pictures and reports follow it, through these functions. The foot is the international
/// one: 0.3048 m exactly.
enum class LengthUnit { kMetre, kFoot };

constexpr double kMetresPerFoot = 0.3048;

/// The one unit of this process. Only the thread of the user interface changes it; what draws on
/// other threads asks for it before these start.
LengthUnit lengthUnit();
void setLengthUnit(LengthUnit unit);

/// \param metres or metres per second; the same in the unit shown, to the bit where that is the
/// metre
double shownLength(double metres);

/// The inverse: \param shown in the unit shown; metres, or metres per second.
double metresOf(double shown);

const char* lengthUnitName();    ///< "m" or "ft", the same in every language
const char* velocityUnitName();  ///< "m/s" or "ft/s"

}  // namespace talvesk
