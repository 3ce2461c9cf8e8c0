#include "doctor/StationLine.h"

#include "base/TextNumber.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>

namespace talvesk::doctor {
namespace {

bool isDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool isWordy(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

bool countsUp(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  for (std::size_t i = 1; i < values.size(); ++i) {
    if (values[i] - values[i - 1] != 1.0) return false;
  }
  return true;
}

}  // namespace

std::optional<StationLine> lineThrough(const std::vector<double>& x, const std::vector<double>& y,
                                       double tolerance) {
  std::vector<double> slopes;
  for (std::size_t i = 0; i < x.size(); ++i) {
    for (std::size_t k = i + 1; k < x.size(); ++k) {
      // Points nearer together than they are sure of say nothing of a slope.
      if (std::fabs(x[k] - x[i]) > tolerance) slopes.push_back((y[k] - y[i]) / (x[k] - x[i]));
    }
  }
  StationLine line;
  line.slope = medianOf(slopes, 0.0);
  if (line.slope == 0.0) return std::nullopt;
  std::vector<double> starts;
  for (std::size_t i = 0; i < x.size(); ++i) starts.push_back(y[i] - line.slope * x[i]);
  line.at0 = medianOf(starts, 0.0);
  std::vector<double> off;
  std::set<double> places;
  std::set<double> stations;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double residual = std::fabs(y[i] - line.at(x[i]));
    line.fits.push_back(residual <= std::fabs(line.slope) * tolerance);
    if (!line.fits[i]) continue;
    off.push_back(residual);
    places.insert(y[i]);
    stations.insert(x[i]);
  }
  line.fitCount = off.size();
  if (places.size() < 3 || stations.size() < 3 || 3 * line.fitCount < 2 * x.size()) {
    return std::nullopt;
  }
  line.scatter = medianOf(off, 0.0);
  const double span = *stations.rbegin() - *stations.begin();
  line.slopeError = std::max(2.0 * line.scatter, std::fabs(line.slope) * tolerance / 3.0) / span;
  return line;
}

double roundest(double value, double uncertainty) {
  for (double power = 1e6; power > 1e-4; power /= 10.0) {
    for (const double digit : {5.0, 2.5, 2.0, 1.0}) {
      const double step = power * digit;
      const double rounded = std::round(value / step) * step;
      if (rounded != 0.0 && std::fabs(rounded - value) <= uncertainty) return rounded;
      if (rounded == 0.0 && std::fabs(value) <= std::min(uncertainty, 0.5 * step)) return 0.0;
    }
  }
  return value;
}

std::vector<NameNumber> numbersIn(const std::string& name) {
  std::vector<NameNumber> numbers;
  std::size_t i = 0;
  while (i < name.size()) {
    if (!isDigit(name[i])) {
      ++i;
      continue;
    }
    std::size_t begin = i;
    if (begin > 0 && name[begin - 1] == '-' && (begin == 1 || !isWordy(name[begin - 2]))) --begin;
    while (i < name.size() && isDigit(name[i])) ++i;
    if (i + 1 < name.size() && (name[i] == '.' || name[i] == ',') && isDigit(name[i + 1])) {
      ++i;
      while (i < name.size() && isDigit(name[i])) ++i;
    }
    std::string digits = name.substr(begin, i - begin);
    std::replace(digits.begin(), digits.end(), ',', '.');
    NameNumber number;
    if (parseDouble(digits, number.value) != NumberError::kNone) continue;
    number.metres = i < name.size() && (name[i] == 'm' || name[i] == 'M') &&
                    (i + 1 == name.size() || !isWordy(name[i + 1]));
    numbers.push_back(number);
  }
  return numbers;
}

std::vector<std::vector<double>> positionsByName(const std::vector<std::string>& names) {
  std::vector<std::vector<NameNumber>> numbers;
  std::size_t count = 64;
  for (const std::string& name : names) {
    numbers.push_back(numbersIn(name));
    count = std::min(count, numbers.back().size());
  }
  std::vector<std::vector<double>> positions;
  for (std::size_t place = 0; place < count; ++place) {
    std::vector<double> values;
    bool metres = true;
    for (const std::vector<NameNumber>& ofName : numbers) {
      values.push_back(ofName[place].value);
      metres = metres && ofName[place].metres;
    }
    if (metres || !countsUp(values)) positions.push_back(std::move(values));
  }
  return positions;
}

}  // namespace talvesk::doctor
