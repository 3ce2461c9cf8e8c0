#include "tomo/SearchField.h"

#include <cstdlib>
#include <new>

namespace talvesk {

BucketRing::~BucketRing() {
  for (std::uint32_t b = 0; b < mCount; ++b) std::free(mBuckets[b].waiting);
  delete[] mBuckets;
}

void BucketRing::reset(std::uint32_t count) {
  std::uint32_t wanted = 1;
  while (wanted < count) wanted *= 2;
  if (wanted > mCount) {
    auto* buckets = new Bucket[wanted];
    for (std::uint32_t b = 0; b < mCount; ++b) buckets[b] = mBuckets[b];
    delete[] mBuckets;
    mBuckets = buckets;
    mCount = wanted;
  }
  for (std::uint32_t b = 0; b < mCount; ++b) mBuckets[b].size = 0;
  mMask = mCount - 1;
  mPending = 0;
}

void BucketRing::grow(Bucket& bucket) {
  const std::uint32_t capacity = bucket.capacity == 0 ? 16 : bucket.capacity * 2;
  void* waiting = std::realloc(bucket.waiting, capacity * sizeof(std::uint32_t));
  if (waiting == nullptr) throw std::bad_alloc();
  bucket.waiting = static_cast<std::uint32_t*>(waiting);
  bucket.capacity = capacity;
}

std::size_t BucketRing::bytes() const {
  std::size_t total = mCount * sizeof(Bucket);
  for (std::uint32_t b = 0; b < mCount; ++b) total += mBuckets[b].capacity * sizeof(std::uint32_t);
  return total;
}

}  // namespace talvesk
