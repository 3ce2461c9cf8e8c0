#pragma once

#include "base/Span.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

namespace talvesk {

class ScratchFile;

/// Samples that several may have, in memory or in a scratch file. The store counts them.
class SampleBlock {
 public:
  explicit SampleBlock(std::vector<double> values);
  SampleBlock(std::shared_ptr<ScratchFile> file, const double* data, std::size_t size);
  ~SampleBlock();
  SampleBlock(const SampleBlock&) = delete;
  SampleBlock& operator=(const SampleBlock&) = delete;

  bool onDisk() const { return mAway != nullptr; }
  const double* data() const { return mAway == nullptr ? mValues.data() : read(); }
  std::size_t size() const { return mAway == nullptr ? mValues.size() : mSize; }
  std::vector<double>& values() { return mValues; }  ///< of a block in memory
  std::size_t capacity() const { return mValues.capacity(); }

 private:
  const double* read() const;

  std::vector<double> mValues;
  const double* mAway = nullptr;  ///< in the file
  std::size_t mSize = 0;          ///< when it was made
  mutable std::atomic<std::uint32_t> mReadIn{0};
  std::shared_ptr<ScratchFile> mFile;
};

/// The samples of a recording, shared by its copies until one of them is edited, as of a
/// SharedVector<double>. Where they are, in memory or on the disk, base/SampleStore.h decides when
/// they are assigned; they read the same. Copies may be read and edited on different threads, one
/// and the same object may not.
class Samples {
 public:
  using value_type = double;
  using size_type = std::size_t;
  using const_reference = const double&;
  using const_iterator = const double*;
  using iterator = const_iterator;

  Samples() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): samples are what they are, wherever they are
  Samples(std::vector<double> values);
  Samples(std::initializer_list<double> values) : Samples(std::vector<double>(values)) {}
  /// What was made of other samples goes to the disk where those are.
  Samples(std::vector<double> values, const Samples& madeOf);

  /// Where they stand one after the other; valid until this object is edited or assigned to, and
  /// its last copy gone. Who reads many of them takes a Span once.
  const double* data() const { return mBlock == nullptr ? nullptr : mBlock->data(); }
  std::size_t size() const { return mBlock == nullptr ? 0 : mBlock->size(); }
  bool empty() const { return size() == 0; }
  /// For how many there is memory; 0 on the disk.
  std::size_t capacity() const { return mBlock == nullptr ? 0 : mBlock->capacity(); }
  const double* begin() const { return data(); }
  const double* end() const { return data() + size(); }
  const double& operator[](std::size_t i) const { return mBlock->data()[i]; }
  const double& at(std::size_t i) const;  ///< throws std::out_of_range
  const double& front() const { return data()[0]; }
  const double& back() const { return data()[size() - 1]; }

  /// In memory, to be written; copied there before when they are on the disk, or somebody else has
  /// them, too. Keep the reference no longer than until this object is copied.
  std::vector<double>& edit();

  bool onDisk() const { return mBlock != nullptr && mBlock->onDisk(); }
  /// Whether both are one block. Equal ones need not be.
  bool isSharedWith(const Samples& other) const { return mBlock == other.mBlock; }
  /// Tells blocks apart without reading them; null where there are no samples.
  const void* block() const { return mBlock.get(); }

  friend bool operator==(const Samples& a, const Samples& b) {
    return a.isSharedWith(b) || a.equals(b);
  }
  friend bool operator!=(const Samples& a, const Samples& b) { return !(a == b); }
  friend bool operator==(const Samples& a, const std::vector<double>& b) { return a.equals(b); }
  friend bool operator==(const std::vector<double>& a, const Samples& b) { return b.equals(a); }

 private:
  bool equals(Span<double> other) const;

  std::shared_ptr<SampleBlock> mBlock;  ///< null: none
};

}  // namespace talvesk
