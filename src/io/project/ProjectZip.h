#pragma once

#include "base/Message.h"

#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// Puts files into a new archive, flat, under their bare names. The archive appears whole or not at
/// all; what lay at its path before is replaced, in one step, only by one that is on the disk.
/// Files that readZip() would refuse for their size are no archive either. \param why out: what
/// happened, for the user, when it failed \return 0, or 1 after telling the console's error stream
/// what was impossible
int writeZip(const std::string& archive, const std::vector<std::string>& files, Message& why);

/// Extracts an archive that holds a "tomodoc.xml" into a folder that holds nothing else.
///
/// Refused, before anything of it is extracted: an archive without that entry, or of more than
/// 65535; an entry whose name is no plain file name, or that another entry has, too; entries that
/// say that they unpack to more than unpackedLimit(), or than the disk has room for. The bytes are
/// counted while they are written, too, for an entry may be longer than it says: what goes beyond
/// the limit is not written. That, and a damaged entry, stops the extraction.
/// \param folder ending in "/"
/// \param why out: what is wrong, for the user, when it failed; says nothing of the path
/// \return 0, or 1 after telling the console's error stream where it stopped
int readZip(const std::string& archive, const std::string& folder, Message& why);

/// How many bytes an archive of so many may unpack to: 200 times as many, or 10 MB where that is
/// more, and never more than 4 GiB.
std::uint64_t unpackedLimit(std::uint64_t archiveBytes);

struct ZipEntry {
  std::string name;
  std::uint64_t bytes = 0;  ///< unpacked
};

/// Whether what the entries say about themselves is acceptable. Empty, or why not.
/// \param archiveBytes size of the archive; \param room bytes that the disk can take
Message refusalOf(const std::vector<ZipEntry>& entries, std::uint64_t archiveBytes,
                  std::uint64_t room);

}  // namespace talvesk
