#pragma once

#include <QString>
#include <optional>

namespace talvesk {

// Lengths and velocities as users read, type and paste them: in the unit of base/LengthUnit.h.
// What a parameter calls metres may be metres per second as well.

/// For fields and cells: as many digits as it has in metres, and in feet as many as were typed, or
/// three decimals where it was none. Without separated thousands, by the user's locale.
QString lengthText(double metres);

/// The inverse, in metres; typed feet are exact ("10" is 3.048). None for what is no number.
/// \param unedited what the field or cell holds: comes back to the bit where its text is the same
std::optional<double> lengthFrom(const QString& text,
                                 std::optional<double> unedited = std::nullopt);

/// What a user means who types a number of the unit shown, metres: the decimal number nearest to
/// it, to 15 digits.
/// \param unedited what the field or cell holds; comes back where it shows as that number
double metresTyped(double shown, std::optional<double> unedited = std::nullopt);

/// For reading: "12.50", by the user's locale.
QString lengthNumber(double metres, int decimals);
QString lengthDigits(double metres, int significant);            ///< "12.5"
QString lengthWithUnit(double metres, int decimals);             ///< "12.50 m"
QString velocityWithUnit(double metresPerSecond, int decimals);  ///< "1500 m/s"

}  // namespace talvesk
