#pragma once

#include <cstddef>
#include <cstdint>

namespace talvesk {

/// Numbers of the nodes waiting to be settled, by time: bucket b holds those whose time is in
/// [b, b + 1) widths. Only a window of buckets can be occupied at once, so they are kept in a ring.
/// Plain arrays and no inlined library code: the search is compiled for several processors, and the
/// linker must not mix what it finds twice.
class BucketRing {
 public:
  BucketRing() = default;
  ~BucketRing();
  BucketRing(const BucketRing&) = delete;
  BucketRing& operator=(const BucketRing&) = delete;

  /// Empties the ring and makes it at least `count` buckets long. Throws std::bad_alloc.
  void reset(std::uint32_t count);

  void push(std::uint32_t bucket, std::uint32_t node) {
    Bucket& b = mBuckets[bucket & mMask];
    if (b.size == b.capacity) grow(b);
    b.nodes[b.size++] = node;
    ++mPending;
  }

  struct Bucket {
    std::uint32_t* nodes = nullptr;
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

/// A grid and the state of one search over it, as flat arrays. Search ids number the nodes of all
/// horizontal lines first, then those of all vertical sides, each side's nodes together: a cell is
/// then two runs on lines and two on sides.
struct SearchField {
  static constexpr std::uint32_t kNotQueued = 0xFFFFFFFFU;

  std::uint32_t rows, cols, nV;
  std::uint32_t lineNodes;  ///< nodes of one line
  std::uint32_t sideBase;   ///< first search id of the sides
  double h;                 ///< cell side, metres
  const double* lineX;      ///< lineNodes
  const double* lineZ;      ///< (rows + 1) * lineNodes
  const double* step;       ///< nV - 2, depth of a side node below its upper corner
  const double* slowness;   ///< rows * cols
  double* distance;         ///< seconds, by search id
  std::uint32_t* queued;    ///< bucket that a node waits in, or kNotQueued, by search id
  double bucketsPerSecond;
  BucketRing* ring;
};

/// Settles every node that can be reached from `source` (a search id). Which one runs is decided by
/// what the processor can do; all compute the same. The vector kinds need runs of four nodes: six
/// nodes per side, the fewest that users choose.
void searchScalar(SearchField& field, std::uint32_t source);
void searchBaseline(SearchField& field, std::uint32_t source);
void searchAvx2(SearchField& field, std::uint32_t source);

}  // namespace talvesk
