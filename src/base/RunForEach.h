#pragma once

#include <cstddef>
#include <functional>

namespace talvesk {

/// Runs something for 0 to count - 1, in any order, on several threads. Each must write to a place
/// of its own.
/// \param goOn asked between, on the thread that calls; after false the rest is left out
/// \param threads 0: as many as the machine has processors
void runForEach(std::size_t count, const std::function<void(std::size_t)>& work,
                const std::function<bool()>& goOn = nullptr, unsigned threads = 0);

}  // namespace talvesk
