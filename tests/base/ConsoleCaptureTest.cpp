#include "support/ConsoleCapture.h"

#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(ConsoleCapture, losesNothingThatSeveralThreadsPrint) {
  constexpr int kLines = 2000;
  const testing::ConsoleCapture console;
  std::vector<std::thread> workers;
  for (const char* word : {"ab", "cd", "ef"}) {
    workers.emplace_back([word] {
      for (int i = 0; i < kLines; ++i) {
        console::out() << word << std::endl;
        console::error() << '!';
      }
    });
  }
  for (int i = 0; i < 100; ++i) EXPECT_LE(console.out().size(), 3U * 3U * kLines);
  for (std::thread& worker : workers) worker.join();
  EXPECT_EQ(console.out().size(), 3U * 3U * kLines);
  EXPECT_EQ(console.error().size(), 3U * kLines);
}

}  // namespace
}  // namespace talvesk
