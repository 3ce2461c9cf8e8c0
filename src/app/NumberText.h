#pragma once

#include <QString>
#include <optional>

namespace talvesk {

/// A coordinate as users type and paste it: by their locale or with a decimal point, never with
/// separated thousands, for those are the decimals of another locale.
std::optional<double> coordinateFrom(const QString& text);

/// As many digits as it has, without separated thousands, by the user's locale.
QString coordinateText(double value);

}  // namespace talvesk
