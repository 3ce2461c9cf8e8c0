#pragma once

// Vectors of numbers as the search computes with them: Wide for the nodes of a side, Pair for two
// corners. Everything has internal linkage: each file that includes this is compiled for another
// processor, and the linker must not mix what it finds twice.

#include <cmath>
#include <cstdint>

#if !defined(TALVESK_SCALAR_SEARCH) && defined(__SSE2__)
#include <immintrin.h>
#define TALVESK_VECTOR_SEARCH
#endif

#define TALVESK_INLINE inline __attribute__((always_inline))

namespace talvesk {
namespace {

#ifdef TALVESK_VECTOR_SEARCH
struct Two {
  static constexpr std::uint32_t kLanes = 2;
  __m128d v;

  static TALVESK_INLINE Two load(const double* p) { return {_mm_loadu_pd(p)}; }
  static TALVESK_INLINE Two splat(double d) { return {_mm_set1_pd(d)}; }
  static TALVESK_INLINE Two of(double first, double second) { return {_mm_setr_pd(first, second)}; }
  TALVESK_INLINE void store(double* p) const { _mm_storeu_pd(p, v); }
};
TALVESK_INLINE Two operator+(Two a, Two b) {
  return {_mm_add_pd(a.v, b.v)};
}
TALVESK_INLINE Two operator-(Two a, Two b) {
  return {_mm_sub_pd(a.v, b.v)};
}
TALVESK_INLINE Two operator*(Two a, Two b) {
  return {_mm_mul_pd(a.v, b.v)};
}
TALVESK_INLINE Two squareRoot(Two a) {
  return {_mm_sqrt_pd(a.v)};
}
TALVESK_INLINE Two lesser(Two a, Two b) {
  return {_mm_min_pd(a.v, b.v)};
}
TALVESK_INLINE Two greater(Two a, Two b) {
  return {_mm_max_pd(a.v, b.v)};
}
/// Lanes of ones where a < b; what the two functions below take.
TALVESK_INLINE Two less(Two a, Two b) {
  return {_mm_cmplt_pd(a.v, b.v)};
}
TALVESK_INLINE std::uint32_t lanes(Two mask) {
  return static_cast<std::uint32_t>(_mm_movemask_pd(mask.v));
}
TALVESK_INLINE Two either(Two mask, Two other) {
  return {_mm_or_pd(mask.v, other.v)};
}
TALVESK_INLINE Two choose(Two mask, Two yes, Two no) {
  return {_mm_or_pd(_mm_and_pd(mask.v, yes.v), _mm_andnot_pd(mask.v, no.v))};
}
TALVESK_INLINE double least(Two a) {
  return _mm_cvtsd_f64(_mm_min_sd(a.v, _mm_unpackhi_pd(a.v, a.v)));
}
using Pair = Two;
#endif

#if defined(TALVESK_VECTOR_SEARCH) && defined(__AVX2__)
struct Four {
  static constexpr std::uint32_t kLanes = 4;
  __m256d v;

  static TALVESK_INLINE Four load(const double* p) { return {_mm256_loadu_pd(p)}; }
  static TALVESK_INLINE Four splat(double d) { return {_mm256_set1_pd(d)}; }
  TALVESK_INLINE void store(double* p) const { _mm256_storeu_pd(p, v); }
};
TALVESK_INLINE Four operator+(Four a, Four b) {
  return {_mm256_add_pd(a.v, b.v)};
}
TALVESK_INLINE Four operator-(Four a, Four b) {
  return {_mm256_sub_pd(a.v, b.v)};
}
TALVESK_INLINE Four operator*(Four a, Four b) {
  return {_mm256_mul_pd(a.v, b.v)};
}
TALVESK_INLINE Four squareRoot(Four a) {
  return {_mm256_sqrt_pd(a.v)};
}
TALVESK_INLINE Four lesser(Four a, Four b) {
  return {_mm256_min_pd(a.v, b.v)};
}
TALVESK_INLINE Four greater(Four a, Four b) {
  return {_mm256_max_pd(a.v, b.v)};
}
TALVESK_INLINE Four less(Four a, Four b) {
  return {_mm256_cmp_pd(a.v, b.v, _CMP_LT_OQ)};
}
TALVESK_INLINE std::uint32_t lanes(Four mask) {
  return static_cast<std::uint32_t>(_mm256_movemask_pd(mask.v));
}
TALVESK_INLINE Four either(Four mask, Four other) {
  return {_mm256_or_pd(mask.v, other.v)};
}
TALVESK_INLINE Four choose(Four mask, Four yes, Four no) {
  return {_mm256_blendv_pd(no.v, yes.v, mask.v)};
}
TALVESK_INLINE double least(Four a) {
  return least(Two{_mm_min_pd(_mm256_castpd256_pd128(a.v), _mm256_extractf128_pd(a.v, 1))});
}
using Wide = Four;
#elif defined(TALVESK_VECTOR_SEARCH)
using Wide = Two;
#else
/// One number at a time; a mask is 1 or 0.
struct One {
  static constexpr std::uint32_t kLanes = 1;
  double v;

  static One load(const double* p) { return {*p}; }
  static One splat(double d) { return {d}; }
  static One of(double first, double) { return {first}; }
  void store(double* p) const { *p = v; }
};
TALVESK_INLINE One operator+(One a, One b) {
  return {a.v + b.v};
}
TALVESK_INLINE One operator-(One a, One b) {
  return {a.v - b.v};
}
TALVESK_INLINE One operator*(One a, One b) {
  return {a.v * b.v};
}
TALVESK_INLINE One squareRoot(One a) {
  return {std::sqrt(a.v)};
}
TALVESK_INLINE One lesser(One a, One b) {
  return {a.v < b.v ? a.v : b.v};
}
TALVESK_INLINE One greater(One a, One b) {
  return {a.v > b.v ? a.v : b.v};
}
TALVESK_INLINE One less(One a, One b) {
  return {a.v < b.v ? 1.0 : 0.0};
}
TALVESK_INLINE std::uint32_t lanes(One mask) {
  return mask.v != 0.0 ? 1 : 0;
}
TALVESK_INLINE One either(One mask, One other) {
  return {mask.v != 0.0 ? mask.v : other.v};
}
TALVESK_INLINE One choose(One mask, One yes, One no) {
  return mask.v != 0.0 ? yes : no;
}
TALVESK_INLINE double least(One a) {
  return a.v;
}
using Wide = One;
using Pair = One;
#endif

}  // namespace
}  // namespace talvesk
