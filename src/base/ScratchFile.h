#pragma once

#include "base/Span.h"
#include "base/Status.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

/// A file without a name for values that memory has no room for: written once, from front to back,
/// and read as memory. The disk that it takes is taken when it is made, so that nobody who reads
/// finds it gone. It ends with the object, and with the process however that ends.
///
/// One thread appends at a time; any number read what was appended, and give back, meanwhile.
class ScratchFile {
 public:
  /// Fails, saying why, when the folder cannot be written to or its disk has no room for the file
  /// and a twentieth of itself besides. \param folder path, UTF-8 \param bytes above 0
  static Status create(const std::string& folder, std::size_t bytes,
                       std::shared_ptr<ScratchFile>& file);

  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  std::size_t room() const { return mBytes - mUsed; }  ///< bytes still to be appended
  /// Where the values can be read from now on; null when there is no room for them, or the disk
  /// failed, after which there is none.
  const double* append(Span<double> values);
  /// Nothing more is appended: lets go of what only writing needs.
  void close();

  /// Gives the memory back that reading took. What is read again comes from the disk, or from the
  /// system's cache of it, by itself; pointers stay valid.
  void giveBack() const;

  std::size_t bytes() const { return mBytes; }

 private:
  ScratchFile(int descriptor, void* memory, std::size_t bytes)
      : mDescriptor(descriptor), mMemory(memory), mBytes(bytes) {}

  int mDescriptor;
  void* mMemory;
  std::size_t mBytes;
  std::size_t mUsed = 0;
};

/// Folders for scratch files, the best first: the user's cache, what the system keeps for files
/// that last longer than a session, its folder for temporary ones. Those that are memory
/// themselves, as many a temporary folder is, are left out.
std::vector<std::string> scratchFolders();

/// Bytes of memory that the process may have: the machine's, or less where a limit is set on it.
std::size_t memoryOfProcess();

}  // namespace talvesk
