// The inner loops of the shortest-path search, compiled once per instruction set. Included by the
// SearchKernel_*.cpp files, each of which defines TALVESK_SEARCH, the name of its entry point.
#include "tomo/SearchField.h"
#include "tomo/SearchVectors.h"

#include <cstring>
#include <limits>

namespace talvesk {
namespace {

// Most edges improve nothing, and their square root is the dearest step. An edge of squared length
// q in a cell of slowness s cannot improve a node whose time is r later when q s^2 exceeds r^2 by
// more than rounding can explain; the second term keeps the test on the safe side where squares
// underflow.
constexpr double kMargin = 1.0 + 1e-12;
constexpr double kTiny = 1e-280;
constexpr double kNever = std::numeric_limits<double>::infinity();
// A number between 2^52 and 2^53 ends in its whole part, rounded: adding 2^52 to a time in buckets
// gives the bucket. There are fewer than 2^47: 2^31 nodes, edges of 2^16 buckets.
constexpr double kWholeNumbers = 4503599627370496.0;
constexpr std::uint64_t kWholePart = (std::uint64_t{1} << 52) - 1;

/// Division by a number that stays the same, as a multiplication (Lemire, Kaser and Kurz 2019,
/// Faster remainder by direct computation). Exact for all 32-bit numbers; the divisor is 2 or more.
struct Divisor {
  explicit Divisor(std::uint32_t divisor) : reciprocal(~std::uint64_t{0} / divisor + 1) {}
  std::uint32_t divide(std::uint32_t number) const {
    __extension__ using Wide128 = unsigned __int128;
    return static_cast<std::uint32_t>((Wide128{reciprocal} * number) >> 64);
  }
  const std::uint64_t reciprocal;
};

/// N is the number of nodes per side, 0 where it is only known at run time. The search works on
/// copies of the field's pointers: nothing that is written can then alias them.
template <int N>
class Search {
 public:
  explicit Search(SearchField& field)
      : n(N > 0 ? N : field.nV),
        steps(n - 1),
        inner(n - 2),
        words(N > 0 ? 1 : field.words()),
        rows(field.rows),
        cols(field.cols),
        stride(field.cols + 1),
        points(field.points()),
        lineNodes(field.lineNodes),
        byStride(stride),
        h(field.h),
        bucketsPerSecond(field.bucketsPerSecond),
        lineX(field.lineX),
        lineZ(field.lineZ),
        step(field.step),
        slowness(field.slowness),
        distance(field.distance),
        corners(field.distance + field.cornerId(0)),
        queued(field.queued),
        improved(field.improved),
        ring(field.ring) {}

  void run(std::uint32_t source) {
    distance[source] = 0.0;
    if (source >= 2 * points * inner) {
      wake(2 * points + (source - 2 * points * inner), 0.0);
    } else {
      mark(source / inner, source % inner, 1);
      wake(source / inner, 0.0);
    }
    for (std::uint64_t current = 0; !ring->empty(); ++current) {
      BucketRing::Bucket& bucket = ring->at(static_cast<std::uint32_t>(current));
      // The bucket may grow while it is worked through.
      for (std::uint32_t i = 0; i < bucket.size; ++i) {
        const std::uint32_t unit = bucket.waiting[i];
        if (queued[unit] != current) continue;  // it has moved to an earlier bucket
        queued[unit] = SearchField::kNotQueued;
        settle(unit, current);
      }
      ring->drop(bucket);
    }
  }

 private:
  static_assert(N < 0 || N - 2 <= static_cast<int>(SearchField::kWordNodes));
  static constexpr std::uint32_t kMost = N > 0 ? N - 2 : SearchField::kWordNodes;

  /// Nodes of one side, or a corner, that are settled together.
  struct Sources {
    std::uint32_t count = 0;
    double earliest = kNever;
    double x[kMost], z[kMost], time[kMost];

    TALVESK_INLINE void add(double atX, double atZ, double at) {
      x[count] = atX;
      z[count] = atZ;
      time[count++] = at;
      earliest = at < earliest ? at : earliest;
    }
  };

  TALVESK_INLINE std::uint64_t bucketOf(double time) const {
    const double v = time * bucketsPerSecond + kWholeNumbers;
    std::uint64_t bits;
    std::memcpy(&bits, &v, sizeof bits);
    return bits & kWholePart;
  }

  /// Sees to it that a unit is settled no later than in the bucket of a time.
  TALVESK_INLINE void wake(std::uint32_t unit, double time) {
    const std::uint64_t bucket = bucketOf(time);
    if (bucket >= queued[unit]) return;
    queued[unit] = bucket;
    ring->push(static_cast<std::uint32_t>(bucket), unit);
  }

  /// Notes the lanes, from node k of a side on, whose times have changed.
  TALVESK_INLINE void mark(std::uint32_t side, std::uint32_t k, std::uint32_t lanesChanged) {
    std::uint32_t* word = improved + side * words;
    if constexpr (N > 0) {
      *word |= lanesChanged << k;
    } else {
      const std::uint64_t bits = std::uint64_t{lanesChanged} << (k % SearchField::kWordNodes);
      word += k / SearchField::kWordNodes;
      *word |= static_cast<std::uint32_t>(bits);
      if (bits >> 32 != 0) word[1] |= static_cast<std::uint32_t>(bits >> 32);
    }
  }

  TALVESK_INLINE void settle(std::uint32_t unit, std::uint64_t current) {
    if (unit < points) {
      settleLevelSide(unit, current);
    } else if (unit < 2 * points) {
      settleUprightSide(unit, current);
    } else {
      settleCorner(unit - 2 * points);
    }
  }

  TALVESK_INLINE void settleLevelSide(std::uint32_t side, std::uint64_t current) {
    const std::uint32_t line = byStride.divide(side);
    const std::uint32_t column = side - line * stride;
    const double* xs = lineX + column * steps + 1;
    const double* zs = lineZ + line * lineNodes + column * steps + 1;
    settleSide(
        side, current, [&](std::uint32_t k) { return xs[k]; },
        [&](std::uint32_t k) { return zs[k]; },
        [&](const Sources& from) {
          if (line > 0) relaxFromLine(from, line - 1, column, line - 1);
          if (line < rows) relaxFromLine(from, line, column, line + 1);
        });
  }

  TALVESK_INLINE void settleUprightSide(std::uint32_t side, std::uint64_t current) {
    const std::uint32_t row = byStride.divide(side - points);
    const std::uint32_t v = side - points - row * stride;
    const double x = v * h;
    const double corner = lineZ[row * lineNodes + v * steps];
    settleSide(
        side, current, [&](std::uint32_t) { return x; },
        [&](std::uint32_t k) { return corner + step[k]; },
        [&](const Sources& from) {
          if (v > 0) relaxFromSide(from, row, v - 1, v - 1);
          if (v < cols) relaxFromSide(from, row, v, v + 1);
        });
  }

  /// Settles the nodes of a side whose times have changed and lie in the current bucket, and wakes
  /// the side again for those of later ones.
  template <typename X, typename Z, typename Relax>
  TALVESK_INLINE void settleSide(std::uint32_t side, std::uint64_t current, X xOf, Z zOf,
                                 Relax relax) {
    double next = kNever;
    for (std::uint32_t w = 0; w < words; ++w) {
      std::uint32_t& changed = improved[side * words + w];
      const std::uint32_t first = w * SearchField::kWordNodes;
      const double* times = distance + side * inner + first;
      Sources from;
      std::uint32_t later = 0;
      for (std::uint32_t bits = changed; bits != 0; bits &= bits - 1) {
        const auto k = static_cast<std::uint32_t>(__builtin_ctz(bits));
        if (bucketOf(times[k]) > current) {
          later |= std::uint32_t{1} << k;
          next = times[k] < next ? times[k] : next;
        } else {
          from.add(xOf(first + k), zOf(first + k), times[k]);
        }
      }
      changed = later;
      if (from.count > 0) relax(from);
    }
    if (next < kNever) wake(side, next);
  }

  /// A corner belongs to four cells; it is one node in several and need not be inlined as well.
  __attribute__((noinline)) void settleCorner(std::uint32_t point) {
    const std::uint32_t line = byStride.divide(point);
    const std::uint32_t v = point - line * stride;
    Sources from;
    from.add(lineX[v * steps], lineZ[line * lineNodes + v * steps], corners[point]);
    for (std::uint32_t c = v > 0 ? v - 1 : 0; c <= v && c < cols; ++c) {
      if (line > 0) relaxFromLine(from, line - 1, c, line - 1);
      if (line < rows) relaxFromLine(from, line, c, line + 1);
    }
  }

  TALVESK_INLINE void relaxFromLine(const Sources& from, std::uint32_t row, std::uint32_t column,
                                    std::uint32_t oppositeLine) {
    const double s = slowness[row * cols + column];
    relaxUprightSide(from, s, row, column);
    relaxUprightSide(from, s, row, column + 1);
    relaxLine(from, s, oppositeLine, column);
  }

  TALVESK_INLINE void relaxFromSide(const Sources& from, std::uint32_t row, std::uint32_t column,
                                    std::uint32_t oppositeSide) {
    const double s = slowness[row * cols + column];
    relaxLine(from, s, row, column);
    relaxUprightSide(from, s, row, oppositeSide);
    relaxLine(from, s, row + 1, column);
  }

  /// A level side and the corners at its ends.
  TALVESK_INLINE void relaxLine(const Sources& from, double s, std::uint32_t line,
                                std::uint32_t column) {
    const std::uint32_t point = line * stride + column;
    const double* xs = lineX + column * steps;
    const double* zs = lineZ + line * lineNodes + column * steps;
    relaxSide(
        from, s, point, [&](std::uint32_t k) { return Wide::load(xs + 1 + k); },
        [&](std::uint32_t k) { return Wide::load(zs + 1 + k); });
    for (std::uint32_t end = 0; end < 2; end += Pair::kLanes) {
      double* times = corners + point + end;
      Pair time{};
      const std::uint32_t better = relaxVector(
          from, s, times, [&] { return Pair::of(xs[end * steps], xs[steps]); },
          [&] { return Pair::of(zs[end * steps], zs[steps]); }, time);
      if ((better & 1) != 0) wake(2 * points + point + end, times[0]);
      if ((better & 2) != 0) wake(2 * points + point + 1, times[1]);
    }
  }

  TALVESK_INLINE void relaxUprightSide(const Sources& from, double s, std::uint32_t row,
                                       std::uint32_t v) {
    const Wide x = Wide::splat(v * h);
    const Wide corner = Wide::splat(lineZ[row * lineNodes + v * steps]);
    relaxSide(
        from, s, points + row * stride + v, [&](std::uint32_t) { return x; },
        [&](std::uint32_t k) { return corner + Wide::load(step + k); });
  }

  /// The last vector of a side overlaps the one before, which does no harm.
  template <typename X, typename Z>
  TALVESK_INLINE void relaxSide(const Sources& from, double s, std::uint32_t side, X xOf, Z zOf) {
    bool changed = false;
    Wide earliest = Wide::splat(kNever);
    for (std::uint32_t i = 0; i < inner; i += Wide::kLanes) {
      const std::uint32_t k = i + Wide::kLanes <= inner ? i : inner - Wide::kLanes;
      Wide time{};
      const std::uint32_t better = relaxVector(
          from, s, distance + side * inner + k, [&] { return xOf(k); }, [&] { return zOf(k); },
          time);
      if (better == 0) continue;
      mark(side, k, better);
      earliest = lesser(earliest, time);
      changed = true;
    }
    if (changed) wake(side, least(earliest));
  }

  /// Offers a vector of nodes the times from all sources. \param improved the new times, infinite
  /// in the lanes that keep theirs. \return the lanes that changed; with none, `improved` is as it
  /// was
  template <typename V, typename X, typename Z>
  TALVESK_INLINE std::uint32_t relaxVector(const Sources& from, double s, double* times, X xOf,
                                           Z zOf, V& improvedTimes) {
    const V before = V::load(times);
    if (lanes(less(V::splat(from.earliest), before)) == 0) return 0;
    const V x = xOf();
    const V z = zOf();
    if (!mayImprove(from, s, before, x, z)) return 0;
    V time = before;
    for (std::uint32_t i = 0; i < from.count; ++i) {
      const V length = squareRoot(squaredLength(from, i, x, z));
      time = lesser(V::splat(from.time[i]) + length * V::splat(s), time);
    }
    const V better = less(time, before);
    const std::uint32_t changed = lanes(better);
    if (changed == 0) return 0;
    time.store(times);
    improvedTimes = choose(better, time, V::splat(kNever));
    return changed;
  }

  template <typename V>
  static TALVESK_INLINE V squaredLength(const Sources& from, std::uint32_t i, V x, V z) {
    const V dx = x - V::splat(from.x[i]);
    const V dz = z - V::splat(from.z[i]);
    return dx * dx + dz * dz;
  }

  template <typename V>
  static TALVESK_INLINE bool mayImprove(const Sources& from, double s, V before, V x, V z) {
    const V square = V::splat(s * s);
    V hits = V::splat(0.0);
    for (std::uint32_t i = 0; i < from.count; ++i) {
      const V later = greater(before - V::splat(from.time[i]), V::splat(0.0));
      hits = either(hits, less(squaredLength(from, i, x, z) * square,
                               later * later * V::splat(kMargin) + V::splat(kTiny)));
    }
    return lanes(hits) != 0;
  }

  const std::uint32_t n, steps, inner, words;
  const std::uint32_t rows, cols, stride, points, lineNodes;
  const Divisor byStride;
  const double h, bucketsPerSecond;
  const double* const lineX;
  const double* const lineZ;
  const double* const step;
  const double* const slowness;
  double* const distance;
  double* const corners;
  std::uint64_t* const queued;
  std::uint32_t* const improved;
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
