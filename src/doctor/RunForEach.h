#pragma once

#include <cstddef>
#include <functional>

namespace talvesk::doctor {

/// Runs something for 0 to count - 1, in any order, on as many threads as the machine has
/// processors. Each must write to a place of its own. \param goOn asked between; after false the
/// rest is left out
void runForEach(std::size_t count, const std::function<void(std::size_t)>& work,
                const std::function<bool()>& goOn = nullptr);

}  // namespace talvesk::doctor
