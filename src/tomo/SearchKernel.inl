// The inner loops of the shortest-path search, compiled once per instruction set. Included by the
// SearchKernel_*.cpp files, each of which defines TALVESK_SEARCH, the name of its entry point.
#include <cmath>
#include <cstring>

#if !defined(TALVESK_SCALAR_SEARCH) && (defined(__AVX2__) || defined(__SSE2__))
#include <immintrin.h>
#endif

#include "tomo/SearchField.h"

namespace talvesk {
namespace {

// Most edges improve nothing, and their square root is the dearest step. An edge of squared length
// q in a cell of slowness s cannot improve a node whose time is r later when q s^2 exceeds r^2 by
// more than rounding can explain; the second term keeps the test on the safe side where squares
// underflow.
constexpr double kMargin = 1.0 + 1e-12;
constexpr double kTiny = 1e-280;
// A number between 2^52 and 2^53 ends in its whole part, rounded: adding 2^52 to a time in buckets
// gives the bucket.
constexpr double kWholeNumbers = 4503599627370496.0;
constexpr std::uint32_t kBucketMask = 0x7FFFFFFFU;

inline std::uint32_t bucketNumber(double v) {
  std::uint64_t bits;
  std::memcpy(&bits, &v, sizeof bits);
  return static_cast<std::uint32_t>(bits) & kBucketMask;
}

#if !defined(TALVESK_SCALAR_SEARCH) && defined(__AVX2__)
constexpr std::uint32_t kLanes = 4;
using Vector = __m256d;
inline Vector load(const double* p) {
  return _mm256_loadu_pd(p);
}
inline void store(double* p, Vector v) {
  _mm256_storeu_pd(p, v);
}
inline Vector splat(double v) {
  return _mm256_set1_pd(v);
}
inline int lessMask(Vector a, Vector b) {
  return _mm256_movemask_pd(_mm256_cmp_pd(a, b, _CMP_LT_OQ));
}
inline Vector positivePart(Vector v) {
  return _mm256_max_pd(v, _mm256_setzero_pd());
}
inline Vector squareRoot(Vector v) {
  return _mm256_sqrt_pd(v);
}
inline Vector least(Vector a, Vector b) {
  return _mm256_min_pd(a, b);
}
inline int otherBuckets(Vector v, const std::uint32_t* queued) {
  const __m256i low = _mm256_permutevar8x32_epi32(_mm256_castpd_si256(v),
                                                  _mm256_setr_epi32(0, 2, 4, 6, 0, 2, 4, 6));
  const __m128i buckets =
      _mm_and_si128(_mm256_castsi256_si128(low), _mm_set1_epi32(static_cast<int>(kBucketMask)));
  const __m128i same =
      _mm_cmpeq_epi32(buckets, _mm_loadu_si128(reinterpret_cast<const __m128i*>(queued)));
  return ~_mm_movemask_ps(_mm_castsi128_ps(same));
}
#elif !defined(TALVESK_SCALAR_SEARCH) && defined(__SSE2__)
constexpr std::uint32_t kLanes = 2;
using Vector = __m128d;
inline Vector load(const double* p) {
  return _mm_loadu_pd(p);
}
inline void store(double* p, Vector v) {
  _mm_storeu_pd(p, v);
}
inline Vector splat(double v) {
  return _mm_set1_pd(v);
}
inline int lessMask(Vector a, Vector b) {
  return _mm_movemask_pd(_mm_cmplt_pd(a, b));
}
inline Vector positivePart(Vector v) {
  return _mm_max_pd(v, _mm_setzero_pd());
}
inline Vector squareRoot(Vector v) {
  return _mm_sqrt_pd(v);
}
inline Vector least(Vector a, Vector b) {
  return _mm_min_pd(a, b);
}
inline int otherBuckets(Vector v, const std::uint32_t* queued) {
  const __m128i low = _mm_shuffle_epi32(_mm_castpd_si128(v), _MM_SHUFFLE(2, 0, 2, 0));
  const __m128i buckets = _mm_and_si128(low, _mm_set1_epi32(static_cast<int>(kBucketMask)));
  const __m128i same =
      _mm_cmpeq_epi32(buckets, _mm_loadl_epi64(reinterpret_cast<const __m128i*>(queued)));
  return ~_mm_movemask_ps(_mm_castsi128_ps(same));
}
#else
constexpr std::uint32_t kLanes = 1;
using Vector = double;
inline Vector load(const double* p) {
  return *p;
}
inline void store(double* p, Vector v) {
  *p = v;
}
inline Vector splat(double v) {
  return v;
}
inline int lessMask(Vector a, Vector b) {
  return a < b ? 1 : 0;
}
inline Vector positivePart(Vector v) {
  return v > 0.0 ? v : 0.0;
}
inline Vector squareRoot(Vector v) {
  return std::sqrt(v);
}
inline Vector least(Vector a, Vector b) {
  return a < b ? a : b;
}
inline int otherBuckets(Vector v, const std::uint32_t* queued) {
  return bucketNumber(v) != *queued ? 1 : 0;
}
#endif

#define TALVESK_INLINE inline __attribute__((always_inline))

// Division by a number that stays the same, as a multiplication (Lemire, Kaser and Kurz 2019,
// Faster remainder by direct computation). Exact for all 32-bit numbers; the divisor is 2 or more.
struct Divisor {
  explicit Divisor(std::uint32_t divisor) : reciprocal(~std::uint64_t{0} / divisor + 1) {}
  std::uint32_t divide(std::uint32_t number) const {
    __extension__ using Wide = unsigned __int128;
    return static_cast<std::uint32_t>((Wide{reciprocal} * number) >> 64);
  }
  const std::uint64_t reciprocal;
};

// The node that is being settled, ready for vector arithmetic.
struct Origin {
  Vector x, z, d;
  double time;
};

// N is the number of nodes per side, 0 where it is only known at run time. The search works on
// copies of the field's pointers: nothing that is written can then alias them.
template <int N>
class Search {
 public:
  explicit Search(SearchField& field)
      : n(N > 0 ? N : field.nV),
        steps(n - 1),
        levels(n - 2),
        rows(field.rows),
        cols(field.cols),
        lineNodes(field.lineNodes),
        sideBase(field.sideBase),
        byLineNodes(field.lineNodes),
        byVerticals(field.cols + 1),
        h(field.h),
        bucketsPerSecond(field.bucketsPerSecond),
        lineX(field.lineX),
        lineZ(field.lineZ),
        step(field.step),
        slowness(field.slowness),
        distance(field.distance),
        queued(field.queued),
        ring(field.ring) {}

  void run(std::uint32_t source) {
    distance[source] = 0.0;
    queued[source] = 0;
    ring->push(0, source);
    for (std::uint32_t current = 0; !ring->empty(); current = (current + 1) & kBucketMask) {
      BucketRing::Bucket& bucket = ring->at(current);
      // The bucket may grow while it is worked through.
      for (std::uint32_t i = 0; i < bucket.size; ++i) {
        const std::uint32_t node = bucket.nodes[i];
        if (queued[node] != current) continue;  // it has moved to an earlier bucket
        queued[node] = SearchField::kNotQueued;
        if (node < sideBase) {
          settleLineNode(node);
        } else {
          settleSideNode(node);
        }
      }
      ring->drop(bucket);
    }
  }

 private:
  TALVESK_INLINE Origin origin(std::uint32_t node, double x, double z) const {
    const double d = distance[node];
    return {splat(x), splat(z), splat(d), d};
  }

  TALVESK_INLINE void settleLineNode(std::uint32_t node) {
    const std::uint32_t line = byLineNodes.divide(node);
    const std::uint32_t i = node - line * lineNodes;
    const std::uint32_t column = i / steps;
    const Origin from = origin(node, lineX[i], lineZ[node]);
    if (i != column * steps) {
      if (line > 0) relaxFromLine(from, line - 1, column, line - 1);
      if (line < rows) relaxFromLine(from, line, column, line + 1);
      return;
    }
    settleCorner(from, line, column);
  }

  // A corner is one node in several; it need not be inlined as well.
  __attribute__((noinline)) void settleCorner(const Origin& from, std::uint32_t line,
                                              std::uint32_t column) {
    const std::uint32_t first = column > 0 ? column - 1 : 0;
    for (std::uint32_t c = first; c <= column && c < cols; ++c) {
      if (line > 0) relaxFromLine(from, line - 1, c, line - 1);
      if (line < rows) relaxFromLine(from, line, c, line + 1);
    }
  }

  TALVESK_INLINE void settleSideNode(std::uint32_t node) {
    const std::uint32_t side = node - sideBase;
    const std::uint32_t vertical = side / levels;
    const std::uint32_t row = byVerticals.divide(vertical);
    const std::uint32_t v = vertical - row * (cols + 1);
    const double z = lineZ[row * lineNodes + v * steps] + step[side - vertical * levels];
    const Origin from = origin(node, v * h, z);
    if (v > 0) relaxFromSide(from, row, v - 1, v - 1);
    if (v < cols) relaxFromSide(from, row, v, v + 1);
  }

  TALVESK_INLINE void relaxFromLine(const Origin& from, std::uint32_t row, std::uint32_t column,
                                    std::uint32_t oppositeLine) {
    const double s = slowness[row * cols + column];
    relaxSide(from, s, row, column);
    relaxSide(from, s, row, column + 1);
    relaxLine(from, s, oppositeLine, column);
  }

  TALVESK_INLINE void relaxFromSide(const Origin& from, std::uint32_t row, std::uint32_t column,
                                    std::uint32_t oppositeSide) {
    const double s = slowness[row * cols + column];
    relaxLine(from, s, row, column);
    relaxSide(from, s, row, oppositeSide);
    relaxLine(from, s, row + 1, column);
  }

  TALVESK_INLINE void relaxLine(const Origin& from, double s, std::uint32_t line,
                                std::uint32_t column) {
    const std::uint32_t first = column * steps;
    const std::uint32_t id = line * lineNodes + first;
    const double* xs = lineX + first;
    const double* zs = lineZ + id;
    relaxRun(
        from, s, id, n, [&](std::uint32_t k) { return load(xs + k) - from.x; },
        [&](std::uint32_t k) { return load(zs + k) - from.z; });
  }

  TALVESK_INLINE void relaxSide(const Origin& from, double s, std::uint32_t row, std::uint32_t v) {
    const std::uint32_t id = sideBase + (row * (cols + 1) + v) * levels;
    const Vector corner = splat(lineZ[row * lineNodes + v * steps]);
    const Vector dx = splat(v * h) - from.x;
    relaxRun(
        from, s, id, levels, [&](std::uint32_t) { return dx; },
        [&](std::uint32_t k) { return (corner + load(step + k)) - from.z; });
  }

  // The last vector of a run overlaps the one before, which does no harm.
  template <typename Dx, typename Dz>
  TALVESK_INLINE void relaxRun(const Origin& from, double s, std::uint32_t id, std::uint32_t count,
                               Dx dxOf, Dz dzOf) {
    std::uint32_t k = 0;
    for (; k + kLanes <= count; k += kLanes) relaxVector(from, s, id + k, dxOf(k), dzOf(k));
    if (k < count) {
      k = count - kLanes;
      relaxVector(from, s, id + k, dxOf(k), dzOf(k));
    }
  }

  TALVESK_INLINE void relaxVector(const Origin& from, double s, std::uint32_t id, Vector dx,
                                  Vector dz) {
    const Vector q = dx * dx + dz * dz;
    const Vector later = positivePart(load(distance + id) - from.d);
    const int hits = lessMask(q * splat(s * s), later * later * splat(kMargin) + splat(kTiny));
    if (hits != 0) improveLanes(from.d, splat(s), id, q);
  }

  TALVESK_INLINE void improveLanes(Vector d, Vector s, std::uint32_t id, Vector q) {
    const Vector time = d + squareRoot(q) * s;
    const Vector before = load(distance + id);
    int better = lessMask(time, before);
    if (better == 0) return;
    store(distance + id, least(time, before));
    better &= otherBuckets(time * splat(bucketsPerSecond) + splat(kWholeNumbers), queued + id);
    for (; better != 0; better &= better - 1) {
      const auto node = id + static_cast<std::uint32_t>(__builtin_ctz(better));
      const std::uint32_t bucket = bucketNumber(distance[node] * bucketsPerSecond + kWholeNumbers);
      queued[node] = bucket;
      ring->push(bucket, node);
    }
  }

  const std::uint32_t n, steps, levels;
  const std::uint32_t rows, cols, lineNodes, sideBase;
  const Divisor byLineNodes, byVerticals;
  const double h, bucketsPerSecond;
  const double* const lineX;
  const double* const lineZ;
  const double* const step;
  const double* const slowness;
  double* const distance;
  std::uint32_t* const queued;
  BucketRing* const ring;
};

}  // namespace

void TALVESK_SEARCH(SearchField& field, std::uint32_t source) {
  switch (field.nV) {
    case 6:
      return Search<6>(field).run(source);
    case 8:
      return Search<8>(field).run(source);
    case 10:
      return Search<10>(field).run(source);
    default:
      return Search<0>(field).run(source);
  }
}

}  // namespace talvesk
