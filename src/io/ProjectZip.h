#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// Puts files into a new archive, flat, under their bare names. The archive appears whole or not at
/// all; what lay at its path before is replaced, in one step, only by one that is on the disk.
/// \param why out: what happened, for the user, when it failed
/// \return 0, or 1 after telling the console's error stream what was impossible
int writeZip(const std::string& archive, const std::vector<std::string>& files, std::string& why);

/// Extracts an archive that holds a "tomodoc.xml" into a folder that holds nothing else.
///
/// Refused, before anything of it is extracted: an archive without that entry; an entry whose name
/// is no plain file name, or that another entry has, too; an entry larger than the disk has free;
/// an archive that unpacks to more than 4 GiB and more than 200 times its size. An entry that is
/// longer than it says, or damaged, stops the extraction.
/// \param folder ending in "/"
/// \return 0, or 1 after telling the console's error stream where it stopped
int readZip(const std::string& archive, const std::string& folder);

/// Whether what the entries say about themselves is acceptable. Empty, or why not.
/// \param archiveBytes size of the archive; \param freeBytes on the disk
struct ZipEntry {
  std::string name;
  std::uint64_t bytes = 0;  ///< unpacked
};
std::string refusalOf(const std::vector<ZipEntry>& entries, std::uint64_t archiveBytes,
                      std::uint64_t freeBytes);

}  // namespace talvesk
