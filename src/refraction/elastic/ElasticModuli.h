#pragma once

#include "model/Parameters.h"

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace talvesk {

// What the velocities of P and S waves say of a ground that is elastic, even in all directions and
// strained as little as by a seismic wave:
//   Kramer, S. L. (1996): Geotechnical Earthquake Engineering. Prentice Hall, chapter 5.
//   Mavko, G., Mukerji, T., Dvorkin, J. (2009): The Rock Physics Handbook. Cambridge University
//   Press, section 2.1.

namespace parameters {
inline constexpr Parameter<double> kDensity = {
    "density", 2000.0, {100.0, 10000.0}, "kg/m3", "Density of a layer"};
}  // namespace parameters

/// A value and its standard deviation; not a number where they are not known.
struct Estimate {
  double value = std::numeric_limits<double>::quiet_NaN();
  double sigma = std::numeric_limits<double>::quiet_NaN();
};

enum class ElasticQuantity {
  kVp,          ///< m/s
  kVs,          ///< m/s
  kRatio,       ///< Vp / Vs
  kPoisson,     ///< Poisson's ratio
  kDensity,     ///< kg/m3
  kShear,       ///< shear modulus G0, Pa
  kYoung,       ///< Young's modulus E0, Pa
  kBulk,        ///< bulk modulus K, Pa
  kConstrained  ///< constrained (oedometric) modulus M, Pa
};

/// How files call a quantity, and what its values are multiplied by there: moduli are in MPa.
struct ElasticColumn {
  ElasticQuantity quantity;
  const char* key;  ///< with the unit
  double factor;
  int decimals;  ///< that a table on the screen shows
};

inline constexpr std::array<ElasticColumn, 9> kElasticColumns = {
    {{ElasticQuantity::kVp, "vp_m_s", 1.0, 0},
     {ElasticQuantity::kVs, "vs_m_s", 1.0, 0},
     {ElasticQuantity::kRatio, "vp_vs", 1.0, 2},
     {ElasticQuantity::kPoisson, "poisson", 1.0, 3},
     {ElasticQuantity::kDensity, "density_kg_m3", 1.0, 0},
     {ElasticQuantity::kShear, "g0_mpa", 1e-6, 1},
     {ElasticQuantity::kYoung, "e0_mpa", 1e-6, 1},
     {ElasticQuantity::kBulk, "k_mpa", 1e-6, 1},
     {ElasticQuantity::kConstrained, "m_mpa", 1e-6, 1}}};

/// Whether ground can have these two velocities.
enum class ElasticVerdict {
  kSound,            ///< as far as elasticity tells
  kUnknown,          ///< a velocity is not known, or not positive
  kNegativePoisson,  ///< Vp / Vs below the square root of 2, which no soil or rock has as a whole
  kSNotSlower        ///< S is not slower than P: Poisson's ratio, E0 and K mean nothing
};

/// "", "unknown", "negative_poisson" or "s_not_slower", as files have it.
const char* nameOf(ElasticVerdict verdict);

/// Velocities of a place and what follows of them.
struct ElasticState {
  std::array<Estimate, kElasticColumns.size()> values;
  ElasticVerdict verdict = ElasticVerdict::kUnknown;

  const Estimate& operator[](ElasticQuantity quantity) const {
    return values[static_cast<std::size_t>(quantity)];
  }
  Estimate& operator[](ElasticQuantity quantity) {
    return values[static_cast<std::size_t>(quantity)];
  }
};

/// Where densities come from: numbers per layer, or the velocity of P by
///   Gardner, G. H. F., Gardner, L. W., Gregory, A. R. (1974): Formation velocity and density: the
///   diagnostic basics for stratigraphic traps. Geophysics 39, 770-780:
/// density = 310 Vp^0.25 in kg/m3 and m/s, found for rocks of 1500 to 6100 m/s.
struct DensityRule {
  bool gardner = false;
  std::vector<double> layers = {parameters::kDensity.initial};  ///< the last counts for all below

  static constexpr double kSlowest = 1500.0;  ///< m/s, of the rocks that Gardner's rule is from

  /// kg/m3. \param layer from 0 \param vp m/s, positive
  double at(std::size_t layer, double vp) const;
  /// The power of Vp that density grows with.
  double growth() const { return gardner ? 0.25 : 0.0; }
};

/// Errors follow those of the velocities, which count as independent, to first order; that of a
/// density by itself is not known and not counted. Without both errors there are none.
/// \param layer from 0
ElasticState elasticState(const Estimate& vp, const Estimate& vs, const DensityRule& density,
                          std::size_t layer);

}  // namespace talvesk
