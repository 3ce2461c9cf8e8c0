#include "io/ProjectZip.h"

#include "base/Console.h"
#include "io/ProjectMembers.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <set>
#include <system_error>

#include <zip.h>

namespace talvesk {
namespace {

// The names that users of the program find in its log before the number of the line.
constexpr const char* kSaveSource = "..\\talvesk\\save_project";
constexpr const char* kLoadSource = "..\\talvesk\\load_project";

int failSaving(int line, const std::string& text) {
  console::logError(std::string("ERROR : ") + kSaveSource + ", line " + std::to_string(line) +
                    text);
  return 1;
}

int failLoading(int line, const std::string& text) {
  console::logError(std::string("ERROR : ") + kLoadSource + ", line " + std::to_string(line) +
                    text);
  return 1;
}

/// Forgets all changes: an archive that was not closed is not written.
struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, Discard>;

/// Of compression, 1 to 9.
constexpr zip_uint32_t kLevel = 1;

struct CloseEntry {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};
struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::uint64_t freeBytesOf(const std::string& folder) {
  std::error_code error;
  const auto space = std::filesystem::space(folder, error);
  return error ? std::numeric_limits<std::uint64_t>::max() : space.available;
}

bool isPlainName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
}

/// Copies one entry, not a byte more than it promised.
int extractEntry(zip_t* archive, std::uint64_t index, const ZipEntry& entry,
                 const std::string& folder) {
  console::log("extract [ " + entry.name + " ] in [ " + folder + " ]");
  const std::unique_ptr<zip_file_t, CloseEntry> source(zip_fopen_index(archive, index, 0));
  if (source == nullptr) return failLoading(__LINE__, " : read_ZIP() : error reading");
  const std::string destination = folder + entry.name;
  const std::size_t dot = entry.name.rfind('.');
  const bool isText = dot != std::string::npos && entry.name.substr(dot) == ".xml";
  // Exclusively: nothing that lies there already, a symbolic link least of all, is written to.
  std::unique_ptr<std::FILE, CloseFile> file(
      std::fopen(destination.c_str(), isText ? "wx" : "wbx"));
  if (file == nullptr) {
    return failLoading(__LINE__, " : read_ZIP() : error extracting " + destination);
  }
  std::array<char, 100> chunk;
  std::uint64_t copied = 0;
  for (;;) {
    const zip_int64_t got = zip_fread(source.get(), chunk.data(), chunk.size());
    if (got == 0) break;
    const auto bytes = static_cast<std::size_t>(got);
    if (got < 0 || bytes > entry.bytes - copied ||
        std::fwrite(chunk.data(), 1, bytes, file.get()) != bytes) {
      return failLoading(__LINE__, " : read_ZIP() : writing " + destination);
    }
    copied += bytes;
  }
  if (copied != entry.bytes) {
    return failLoading(__LINE__, " : read_ZIP() : writing " + destination);
  }
  if (std::fclose(file.release()) != 0) {
    return failLoading(__LINE__, " : read_ZIP() : impossible to close " + destination);
  }
  return 0;
}

/// Names and sizes of all entries.
int listEntries(zip_t* archive, std::vector<ZipEntry>& entries) {
  const zip_int64_t count = zip_get_num_entries(archive, 0);
  for (zip_int64_t i = 0; i < count; ++i) {
    zip_stat_t stat;
    zip_stat_init(&stat);
    constexpr zip_uint64_t kNeeded = ZIP_STAT_NAME | ZIP_STAT_SIZE;
    if (zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &stat) != 0 ||
        (stat.valid & kNeeded) != kNeeded) {
      console::logError(std::string("File ") + kLoadSource + ", Line " + std::to_string(__LINE__));
      return 1;
    }
    entries.push_back({stat.name, stat.size});
  }
  return 0;
}

bool holdsSurvey(zip_t* archive) {
  const zip_int64_t count = zip_get_num_entries(archive, 0);
  for (zip_int64_t i = 0; i < count; ++i) {
    const char* name = zip_get_name(archive, static_cast<zip_uint64_t>(i), 0);
    if (name != nullptr && std::string(name) == kSurveyMember) return true;
  }
  return false;
}

}  // namespace

std::string refusalOf(const std::vector<ZipEntry>& entries, std::uint64_t archiveBytes,
                      std::uint64_t freeBytes) {
  constexpr std::uint64_t kAlwaysAllowed = std::uint64_t{4} << 30;
  constexpr std::uint64_t kLargestRatio = 200;
  std::set<std::string> names;
  std::uint64_t total = 0;
  for (const ZipEntry& entry : entries) {
    if (!isPlainName(entry.name)) return "the name of entry \"" + entry.name + "\" is not allowed";
    if (!names.insert(entry.name).second) return "two entries are named \"" + entry.name + "\"";
    if (entry.bytes > freeBytes || total > freeBytes - entry.bytes) {
      return "the disk has no room for \"" + entry.name + "\"";
    }
    total += entry.bytes;
  }
  if (total > kAlwaysAllowed && total / kLargestRatio > archiveBytes) {
    return "it unpacks to " + std::to_string(total) + " bytes, far more than a project can";
  }
  return {};
}

int writeZip(const std::string& path, const std::vector<std::string>& files) {
  int error = 0;
  Archive archive(zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error));
  if (archive == nullptr || error != 0) {
    return failSaving(__LINE__, " : write_ZIP() : impossible to create " + path);
  }
  for (const std::string& file : files) {
    constexpr zip_int64_t kToTheEnd = -1;
    std::error_code unknown;
    zip_source_t* source = std::filesystem::is_regular_file(file, unknown)
                               ? zip_source_file(archive.get(), file.c_str(), 0, kToTheEnd)
                               : nullptr;
    if (source == nullptr) {
      return failSaving(__LINE__, " : write_ZIP() : impossible to tmp " + file);
    }
    const zip_int64_t index =
        zip_file_add(archive.get(), bareName(file).c_str(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
      zip_source_free(source);
      return failSaving(__LINE__, " : write_ZIP() : impossible to add " + file);
    }
    // The library would take its best level, which takes ten times as long on samples for one
    // part in a hundred.
    zip_set_file_compression(archive.get(), static_cast<zip_uint64_t>(index), ZIP_CM_DEFLATE,
                             kLevel);
  }
  // Only a close that succeeds takes the archive over.
  if (zip_close(archive.get()) != 0) {
    return failSaving(__LINE__, " : write_ZIP() : impossible to close " + path + ": " +
                                    zip_strerror(archive.get()));
  }
  archive.release();
  return 0;
}

int readZip(const std::string& path, const std::string& folder) {
  int error = 0;
  Archive archive(zip_open(path.c_str(), ZIP_RDONLY, &error));
  if (archive == nullptr) {
    return failLoading(__LINE__, ": read_ZIP() : couldn't open input file " + path);
  }
  if (zip_get_num_entries(archive.get(), 0) == 0) {
    return failLoading(__LINE__, " : read_ZIP() : empty " + path);
  }
  if (!holdsSurvey(archive.get())) {
    return failLoading(__LINE__,
                       std::string(" : read_ZIP() : no ") + kSurveyMember + " into " + path);
  }
  std::vector<ZipEntry> entries;
  if (listEntries(archive.get(), entries) != 0) return 1;
  std::error_code unknown;
  const std::string refusal =
      refusalOf(entries, std::filesystem::file_size(path, unknown), freeBytesOf(folder));
  if (!refusal.empty()) {
    return failLoading(__LINE__, " : read_ZIP() : error extracting " + path + ": " + refusal);
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (extractEntry(archive.get(), i, entries[i], folder) != 0) return 1;
  }
  if (zip_close(archive.get()) != 0) {
    return failLoading(__LINE__, " : read_ZIP() : impossible to close " + path);
  }
  archive.release();
  return 0;
}

}  // namespace talvesk
