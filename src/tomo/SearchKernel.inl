// The inner loops of the shortest-path search, compiled once per instruction set. Included by the
// SearchKernel_*.cpp files, each of which defines TALVESK_SEARCH, the name of its entry point.
#include <cmath>

#if !defined(TALVESK_SCALAR_SEARCH) && (defined(__AVX2__) || defined(__SSE2__))
#include <immintrin.h>
#endif

#include "tomo/SearchField.h"

namespace talvesk {
namespace {

// Most edges improve nothing, and their square root is the dearest step. An edge of squared length q
// in a cell of slowness s cannot improve a node whose time is r later when q s^2 exceeds r^2 by more
// than rounding can explain; the second term keeps the test on the safe side where squares underflow.
constexpr double kMargin = 1.0 + 1e-12;
constexpr double kTiny = 1e-280;

#if !defined(TALVESK_SCALAR_SEARCH) && defined(__AVX2__)
constexpr std::uint32_t kLanes = 4;
using Vector = __m256d;
inline Vector load(const double* p) { return _mm256_loadu_pd(p); }
inline void store(double* p, Vector v) { _mm256_store_pd(p, v); }
inline Vector splat(double v) { return _mm256_set1_pd(v); }
inline int lessMask(Vector a, Vector b) { return _mm256_movemask_pd(_mm256_cmp_pd(a, b, _CMP_LT_OQ)); }
inline Vector positivePart(Vector v) { return _mm256_max_pd(v, _mm256_setzero_pd()); }
#elif !defined(TALVESK_SCALAR_SEARCH) && defined(__SSE2__)
constexpr std::uint32_t kLanes = 2;
using Vector = __m128d;
inline Vector load(const double* p) { return _mm_loadu_pd(p); }
inline void store(double* p, Vector v) { _mm_store_pd(p, v); }
inline Vector splat(double v) { return _mm_set1_pd(v); }
inline int lessMask(Vector a, Vector b) { return _mm_movemask_pd(_mm_cmplt_pd(a, b)); }
inline Vector positivePart(Vector v) { return _mm_max_pd(v, _mm_setzero_pd()); }
#else
constexpr std::uint32_t kLanes = 1;
using Vector = double;
inline Vector load(const double* p) { return *p; }
inline void store(double* p, Vector v) { *p = v; }
inline Vector splat(double v) { return v; }
inline int lessMask(Vector a, Vector b) { return a < b ? 1 : 0; }
inline Vector positivePart(Vector v) { return v > 0.0 ? v : 0.0; }
#endif

// N is the number of nodes per side, 0 where it is only known at run time.
template <int N>
class Search {
 public:
  explicit Search(SearchField& field) : f(field) {}

  void run(std::uint32_t source) {
    f.distance[source] = 0.0;
    f.queued[source] = 0;
    f.ring->push(0, source);
    for (std::uint32_t current = 0; !f.ring->empty(); current = next(current)) {
      BucketRing::Bucket& bucket = f.ring->at(current);
      // The bucket may grow while it is worked through.
      for (std::uint32_t i = 0; i < bucket.size; ++i) {
        const std::uint32_t node = bucket.nodes[i];
        if (f.queued[node] != current) continue;  // it has moved to an earlier bucket
        f.queued[node] = SearchField::kNotQueued;
        settle(node);
      }
      f.ring->drop(bucket);
    }
  }

 private:
  std::uint32_t nodes() const { return N > 0 ? N : f.nV; }
  std::uint32_t steps() const { return nodes() - 1; }
  std::uint32_t levels() const { return nodes() - 2; }
  static std::uint32_t next(std::uint32_t bucket) { return (bucket + 1) & 0x7FFFFFFFU; }

  void settle(std::uint32_t node) {
    d = f.distance[node];
    if (node < f.sideBase) {
      settleLineNode(node);
    } else {
      settleSideNode(node - f.sideBase);
    }
  }

  void settleLineNode(std::uint32_t node) {
    const std::uint32_t line = node / f.lineNodes;
    const std::uint32_t i = node - line * f.lineNodes;
    const std::uint32_t column = i / steps();
    const bool corner = i == column * steps();
    x = f.lineX[i];
    z = f.lineZ[node];
    if (line > 0) {
      if (corner && column > 0) relaxFromLine(line - 1, column - 1, line - 1);
      if (column < f.cols) relaxFromLine(line - 1, column, line - 1);
    }
    if (line < f.rows) {
      if (corner && column > 0) relaxFromLine(line, column - 1, line + 1);
      if (column < f.cols) relaxFromLine(line, column, line + 1);
    }
  }

  void settleSideNode(std::uint32_t side) {
    const std::uint32_t vertical = side / levels();
    const std::uint32_t row = vertical / (f.cols + 1);
    const std::uint32_t v = vertical - row * (f.cols + 1);
    x = v * f.h;
    z = f.lineZ[row * f.lineNodes + v * steps()] + f.step[side - vertical * levels()];
    if (v > 0) relaxFromSide(row, v - 1, v - 1);
    if (v < f.cols) relaxFromSide(row, v, v + 1);
  }

  void relaxFromLine(std::uint32_t row, std::uint32_t column, std::uint32_t oppositeLine) {
    enter(row, column);
    relaxSide(row, column);
    relaxSide(row, column + 1);
    relaxLine(oppositeLine, column);
  }

  void relaxFromSide(std::uint32_t row, std::uint32_t column, std::uint32_t oppositeSide) {
    enter(row, column);
    relaxLine(row, column);
    relaxSide(row, oppositeSide);
    relaxLine(row + 1, column);
  }

  void enter(std::uint32_t row, std::uint32_t column) {
    s = f.slowness[row * f.cols + column];
    ss = s * s;
  }

  void relaxLine(std::uint32_t line, std::uint32_t column) {
    const std::uint32_t first = column * steps();
    const std::uint32_t id = line * f.lineNodes + first;
    const double* xs = f.lineX + first;
    const double* zs = f.lineZ + id;
    relaxRun(id, nodes(), [=](std::uint32_t k) { return load(xs + k) - splat(x); },
             [=](std::uint32_t k) { return load(zs + k) - splat(z); });
  }

  void relaxSide(std::uint32_t row, std::uint32_t v) {
    const std::uint32_t id = f.sideBase + (row * (f.cols + 1) + v) * levels();
    const Vector corner = splat(f.lineZ[row * f.lineNodes + v * steps()]);
    const Vector dx = splat(v * f.h - x);
    const double* step = f.step;
    relaxRun(id, levels(), [=](std::uint32_t) { return dx; },
             [=](std::uint32_t k) { return (corner + load(step + k)) - splat(z); });
  }

  // The last vector of a run overlaps the one before, which does no harm.
  template <typename Dx, typename Dz>
  void relaxRun(std::uint32_t id, std::uint32_t count, Dx dxOf, Dz dzOf) {
    std::uint32_t k = 0;
    for (; k + kLanes <= count; k += kLanes) relaxVector(id + k, dxOf(k), dzOf(k));
    if (k < count) {
      k = count - kLanes;
      relaxVector(id + k, dxOf(k), dzOf(k));
    }
  }

  void relaxVector(std::uint32_t id, Vector dx, Vector dz) {
    const Vector q = dx * dx + dz * dz;
    const Vector later = positivePart(load(f.distance + id) - splat(d));
    int hits = lessMask(q * splat(ss), later * later * splat(kMargin) + splat(kTiny));
    if (hits == 0) return;
    alignas(32) double lengths[kLanes];
    store(lengths, q);
    for (std::uint32_t lane = 0; hits != 0; ++lane, hits >>= 1) {
      if ((hits & 1) == 0) continue;
      const double time = d + std::sqrt(lengths[lane]) * s;
      if (time < f.distance[id + lane]) improve(id + lane, time);
    }
  }

  void improve(std::uint32_t id, double time) {
    f.distance[id] = time;
    const auto bucket =
        static_cast<std::uint32_t>(static_cast<std::int64_t>(time * f.bucketsPerSecond)) &
        0x7FFFFFFFU;
    if (f.queued[id] == bucket) return;
    f.queued[id] = bucket;
    f.ring->push(bucket, id);
  }

  SearchField& f;
  double x = 0.0, z = 0.0, d = 0.0;  // the node being settled
  double s = 0.0, ss = 0.0;          // slowness of the cell being relaxed, and its square
};

}  // namespace

void TALVESK_SEARCH(SearchField& field, std::uint32_t source) {
  switch (field.nV) {
    case 6: return Search<6>(field).run(source);
    case 8: return Search<8>(field).run(source);
    case 10: return Search<10>(field).run(source);
    default: return Search<0>(field).run(source);
  }
}

}  // namespace talvesk
