#include "io/project/ProjectCertainty.h"

#include "base/Fingerprint.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/fitted/CertaintyRun.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

constexpr double kNotReached = -1.0;

/// To a millimetre per second: velocities come back from a project but for their last bits.
std::uint64_t fingerprintOf(const Grid& grid) {
  Fingerprint print;
  for (const double velocity : grid.velocities()) {
    print.take(static_cast<std::uint64_t>(std::llround(velocity * 1000.0)));
  }
  return print.value();
}

template <typename Change>
void forEachDepth(Certainty& certainty, Change change) {
  for (IsovalueBand& band : certainty.bands) {
    for (auto* depths : {&band.depths.median, &band.depths.low, &band.depths.high}) {
      std::for_each(depths->begin(), depths->end(), change);
    }
  }
}

/// \param isValue whether a median can be so; low and high lie on either side of it
template <typename IsValue>
bool areQuantiles(const Quantiles& q, std::size_t size, IsValue isValue) {
  if (q.median.size() != size || q.low.size() != size || q.high.size() != size) return false;
  for (std::size_t i = 0; i < size; ++i) {
    if (!isValue(q.low[i]) || !isValue(q.median[i]) || !isValue(q.high[i])) return false;
  }
  return true;
}

bool canBe(const Certainty& certainty, const Grid& grid) {
  const auto positive = [](double v) { return std::isfinite(v) && v > 0.0; };
  const auto depth = [](double v) { return std::isfinite(v) && (v >= 0.0 || v == kNotReached); };
  const std::size_t cells = grid.cellCount();
  return certainty.members > 0 && certainty.leftOut >= 0 &&
         areQuantiles(certainty.velocities, cells, positive) && certainty.touched.size() == cells &&
         certainty.deviations.size() == cells &&
         std::all_of(certainty.deviations.begin(), certainty.deviations.end(),
                     [](double d) { return std::isfinite(d) && d >= 0.0; }) &&
         std::all_of(certainty.bands.begin(), certainty.bands.end(),
                     [&](const IsovalueBand& band) {
                       return positive(band.velocity) &&
                              areQuantiles(band.depths, grid.col(), depth);
                     }) &&
         std::all_of(certainty.models.begin(), certainty.models.end(),
                     [](const CertaintyModel& m) { return std::isfinite(m.chi2); });
}

}  // namespace

std::optional<CertaintyMember> certaintyOf(const TomoDocument& document) {
  if (!document.result->certainty || document.model->grid == nullptr) return std::nullopt;
  CertaintyMember member{fingerprintOf(*document.model->grid), *document.result->certainty};
  forEachDepth(member.certainty, [](double& depth) {
    if (std::isnan(depth)) depth = kNotReached;
  });
  return member;
}

Status installCertainty(CertaintyMember member, TomoDocument& document) {
  const Grid* grid = document.model->grid.get();
  if (grid == nullptr || member.section != fingerprintOf(*grid) ||
      !canBe(member.certainty, *grid)) {
    return Status::failure(
        Message::tr("it does not go with the section of the project, which another program may "
                    "have changed"));
  }
  forEachDepth(member.certainty, [](double& depth) {
    if (depth == kNotReached) depth = std::numeric_limits<double>::quiet_NaN();
  });
  document.result.edit().certainty = std::move(member.certainty);
  return {};
}

std::optional<EnsembleState> ensembleStateOf(const TomoDocument& document) {
  const std::optional<Certainty>& certainty = document.result->certainty;
  if (!certainty || certainty->state == nullptr) return std::nullopt;
  return *certainty->state;
}

Status installEnsembleState(EnsembleState state, TomoDocument& document) {
  const std::optional<Certainty>& certainty = document.result->certainty;
  if (!certainty || !isStateOf(state, document)) {
    return Status::failure(Message::tr("it does not go with the certainty of the project"));
  }
  // Read once to see whether it can be: what asks for it later would only begin anew.
  std::vector<double> isovalues;
  for (const IsovalueBand& band : certainty->bands) isovalues.push_back(band.velocity);
  EnsembleCounts counts(document.model->grid->geometry(), isovalues);
  if (!counts.restore(state, certainty->members) || counts.touched() != certainty->touched) {
    return Status::failure(Message::tr("what it counts cannot be"));
  }
  document.result.edit().certainty->state = std::make_shared<const EnsembleState>(std::move(state));
  return {};
}

}  // namespace talvesk
