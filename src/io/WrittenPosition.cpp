#include "io/WrittenPosition.h"

#include "base/TextNumber.h"

namespace talvesk {
namespace {

bool isWritten(double kept, double read) {
  if (kept == read) return true;
  double written = 0.0;
  return parseDouble(formatDouble(kept), written) == NumberError::kNone && written == read;
}

}  // namespace

bool isWritten(const Point2D& kept, const Point2D& read) {
  return isWritten(kept.x, read.x) && isWritten(kept.z, read.z);
}

}  // namespace talvesk
