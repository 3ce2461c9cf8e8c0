#pragma once

#include <cstdlib>
#include <iostream>

/// Stops the fuzzer, and fails the replay of seeds, unless the condition holds.
inline void demand(bool condition, const char* what) {
  if (condition) return;
  std::cerr << "violated: " << what << std::endl;
  std::abort();
}
