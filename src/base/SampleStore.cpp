#include "base/SampleStore.h"

#include "base/Console.h"
#include "base/ScratchFile.h"

#include <algorithm>
#include <limits>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

/// Of a scratch file: few enough of them for the system, small enough to end with their samples.
constexpr std::size_t kFileBytes = std::size_t{64} << 20;
constexpr std::size_t kShareOfMemory = 4;

thread_local const SampleStore::Choice* theChoice = nullptr;

}  // namespace

// What of samples asks the store or tells it.

Samples::Samples(std::vector<double> values)
    : mBlock(SampleStore::instance().keep(std::move(values), false)) {}

Samples::Samples(std::vector<double> values, const Samples& madeOf)
    : mBlock(SampleStore::instance().keep(std::move(values), madeOf.onDisk())) {}

SampleBlock::SampleBlock(std::vector<double> values)
    : mValues(std::move(values)), mSize(mValues.size()) {
  SampleStore::instance().mMemory += mSize * sizeof(double);
}

SampleBlock::SampleBlock(std::shared_ptr<ScratchFile> file, const double* data, std::size_t size)
    : mAway(data), mSize(size), mFile(std::move(file)) {
  SampleStore::instance().mDisk += mSize * sizeof(double);
}

SampleBlock::~SampleBlock() {
  SampleStore& store = SampleStore::instance();
  (onDisk() ? store.mDisk : store.mMemory) -= mSize * sizeof(double);
}

const double* SampleBlock::read() const {
  SampleStore& store = SampleStore::instance();
  const std::uint32_t round = store.mRound.load(std::memory_order_relaxed);
  if (mReadIn.load(std::memory_order_relaxed) != round &&
      mReadIn.exchange(round, std::memory_order_relaxed) != round) {
    store.countRead(mSize * sizeof(double));
  }
  return mAway;
}

SampleStore& SampleStore::instance() {
  // Never destroyed: samples that live as long as the process tell it when they go.
  static SampleStore& store = *new SampleStore;
  return store;
}

SampleStore::SampleStore() : mMemoryLimit(memoryOfProcess() / kShareOfMemory) {}

SampleStore::Choice::Choice(SamplesOnDisk when) : mOuter(theChoice), mWhen(when) {
  theChoice = this;
}

SampleStore::Choice::~Choice() {
  theChoice = mOuter;
}

SamplesOnDisk SampleStore::when() const {
  return theChoice != nullptr ? theChoice->mWhen : mWhen.load();
}

void SampleStore::setFolders(std::vector<std::string> folders) {
  const std::lock_guard<std::mutex> lock(mMutex);
  mFolders = std::move(folders);
  mFoldersKnown = true;
  if (mFile != nullptr) mFile->close();
  mFile = nullptr;
}

SampleStore::Usage SampleStore::usage() const {
  return {mMemory, mDisk, mRead};
}

Message SampleStore::failure() const {
  const std::lock_guard<std::mutex> lock(mMutex);
  return mFailure;
}

std::size_t SampleStore::spare() const {
  if (when() == SamplesOnDisk::kNever) return std::numeric_limits<std::size_t>::max();
  if (when() == SamplesOnDisk::kAlways || mDisk > 0) return mReadBudget;
  return mMemoryLimit - std::min<std::size_t>(mMemory, mMemoryLimit);
}

bool SampleStore::goesToDisk(std::size_t bytes, bool besideOnDisk) const {
  switch (when()) {
    case SamplesOnDisk::kAlways:
      return true;
    case SamplesOnDisk::kNever:
      return false;
    case SamplesOnDisk::kWhenLarge:
      break;
  }
  return besideOnDisk || mMemory + bytes > mMemoryLimit;
}

std::shared_ptr<SampleBlock> SampleStore::keep(std::vector<double> values, bool besideOnDisk) {
  if (values.empty()) return nullptr;
  if (goesToDisk(values.size() * sizeof(double), besideOnDisk)) {
    if (std::shared_ptr<SampleBlock> block = write(values)) return block;
  }
  return std::make_shared<SampleBlock>(std::move(values));
}

std::shared_ptr<SampleBlock> SampleStore::write(const std::vector<double>& values) {
  const std::size_t bytes = values.size() * sizeof(double);
  const std::lock_guard<std::mutex> lock(mMutex);
  const bool fits = mFile != nullptr && mFile->room() >= bytes;
  if (!fits && !openFile(bytes)) return nullptr;
  const double* data = mFile->append(values);
  if (data == nullptr) {
    tell(Message::tr("a scratch file of samples cannot be written to"));
    return nullptr;
  }
  mFailure = {};
  return std::make_shared<SampleBlock>(mFile, data, values.size());
}

/// Once, and not for every trace of a survey.
void SampleStore::tell(Message why) {
  if (mFailure.empty()) {
    console::error() << Message::tr("Samples are kept in memory: %1").arg(why) << std::endl;
  }
  mFailure = std::move(why);
}

bool SampleStore::openFile(std::size_t bytes) {
  if (!std::exchange(mFoldersKnown, true)) mFolders = scratchFolders();
  if (mFile != nullptr) mFile->close();
  mFile = nullptr;
  Message why = Message::tr("no folder for scratch files of samples can be written to");
  for (const std::string& folder : mFolders) {
    const Status made = ScratchFile::create(folder, std::max(bytes, kFileBytes), mFile);
    if (!made.ok()) {
      why = made.text();
      continue;
    }
    mFiles.erase(std::remove_if(mFiles.begin(), mFiles.end(),
                                [](const auto& file) { return file.expired(); }),
                 mFiles.end());
    mFiles.push_back(mFile);
    return true;
  }
  tell(std::move(why));
  return false;
}

void SampleStore::countRead(std::size_t bytes) {
  if ((mRead += bytes) <= mReadBudget) return;
  const std::lock_guard<std::mutex> lock(mMutex);
  if (mRead <= mReadBudget) return;  // another thread was here meanwhile
  beginRound(bytes);
}

void SampleStore::giveBack() {
  const std::lock_guard<std::mutex> lock(mMutex);
  if (mRead > 0) beginRound(0);
}

void SampleStore::beginRound(std::size_t bytes) {
  ++mRound;
  mRead = bytes;
  for (const std::weak_ptr<ScratchFile>& each : mFiles) {
    if (const std::shared_ptr<ScratchFile> file = each.lock()) file->giveBack();
  }
}

}  // namespace talvesk
