#include "base/Shared.h"

#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(Shared, copiesAreOneValueUntilOneIsEdited) {
  SharedVector<double> a = {1.0, 2.0};
  const SharedVector<double> b = a;
  EXPECT_TRUE(a.isSharedWith(b));
  a.edit()[0] = 5.0;
  EXPECT_FALSE(a.isSharedWith(b));
  EXPECT_EQ(b, (std::vector<double>{1.0, 2.0}));
  EXPECT_EQ(a, (std::vector<double>{5.0, 2.0}));
}

TEST(Shared, whatNobodyElseHasIsEditedInPlace) {
  SharedVector<double> a(std::vector<double>(1000, 1.0));
  const double* const place = a.data();
  a.edit()[3] = 2.0;
  EXPECT_EQ(SharedVector<double>(a).data(), place) << "a copy that comes and goes";
  a.edit()[4] = 2.0;
  EXPECT_EQ(a.data(), place);
}

TEST(Shared, newOnesShareNothingThatCanBeWritten) {
  SharedVector<int> a;
  SharedVector<int> b;
  a.edit().push_back(1);
  EXPECT_TRUE(b.empty());
  EXPECT_TRUE(SharedVector<int>().empty());
}

TEST(Shared, whatWasMovedFromIsAsNew) {
  SharedVector<int> a = {1, 2, 3};
  SharedVector<int> b = std::move(a);
  EXPECT_TRUE(a.empty());  // NOLINT(bugprone-use-after-move): that is the point
  EXPECT_EQ(b.size(), 3U);
  SharedVector<int>& self = b;
  b = std::move(self);
  EXPECT_EQ(b.size(), 3U);
  a = std::move(b);
  EXPECT_EQ(a.size(), 3U);
  EXPECT_TRUE(b.empty());  // NOLINT(bugprone-use-after-move)
}

TEST(Shared, copiesMayBeEditedOnDifferentThreads) {
  SharedVector<int> a(std::vector<int>(10000, 1));
  std::vector<std::thread> threads;
  std::vector<SharedVector<int>> copies(4, a);
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&copies, t] {
      for (int& value : copies[t].edit()) value += t;
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int t = 0; t < 4; ++t) EXPECT_EQ(copies[t], std::vector<int>(10000, 1 + t)) << t;
  EXPECT_EQ(a, std::vector<int>(10000, 1));
}

}  // namespace
}  // namespace talvesk
