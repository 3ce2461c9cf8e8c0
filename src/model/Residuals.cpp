#include "model/Residuals.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace talvesk {
namespace {

/// FNV-1a, the hash of Fowler, Noll and Vo, 64 bits wide.
class Fingerprint {
 public:
  template <typename T>
  void take(T value) {
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    for (const unsigned char byte : bytes) {
      mHash ^= byte;
      mHash *= 1099511628211ULL;
    }
  }
  std::uint64_t value() const { return mHash == 0 ? 1 : mHash; }

 private:
  std::uint64_t mHash = 14695981039346656037ULL;
};

}  // namespace

std::vector<Residual> residualsOf(const TomoDocument& document) {
  std::vector<Residual> residuals;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const auto string = static_cast<std::size_t>(std::max(record.indexStesa, 0));
    const std::size_t count = std::min(record.ttMisurati.size(), record.ttCalcolati.size());
    for (std::size_t j = 0; j < count; ++j) {
      const double computed = record.ttCalcolati[j];
      if (!hasPick(record.ttMisurati[j]) || computed == kNoTime) continue;
      double offset = std::nan("");
      if (record.indexStesa >= 0 && string < document.goephonesStringSet.size() &&
          j < document.goephonesStringSet[string].size()) {
        offset = std::abs(document.goephonesStringSet[string][j].x - record.shotPos2d.x);
      }
      residuals.push_back({i, j, offset, record.ttMisurati[j], computed - record.ttMisurati[j]});
    }
  }
  return residuals;
}

SectionMisfit misfitOfTimes(const TomoDocument& document) {
  SectionMisfit misfit;
  double squares = 0.0;
  double relativeSquares = 0.0;
  double sum = 0.0;
  for (const Residual& each : residualsOf(document)) {
    ++misfit.count;
    const double relative = each.residual / each.measured;
    squares += each.residual * each.residual;
    relativeSquares += relative * relative;
    sum += each.residual;
    if (misfit.maxShot >= 0 && std::fabs(each.residual) <= misfit.maxAbs) continue;
    misfit.maxAbs = std::fabs(each.residual);
    misfit.maxShot = static_cast<std::int32_t>(each.record);
    misfit.maxReceiver = static_cast<std::int32_t>(each.receiver);
  }
  if (misfit.count == 0) return misfit;
  misfit.rmse = std::sqrt(squares / misfit.count);
  misfit.relativeRms = std::sqrt(relativeSquares / misfit.count);
  misfit.bias = sum / misfit.count;
  return misfit;
}

SectionMisfit sectionMisfitOf(const TomoDocument& document) {
  if (!document.has_tomographic_info || !document.timesOfSection) return {};
  return misfitOfTimes(document);
}

std::uint64_t fingerprintOfPicks(const std::vector<TravelTime>& records) {
  Fingerprint fingerprint;
  for (const TravelTime& record : records) {
    fingerprint.take(static_cast<std::uint64_t>(record.ttMisurati.size()));
    for (const double time : record.ttMisurati) fingerprint.take(hasPick(time) ? time : kNoTime);
  }
  return fingerprint.value();
}

bool picksChangedSince(const TomoDocument& document) {
  return document.lastInversion && document.lastInversion->picks != 0 &&
         document.lastInversion->picks != fingerprintOfPicks(document.ttArray);
}

}  // namespace talvesk
