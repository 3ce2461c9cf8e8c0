#include "base/SampleStore.h"
#include "base/ScratchFile.h"
#include "support/ConsoleCapture.h"

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <fstream>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

std::vector<double> ramp(std::size_t size, double first = 0.0) {
  std::vector<double> values(size);
  std::iota(values.begin(), values.end(), first);
  return values;
}

/// Bytes of files, and of shared memory besides, that are in the memory of this process.
std::size_t mappedBytes() {
  std::ifstream statm("/proc/self/statm");
  std::size_t total = 0;
  std::size_t resident = 0;
  std::size_t shared = 0;
  statm >> total >> resident >> shared;
  return shared * 4096;
}

/// Gives every test the store as the process begins with it, and takes back what it changes.
class SampleStoreTest : public ::testing::Test {
 protected:
  ~SampleStoreTest() override {
    store.setWhen(SamplesOnDisk::kWhenLarge);
    store.setMemoryLimit(mLimit);
    store.setReadBudget(mBudget);
    store.setFolders(scratchFolders());
  }

  SampleStore& store = SampleStore::instance();

 private:
  std::size_t mLimit = store.memoryLimit();
  std::size_t mBudget = store.readBudget();
};

TEST_F(SampleStoreTest, samplesReadTheSameInMemoryAndOnTheDisk) {
  const std::vector<double> values = ramp(1000, -3.5);
  for (const auto when : {SamplesOnDisk::kNever, SamplesOnDisk::kAlways}) {
    store.setWhen(when);
    const Samples samples = values;
    EXPECT_EQ(samples.onDisk(), when == SamplesOnDisk::kAlways);
    EXPECT_EQ(samples.size(), 1000U);
    EXPECT_EQ(samples, values);
    EXPECT_EQ(samples.front(), -3.5);
    EXPECT_EQ(samples[7], 3.5);
    EXPECT_EQ(samples.back(), 995.5);
    EXPECT_EQ(std::vector<double>(samples.begin(), samples.end()), values);
    EXPECT_THROW(samples.at(1000), std::out_of_range);
    EXPECT_EQ(samples, Samples(values));
    EXPECT_NE(samples, Samples(ramp(999, -3.5)));
  }
}

TEST_F(SampleStoreTest, noSamplesAreNowhere) {
  store.setWhen(SamplesOnDisk::kAlways);
  const Samples none = std::vector<double>();
  EXPECT_FALSE(none.onDisk());
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.begin(), none.end());
  EXPECT_EQ(none, Samples());
}

TEST_F(SampleStoreTest, anEditLeavesCopiesAloneAndIsInMemory) {
  for (const auto when : {SamplesOnDisk::kNever, SamplesOnDisk::kAlways}) {
    store.setWhen(when);
    Samples samples = {1.0, 2.0, 3.0};
    const Samples copy = samples;
    EXPECT_TRUE(copy.isSharedWith(samples));
    samples.edit()[1] = 5.0;
    EXPECT_EQ(copy, (std::vector<double>{1.0, 2.0, 3.0}));
    EXPECT_EQ(samples, (std::vector<double>{1.0, 5.0, 3.0}));
    EXPECT_FALSE(samples.onDisk());
    const double* const place = samples.data();
    samples.edit()[2] = 7.0;
    EXPECT_EQ(samples.data(), place) << "nobody else has it";
  }
}

TEST_F(SampleStoreTest, whatComesAfterALimitGoesToTheDisk) {
  store.setMemoryLimit(store.usage().memory + 1500 * sizeof(double));
  const Samples first = ramp(1000);
  {
    const Samples second = ramp(1000);
    EXPECT_FALSE(first.onDisk());
    EXPECT_TRUE(second.onDisk());
    EXPECT_TRUE(Samples(ramp(10), second).onDisk()) << "made of samples on the disk";
    EXPECT_FALSE(Samples(ramp(10), first).onDisk());
  }
  const SampleStore::Usage before = store.usage();
  store.setMemoryLimit(before.memory + 1500 * sizeof(double));
  EXPECT_FALSE(Samples(ramp(1000)).onDisk());
  EXPECT_EQ(store.usage().memory, before.memory) << "those that are gone do not count";
  EXPECT_EQ(store.usage().disk, before.disk);
}

TEST_F(SampleStoreTest, aChoiceIsThatOfItsThread) {
  const SampleStore::Choice disk(SamplesOnDisk::kAlways);
  bool elsewhere = true;
  std::thread([&] { elsewhere = Samples(ramp(10)).onDisk(); }).join();
  EXPECT_TRUE(Samples(ramp(10)).onDisk());
  EXPECT_FALSE(elsewhere);
  const SampleStore::Choice memory(SamplesOnDisk::kNever);
  EXPECT_FALSE(Samples(ramp(10)).onDisk());
}

TEST_F(SampleStoreTest, readingManySamplesTakesNoMoreThanTheBudget) {
  store.setWhen(SamplesOnDisk::kAlways);
  constexpr std::size_t kBudget = std::size_t{8} << 20;
  store.setReadBudget(kBudget);
  constexpr std::size_t kTrace = 20000;
  std::vector<Samples> traces;
  for (int i = 0; i < 500; ++i) traces.push_back(ramp(kTrace, i));  // 80 MB, two files
  const std::size_t before = mappedBytes();
  std::size_t most = 0;
  double sum = 0.0;
  for (int round = 0; round < 2; ++round) {
    for (const Samples& trace : traces) {
      for (const double sample : trace) sum += sample;
      most = std::max(most, mappedBytes());
    }
  }
  const double last = kTrace - 1.0;
  EXPECT_EQ(sum, 2.0 * (500.0 * kTrace * last / 2.0 + kTrace * 499.0 * 500.0 / 2.0));
  EXPECT_GT(most, before + kBudget / 2) << "it is read as memory";
  EXPECT_LT(most, before + 2 * kBudget);
  EXPECT_LE(store.usage().read, kBudget);
  store.giveBack();
  EXPECT_LT(mappedBytes(), before + (std::size_t{1} << 20)) << "all of it";
  EXPECT_EQ(traces[3][5], 8.0);
}

TEST_F(SampleStoreTest, whatIsHeldStaysReadableWhileOthersAreGivenBack) {
  store.setWhen(SamplesOnDisk::kAlways);
  store.setReadBudget(std::size_t{1} << 16);
  std::vector<Samples> traces;
  for (int i = 0; i < 40; ++i) traces.push_back(ramp(5000, i));
  const Span<double> held = traces.front();
  std::vector<std::thread> readers;
  std::atomic<int> wrong{0};
  for (int t = 0; t < 4; ++t) {
    readers.emplace_back([&] {
      for (int round = 0; round < 20; ++round) {
        for (std::size_t i = 0; i < traces.size(); ++i) {
          const Samples copy = traces[i];
          if (copy[4999] != 4999.0 + static_cast<double>(i)) ++wrong;
        }
      }
    });
  }
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(held[4321], 4321.0);
}

TEST_F(SampleStoreTest, theDiskIsFreeAgainWhenItsSamplesAreGone) {
  store.setWhen(SamplesOnDisk::kAlways);
  const std::size_t before = store.usage().disk;
  { const Samples large = ramp((std::size_t{70} << 20) / sizeof(double)); }
  EXPECT_EQ(store.usage().disk, before);
}

TEST_F(SampleStoreTest, withoutAFolderSamplesStayInMemoryWithAWord) {
  store.setWhen(SamplesOnDisk::kAlways);
  store.setFolders({"/nowhere/at/all"});
  const testing::ConsoleCapture console;
  const Samples first = ramp(100);
  const Samples second = ramp(100);
  EXPECT_FALSE(first.onDisk());
  EXPECT_EQ(first, ramp(100));
  const std::string text = console.error();
  EXPECT_NE(text.find("/nowhere/at/all"), std::string::npos) << text;
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << "once, not for every trace: " << text;
  EXPECT_FALSE(store.failure().empty());
  store.setFolders(scratchFolders());
  EXPECT_TRUE(Samples(ramp(100)).onDisk());
  EXPECT_TRUE(store.failure().empty());
}

TEST(ScratchFile, takesItsDiskWhenItIsMadeAndLeavesNoName) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  std::shared_ptr<ScratchFile> file;
  ASSERT_TRUE(ScratchFile::create(path, 4096, file).ok());
  EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::Files));
  EXPECT_EQ(file->append(ramp(1000)), nullptr) << "more than there is room for";
  const double* values = file->append(ramp(500));
  ASSERT_NE(values, nullptr);
  EXPECT_EQ(values[499], 499.0);
  file->close();
  file->giveBack();
  EXPECT_EQ(values[498], 498.0);
  EXPECT_EQ(file->append(ramp(1)), nullptr);
}

TEST(ScratchFile, refusesMoreThanTheDiskHasRoomFor) {
  const QTemporaryDir folder;
  std::shared_ptr<ScratchFile> file;
  const Status refused =
      ScratchFile::create(folder.path().toStdString(), std::size_t{1} << 55, file);
  EXPECT_FALSE(refused.ok());
  EXPECT_EQ(file, nullptr);
}

}  // namespace
}  // namespace talvesk
