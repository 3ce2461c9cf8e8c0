#pragma once

#include <QString>
#include <optional>

namespace talvesk {

/// A number as users type and paste it: by their locale or with a decimal point, never with
/// separated thousands, for those are the decimals of another locale. None for what is not finite.
std::optional<double> numberFrom(const QString& text);

/// As many digits as it has, without separated thousands, by the user's locale.
QString numberText(double value);

}  // namespace talvesk
