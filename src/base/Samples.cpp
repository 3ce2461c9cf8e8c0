#include "base/Samples.h"

#include <algorithm>
#include <stdexcept>

namespace talvesk {

const double& Samples::at(std::size_t i) const {
  if (i >= size()) throw std::out_of_range("no such sample");
  return data()[i];
}

std::vector<double>& Samples::edit() {
  if (mBlock == nullptr || mBlock.use_count() != 1 || mBlock->onDisk()) {
    mBlock = std::make_shared<SampleBlock>(std::vector<double>(begin(), end()));
  } else {
    // What another thread read before it let go of its copy was read before this is written.
    std::atomic_thread_fence(std::memory_order_acquire);
  }
  return mBlock->values();
}

bool Samples::equals(Span<double> other) const {
  return std::equal(begin(), end(), other.begin(), other.end());
}

}  // namespace talvesk
