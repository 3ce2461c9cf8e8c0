#pragma once

#include "app/dialogs/LengthBox.h"
#include "model/Parameters.h"

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <type_traits>

namespace talvesk {

/// Gives a field range and first value of a parameter. Its label in the form names the unit.
template <typename Number>
void setUpField(QSpinBox& field, const Parameter<Number>& parameter) {
  field.setRange(static_cast<int>(parameter.limits.least), static_cast<int>(parameter.limits.most));
  field.setValue(static_cast<int>(parameter.initial));
}

/// The same, and the decimals. The least of some parameters shows as 0. A LengthBox gets all in
/// metres.
template <typename Field, std::enable_if_t<std::is_base_of_v<QDoubleSpinBox, Field>, bool> = true>
void setUpField(Field& field, const Parameter<double>& parameter) {
  field.setDecimals(parameter.limits.decimals);
  field.setRange(parameter.limits.least, parameter.limits.most);
  field.setValue(parameter.initial);
}

/// How far a field goes, as it is seen there: "0.01 m – 1000.00 m".
template <typename Field>
QString limitsOf(const Field& field) {
  const auto bound = [&field](auto value) { return field.textFromValue(value) + field.suffix(); };
  return QStringLiteral("%1 \u2013 %2").arg(bound(field.minimum()), bound(field.maximum()));
}

}  // namespace talvesk
