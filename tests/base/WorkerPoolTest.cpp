#include "base/WorkerPool.h"

#include <atomic>
#include <chrono>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

const unsigned kSizes[] = {1, 2, 3, 8};

TEST(WorkerPool, doesEveryItemOnceInPassAfterPass) {
  for (const unsigned size : kSizes) {
    SCOPED_TRACE(size);
    WorkerPool pool(size);
    ASSERT_EQ(pool.size(), size);
    for (const std::size_t count : {0, 1, 2, 7, 100, 3}) {
      std::vector<int> times(count, 0);
      std::atomic<bool> foreign{false};
      pool.run(count, [&](unsigned worker, std::size_t item) {
        ++times[item];
        if (worker >= size) foreign = true;
      });
      EXPECT_EQ(times, std::vector<int>(count, 1));
      EXPECT_FALSE(foreign);
    }
  }
}

TEST(WorkerPool, workersShareTheItemsAndKeepTheirNumbers) {
  WorkerPool pool(2);
  std::vector<std::set<std::thread::id>> threads(2);
  for (int pass = 0; pass < 3; ++pass) {
    std::atomic<int> waiting{2};
    // Neither goes on before the other has come.
    pool.run(2, [&](unsigned worker, std::size_t) {
      threads[worker].insert(std::this_thread::get_id());
      --waiting;
      while (waiting > 0) std::this_thread::yield();
    });
  }
  EXPECT_EQ(threads[0], std::set<std::thread::id>{std::this_thread::get_id()});
  EXPECT_EQ(threads[1].size(), 1u);
}

TEST(WorkerPool, tellsOfItemsInTheirOrder) {
  for (const unsigned size : kSizes) {
    SCOPED_TRACE(size);
    WorkerPool pool(size);
    std::vector<std::atomic<bool>> ended(40);
    std::vector<std::size_t> told;
    const auto caller = std::this_thread::get_id();
    pool.run(
        40,
        [&](unsigned, std::size_t item) {
          // Early items take longest.
          std::this_thread::sleep_for(std::chrono::microseconds(item % 5 == 0 ? 800 : 20));
          ended[item] = true;
        },
        [&](std::size_t item) {
          EXPECT_TRUE(ended[item]);
          EXPECT_EQ(std::this_thread::get_id(), caller);
          told.push_back(item);
        });
    std::vector<std::size_t> expected(40);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(told, expected);
  }
}

TEST(WorkerPool, throwsWhatTheFirstOfItsItemsThrew) {
  for (const unsigned size : kSizes) {
    SCOPED_TRACE(size);
    WorkerPool pool(size);
    for (int pass = 0; pass < 20; ++pass) {
      std::vector<std::size_t> told;
      std::atomic<int> begun{0};
      try {
        pool.run(
            1000,
            [&](unsigned, std::size_t item) {
              ++begun;
              if (item == 5) std::this_thread::sleep_for(std::chrono::microseconds(300));
              if (item >= 5) throw std::runtime_error(std::to_string(item));
            },
            [&](std::size_t item) { told.push_back(item); });
        ADD_FAILURE() << "nothing was thrown";
      } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "5");
      }
      EXPECT_EQ(told, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
      EXPECT_LE(begun, 5 + static_cast<int>(size)) << "items were begun after the failure";
    }
    int done = 0;  // the pool is as good as before
    pool.run(
        4, [](unsigned, std::size_t) {}, [&](std::size_t) { ++done; });
    EXPECT_EQ(done, 4);
  }
}

TEST(WorkerPool, endsThePassWhenTellingFails) {
  for (const unsigned size : kSizes) {
    WorkerPool pool(size);
    std::atomic<int> running{0};
    int told = 0;
    EXPECT_THROW(pool.run(
                     50,
                     [&](unsigned, std::size_t) {
                       ++running;
                       std::this_thread::sleep_for(std::chrono::microseconds(50));
                       --running;
                     },
                     [&](std::size_t item) {
                       ++told;
                       if (item == 2) throw std::runtime_error("the console is gone");
                     }),
                 std::runtime_error);
    EXPECT_EQ(running, 0) << "a worker was left behind";
    EXPECT_EQ(told, 3);
  }
}

TEST(WorkerPool, coversARangeByParts) {
  for (const unsigned size : kSizes) {
    WorkerPool pool(size);
    for (const std::size_t count : {0, 1, 9, 10, 11, 100}) {
      std::vector<int> times(count, 0);
      forEachPart(pool, count, 10, [&](std::size_t first, std::size_t last) {
        EXPECT_LE(last - first, 10u);
        for (std::size_t i = first; i < last; ++i) ++times[i];
      });
      EXPECT_EQ(times, std::vector<int>(count, 1));
    }
  }
}

}  // namespace
}  // namespace talvesk
