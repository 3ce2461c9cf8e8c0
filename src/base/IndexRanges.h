#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

/// "1, 3-7" of ascending indices from 0: for users, who count from 1.
std::string ranges(const std::vector<std::size_t>& indices);

}  // namespace talvesk
