#pragma once

#include "base/Message.h"
#include "base/Samples.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace talvesk {

class ScratchFile;

/// When samples are kept on the disk and not in memory.
enum class SamplesOnDisk : std::int32_t {
  kWhenLarge = 0,  ///< what comes after a share of the machine's memory is full of them
  kAlways = 1,
  kNever = 2
};

/// Decides for all samples of the process, as they are assigned, whether they go to memory or to
/// the disk, and bounds the memory that reading the latter takes: each block that is read counts
/// with its size, and as the sum passes the read budget all of them are given back to the system.
/// So that memory is the budget, and per thread what it has its finger on.
///
/// A disk that takes no more is told on the console's error stream; samples then go to memory.
/// Runs on any thread.
class SampleStore {
 public:
  static SampleStore& instance();

  SamplesOnDisk when() const;
  void setWhen(SamplesOnDisk when) { mWhen = when; }
  /// Bytes of samples from which on they go to the disk with kWhenLarge; at first a quarter of the
  /// memory that the process may have.
  std::size_t memoryLimit() const { return mMemoryLimit; }
  void setMemoryLimit(std::size_t bytes) { mMemoryLimit = bytes; }
  /// Bytes of samples on the disk that may be in memory besides; at first 32 MiB.
  std::size_t readBudget() const { return mReadBudget; }
  void setReadBudget(std::size_t bytes) { mReadBudget = bytes; }
  /// Where scratch files go, the first that takes one; at first scratchFolders().
  void setFolders(std::vector<std::string> folders);

  struct Usage {
    std::size_t memory = 0;  ///< bytes of samples in memory
    std::size_t disk = 0;    ///< bytes of samples on the disk
    std::size_t read = 0;    ///< of those the bytes that were read since the last giving back
  };
  Usage usage() const;
  /// Why samples that were meant for the disk are in memory; empty when none are.
  Message failure() const;
  /// Gives back what reading has taken, at the end of work on samples.
  void giveBack();
  /// Bytes that work on samples may keep for itself without being asked.
  std::size_t spare() const;

  /// For as long as it lives, its thread keeps new samples as it says and not as the store does.
  class Choice {
   public:
    explicit Choice(SamplesOnDisk when);
    ~Choice();
    Choice(const Choice&) = delete;
    Choice& operator=(const Choice&) = delete;

   private:
    const Choice* mOuter;
    SamplesOnDisk mWhen;
    friend class SampleStore;
  };

 private:
  friend class Samples;
  friend class SampleBlock;

  SampleStore();
  std::shared_ptr<SampleBlock> keep(std::vector<double> values, bool besideOnDisk);
  bool goesToDisk(std::size_t bytes, bool besideOnDisk) const;
  std::shared_ptr<SampleBlock> write(const std::vector<double>& values);
  bool openFile(std::size_t bytes);
  void tell(Message why);
  void countRead(std::size_t bytes);
  void beginRound(std::size_t bytes);  ///< with these already read

  std::atomic<SamplesOnDisk> mWhen{SamplesOnDisk::kWhenLarge};
  std::atomic<std::size_t> mMemoryLimit;
  std::atomic<std::size_t> mReadBudget{std::size_t{32} << 20};
  std::atomic<std::size_t> mMemory{0};
  std::atomic<std::size_t> mDisk{0};
  std::atomic<std::size_t> mRead{0};
  std::atomic<std::uint32_t> mRound{1};  ///< of giving back; blocks read in an earlier one are away

  mutable std::mutex mMutex;  ///< of what follows
  std::vector<std::string> mFolders;
  bool mFoldersKnown = false;
  std::shared_ptr<ScratchFile> mFile;  ///< that takes the next samples
  std::vector<std::weak_ptr<ScratchFile>> mFiles;
  Message mFailure;
};

}  // namespace talvesk
