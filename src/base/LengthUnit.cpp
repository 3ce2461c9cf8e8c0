#include "base/LengthUnit.h"

#include <atomic>

namespace talvesk {
namespace {

std::atomic<LengthUnit> gUnit{LengthUnit::kMetre};

}  // namespace

LengthUnit lengthUnit() {
  return gUnit;
}

void setLengthUnit(LengthUnit unit) {
  gUnit = unit;
}

double shownLength(double metres) {
  return gUnit == LengthUnit::kFoot ? metres / kMetresPerFoot : metres;
}

double metresOf(double shown) {
  return gUnit == LengthUnit::kFoot ? shown * kMetresPerFoot : shown;
}

const char* lengthUnitName() {
  return gUnit == LengthUnit::kFoot ? "ft" : "m";
}

const char* velocityUnitName() {
  return gUnit == LengthUnit::kFoot ? "ft/s" : "m/s";
}

}  // namespace talvesk
