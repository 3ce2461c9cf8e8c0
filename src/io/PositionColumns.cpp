#include "io/PositionColumns.h"

#include "io/PickReader.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace talvesk {
namespace {

std::string_view fieldAt(const std::vector<std::string_view>& fields, std::size_t column) {
  return column < fields.size() ? fields[column] : std::string_view{};
}

}  // namespace

columnNames::Names columnNames::words(const Names& names) {
  Names result;
  std::copy_if(names.begin(), names.end(), std::back_inserter(result),
               [](std::string_view name) { return name.size() > 1; });
  return result;
}

NumberError readMetres(const HeadedTable& table, std::size_t column,
                       const std::vector<std::string_view>& fields, double& metres) {
  double number = 0.0;
  const NumberError error = table.number(fieldAt(fields, column), number);
  if (error != NumberError::kNone) return error;
  const double units = unitsPerMetre(table.columns()[column].unit);
  if (units > 0.0) number /= units;
  if (!(std::fabs(number) <= kFarthestPosition)) return NumberError::kOutOfRange;
  metres = number;
  return NumberError::kNone;
}

Message complaintAbout(const HeadedTable& table, std::size_t column,
                       const std::vector<std::string_view>& fields, NumberError error) {
  const std::string_view told = table.columns()[column].told;
  Message where = told.empty() ? Message::tr("column %1").arg(column + 1)
                               : Message::tr("column %1").arg(quoted(told));
  Message complaint = error == NumberError::kNotANumber
                          ? Message::tr("in %1 stands %2, which is not a number")
                          : Message::tr("in %1 stands %2, which is out of range");
  return std::move(complaint).arg(std::move(where)).arg(quoted(fieldAt(fields, column)));
}

}  // namespace talvesk
