#pragma once

#include <cstddef>
#include <cstdint>

namespace talvesk {

/// Numbers of the units (see SearchField) waiting to be settled, by time: bucket b holds those
/// whose time is in [b, b + 1) widths. Only a window of buckets can be occupied at once, so they
/// are kept in a ring. Plain arrays and no inlined library code: the search is compiled for several
/// processors, and the linker must not mix what it finds twice.
class BucketRing {
 public:
  BucketRing() = default;
  ~BucketRing();
  BucketRing(const BucketRing&) = delete;
  BucketRing& operator=(const BucketRing&) = delete;

  /// Empties the ring and makes it at least `count` buckets long. Throws std::bad_alloc.
  void reset(std::uint32_t count);

  void push(std::uint32_t bucket, std::uint32_t number) {
    Bucket& b = mBuckets[bucket & mMask];
    if (b.size == b.capacity) grow(b);
    b.waiting[b.size++] = number;
    ++mPending;
  }

  struct Bucket {
    std::uint32_t* waiting = nullptr;
    std::uint32_t size = 0;
    std::uint32_t capacity = 0;
  };
  Bucket& at(std::uint32_t bucket) { return mBuckets[bucket & mMask]; }
  bool empty() const { return mPending == 0; }
  void drop(Bucket& bucket) {
    mPending -= bucket.size;
    bucket.size = 0;
  }
  std::size_t bytes() const;

 private:
  static void grow(Bucket& bucket);

  Bucket* mBuckets = nullptr;
  std::uint32_t mMask = 0;
  std::uint32_t mCount = 0;
  std::size_t mPending = 0;
};

/// A grid and the state of one search over it, as flat arrays.
///
/// The corners of cells are the points of a lattice, (rows + 1) lines of (cols + 1). Each has three
/// units, which are settled at once: the level side that goes right from it and the upright side
/// that goes down from it, both without their corners, and the corner itself. Search ids number the
/// nodes of all level sides first, side by side, then those of all upright ones, then the corners.
/// Lattice points of the last line or column have sides all the same, which belong to no cell.
struct SearchField {
  static constexpr std::uint64_t kNotQueued = ~std::uint64_t{0};
  static constexpr std::uint32_t kWordNodes = 32;  ///< nodes of a side that one word tells of

  std::uint32_t rows, cols, nV;
  std::uint32_t lineNodes;  ///< nodes of one line
  double h;                 ///< cell side, metres
  const double* lineX;      ///< lineNodes
  const double* lineZ;      ///< (rows + 1) * lineNodes
  const double* step;       ///< nV - 2, depth of a side node below its upper corner
  const double* slowness;   ///< rows * cols
  double* distance;         ///< seconds, by search id
  std::uint64_t* queued;    ///< bucket that a unit waits in, or kNotQueued: level sides, upright
                            ///< sides, corners
  std::uint32_t* improved;  ///< words() per side: nodes that were reached sooner and did not settle
  double bucketsPerSecond;
  BucketRing* ring;

  std::uint32_t points() const { return (rows + 1) * (cols + 1); }
  std::uint32_t words() const { return (nV - 2 + kWordNodes - 1) / kWordNodes; }
  std::uint32_t point(std::uint32_t line, std::uint32_t column) const {
    return line * (cols + 1) + column;
  }
  // --- Search ids of a lattice point's corner and of the first inner nodes of its sides.
  std::uint32_t levelId(std::uint32_t point) const { return point * (nV - 2); }
  std::uint32_t uprightId(std::uint32_t point) const { return (points() + point) * (nV - 2); }
  std::uint32_t cornerId(std::uint32_t point) const { return 2 * points() * (nV - 2) + point; }
  std::size_t ids() const { return std::size_t{cornerId(0)} + points(); }
};

/// Settles every node that can be reached from `source` (a search id). Which one runs is decided by
/// what the processor can do; all compute the same. The vector kinds need sides of four inner
/// nodes: six nodes per side, the fewest that users choose.
void searchScalar(SearchField& field, std::uint32_t source);
void searchBaseline(SearchField& field, std::uint32_t source);
void searchAvx2(SearchField& field, std::uint32_t source);

}  // namespace talvesk
