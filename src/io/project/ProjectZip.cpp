#include "io/project/ProjectZip.h"

#include "base/Console.h"
#include "base/FileReplacement.h"
#include "base/PlainText.h"
#include "io/EntryName.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ZipSink.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <set>
#include <system_error>
#include <utility>

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

/// Bytes of all files of a project together.
constexpr std::uint64_t kMostUnpacked = std::uint64_t{4} << 30;

struct CloseEntry {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};
struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string textOf(int libraryError) {
  zip_error_t error;
  zip_error_init_with_code(&error, libraryError);
  std::string text = zip_error_strerror(&error);
  zip_error_fini(&error);
  return text;
}

/// Bytes that the disk of a folder can take and still have some for everybody else.
std::uint64_t roomIn(const std::string& folder) {
  std::error_code error;
  const auto space = std::filesystem::space(folder, error);
  return error ? std::numeric_limits<std::uint64_t>::max() : space.available - space.available / 20;
}

/// A number of bytes as people say it.
Message sizeText(std::uint64_t bytes) {
  constexpr std::uint64_t kKilo = 1000;
  constexpr std::uint64_t kMega = 1000 * kKilo;
  if (bytes < kKilo) return Message::tr("%1 bytes").arg(bytes);
  return bytes < kMega ? Message::tr("%1 kB").arg(bytes / kKilo)
                       : Message::tr("%1 MB").arg(bytes / kMega);
}

Message tooMuch(std::uint64_t archiveBytes) {
  return Message::tr("it unpacks to more than %1, which no project of %2 does")
      .arg(sizeText(unpackedLimit(archiveBytes)))
      .arg(sizeText(archiveBytes));
}

Message noRoom(std::uint64_t bytes, std::uint64_t room) {
  return Message::tr("it unpacks to %1 or more, and the disk has room for %2")
      .arg(sizeText(bytes))
      .arg(sizeText(room));
}

/// Why a file could not be written; to be called before anything else goes wrong.
Message notWritten(const std::string& name) {
  return Message::tr("%1 cannot be extracted: %2")
      .arg(quoted(name))
      .arg(std::generic_category().message(errno));
}

/// Entries on their way from an archive to the folder.
class Extraction {
 public:
  /// \param why out: the reason of the failure
  Extraction(zip_t* archive, std::uint64_t archiveBytes, std::string folder, Message& why)
      : mArchive(archive), mArchiveBytes(archiveBytes), mFolder(std::move(folder)), mWhy(why) {}

  /// 0, or 1 after telling the console.
  int extract(std::uint64_t index, const ZipEntry& entry);

 private:
  int fail(int line, const std::string& text, const Message& why) {
    mWhy = why;
    return failLoading(line, text);
  }
  int copy(zip_file_t* source, std::FILE* target, const ZipEntry& entry);

  zip_t* mArchive;
  std::uint64_t mArchiveBytes;
  std::uint64_t mWritten = 0;  ///< of all entries
  std::string mFolder;
  Message& mWhy;
};

int Extraction::extract(std::uint64_t index, const ZipEntry& entry) {
  console::log("extract [ " + entry.name + " ] in [ " + mFolder + " ]");
  const std::unique_ptr<zip_file_t, CloseEntry> source(zip_fopen_index(mArchive, index, 0));
  if (source == nullptr) {
    return fail(__LINE__, " : read_ZIP() : error reading",
                Message::tr("%1 in it cannot be read: %2")
                    .arg(quoted(entry.name))
                    .arg(zip_strerror(mArchive)));
  }
  const std::string destination = mFolder + entry.name;
  const std::size_t dot = entry.name.rfind('.');
  const bool isText = dot != std::string::npos && entry.name.substr(dot) == ".xml";
  // Exclusively: nothing that lies there already, a symbolic link least of all, is written to.
  std::unique_ptr<std::FILE, CloseFile> file(
      std::fopen(destination.c_str(), isText ? "wx" : "wbx"));
  if (file == nullptr) {
    return fail(__LINE__, " : read_ZIP() : error extracting " + destination,
                notWritten(entry.name));
  }
  if (copy(source.get(), file.get(), entry) != 0) return 1;
  if (std::fclose(file.release()) != 0) {
    return fail(__LINE__, " : read_ZIP() : impossible to close " + destination,
                notWritten(entry.name));
  }
  return 0;
}

int Extraction::copy(zip_file_t* source, std::FILE* target, const ZipEntry& entry) {
  const std::string writing = " : read_ZIP() : writing " + mFolder + entry.name;
  const std::uint64_t limit = unpackedLimit(mArchiveBytes);
  const std::uint64_t before = mWritten;
  const std::uint64_t room = roomIn(mFolder);  // others may have written meanwhile
  std::array<char, 100> chunk;
  for (;;) {
    const zip_int64_t got = zip_fread(source, chunk.data(), chunk.size());
    if (got < 0) {
      const char* reason = zip_error_strerror(zip_file_get_error(source));
      return fail(__LINE__, writing,
                  Message::tr("%1 in it is damaged: %2").arg(quoted(entry.name)).arg(reason));
    }
    if (got == 0) break;
    const auto bytes = static_cast<std::size_t>(got);
    if (bytes > limit - mWritten) return fail(__LINE__, writing, tooMuch(mArchiveBytes));
    if (bytes > room - (mWritten - before)) {
      return fail(__LINE__, writing, noRoom(mWritten + bytes, before + room));
    }
    if (std::fwrite(chunk.data(), 1, bytes, target) != bytes) {
      return fail(__LINE__, writing, notWritten(entry.name));
    }
    mWritten += bytes;
  }
  if (mWritten - before == entry.bytes) return 0;
  return fail(__LINE__, writing,
              Message::tr("%1 in it is not as long as it says").arg(quoted(entry.name)));
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

std::uint64_t bytesOf(const std::vector<std::string>& files) {
  std::uint64_t bytes = 0;
  for (const std::string& file : files) {
    std::error_code error;
    const std::uint64_t size = std::filesystem::file_size(file, error);
    if (!error) bytes += size;
  }
  return bytes;
}

Status openForWriting(const std::string& path, FileReplacement& file, Archive& archive) {
  if (Status status = file.begin(path); !status.ok()) return status;
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* sink = zipSinkInto(file, &error);
  if (sink != nullptr) {
    archive.reset(zip_open_from_source(sink, ZIP_CREATE | ZIP_TRUNCATE, &error));
    if (archive == nullptr) zip_source_free(sink);
  }
  Status status;
  if (archive == nullptr) status = Status::failure(zip_error_strerror(&error));
  zip_error_fini(&error);
  return status;
}

/// 0, or 1 after telling what was impossible.
/// \param method of compression
int addFile(zip_t* archive, const std::string& file, zip_int32_t method) {
  constexpr zip_int64_t kToTheEnd = -1;
  std::error_code unknown;
  zip_source_t* source = std::filesystem::is_regular_file(file, unknown)
                             ? zip_source_file(archive, file.c_str(), 0, kToTheEnd)
                             : nullptr;
  if (source == nullptr) {
    return failSaving(__LINE__, " : write_ZIP() : impossible to tmp " + file);
  }
  const zip_int64_t index = zip_file_add(archive, bareName(file).c_str(), source, ZIP_FL_ENC_UTF_8);
  if (index < 0) {
    zip_source_free(source);
    return failSaving(__LINE__, " : write_ZIP() : impossible to add " + file);
  }
  // The library would take its best level, which takes ten times as long on samples for one
  // part in a hundred.
  zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), method, kLevel);
  return 0;
}

/// Packs the files into what is to replace the archive.
int pack(const std::string& path, const std::vector<std::string>& files, zip_int32_t method,
         FileReplacement& replacement, Message& why) {
  Archive archive;
  if (Status status = openForWriting(path, replacement, archive); !status.ok()) {
    why = status.text();
    return failSaving(__LINE__, " : write_ZIP() : impossible to create " + path);
  }
  for (const std::string& file : files) {
    if (addFile(archive.get(), file, method) == 0) continue;
    why = Message::tr("The file %1 cannot be added to the archive.").arg(file);
    return 1;
  }
  // Only a close that succeeds takes the archive over.
  if (zip_close(archive.get()) != 0) {
    const std::string reason = zip_strerror(archive.get());
    why = Message::tr("The archive %1 cannot be written: %2.").arg(path).arg(reason);
    return failSaving(__LINE__, " : write_ZIP() : impossible to close " + path + ": " + reason);
  }
  static_cast<void>(archive.release());  // closing has freed it
  return 0;
}

int commit(const std::string& path, FileReplacement& replacement, Message& why) {
  const Status replaced = replacement.commit();
  if (replaced.ok()) return 0;
  why = replaced.text();
  return failSaving(__LINE__, " : write_ZIP() : impossible to close " + path);
}

}  // namespace

Message refusalOf(const std::vector<ZipEntry>& entries, std::uint64_t archiveBytes,
                  std::uint64_t room) {
  constexpr std::size_t kMostEntries = 65535;
  if (entries.size() > kMostEntries) {
    return Message::tr("it holds %1 files, more than %2").arg(entries.size()).arg(kMostEntries);
  }
  std::set<std::string> names;
  const std::uint64_t limit = unpackedLimit(archiveBytes);
  std::uint64_t total = 0;
  for (const ZipEntry& entry : entries) {
    if (!isEntryName(entry.name)) {
      return Message::tr("%1 in it is no name of a file without a folder").arg(quoted(entry.name));
    }
    if (!names.insert(entry.name).second) {
      return Message::tr("two files in it are called %1").arg(quoted(entry.name));
    }
    if (entry.bytes > limit - total) return tooMuch(archiveBytes);
    total += entry.bytes;
  }
  if (total <= room) return {};
  return noRoom(total, room);
}

std::uint64_t unpackedLimit(std::uint64_t archiveBytes) {
  constexpr std::uint64_t kAlwaysAllowed = 10'000'000;
  constexpr std::uint64_t kLargestRatio = 200;
  if (archiveBytes >= kMostUnpacked / kLargestRatio) return kMostUnpacked;
  return std::max(kAlwaysAllowed, kLargestRatio * archiveBytes);
}

int writeZip(const std::string& path, const std::vector<std::string>& files, Message& why) {
  const std::uint64_t total = bytesOf(files);
  if (total > kMostUnpacked) {
    why = Message::tr("The files of the project are %1, more than the %2 that can be opened again.")
              .arg(sizeText(total))
              .arg(sizeText(kMostUnpacked));
    return failSaving(__LINE__,
                      " : write_ZIP() : impossible to create " + path + ": " + why.english());
  }
  FileReplacement packed;
  if (pack(path, files, ZIP_CM_DEFLATE, packed, why) != 0) return 1;
  // Records that are nothing but zeros may shrink to less than loading takes for a project's.
  if (total <= unpackedLimit(packed.size())) return commit(path, packed, why);
  FileReplacement stored;
  if (pack(path, files, ZIP_CM_STORE, stored, why) != 0) return 1;
  return commit(path, stored, why);
}

int readZip(const std::string& path, const std::string& folder, Message& why) {
  int error = 0;
  Archive archive(zip_open(path.c_str(), ZIP_RDONLY, &error));
  if (archive == nullptr) {
    why = Message::tr("it is no archive of a project, or damaged: %1").arg(textOf(error));
    return failLoading(__LINE__, ": read_ZIP() : couldn't open input file " + path);
  }
  if (zip_get_num_entries(archive.get(), 0) == 0) {
    why = Message::tr("there is nothing in it");
    return failLoading(__LINE__, " : read_ZIP() : empty " + path);
  }
  if (!holdsSurvey(archive.get())) {
    why = Message::tr("it is no archive of a project: there is no %1 in it").arg(kSurveyMember);
    return failLoading(__LINE__,
                       std::string(" : read_ZIP() : no ") + kSurveyMember + " into " + path);
  }
  std::vector<ZipEntry> entries;
  if (listEntries(archive.get(), entries) != 0) {
    why = Message::tr("its list of files is damaged");
    return 1;
  }
  std::error_code unknown;
  const std::uint64_t archiveBytes = std::filesystem::file_size(path, unknown);
  why = refusalOf(entries, archiveBytes, roomIn(folder));
  if (!why.empty()) {
    return failLoading(__LINE__, " : read_ZIP() : error extracting " + path + ": " + why.english());
  }
  Extraction extraction(archive.get(), archiveBytes, folder, why);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (extraction.extract(i, entries[i]) != 0) return 1;
  }
  if (zip_close(archive.get()) != 0) {
    why = Message::tr("it cannot be closed: %1").arg(zip_strerror(archive.get()));
    return failLoading(__LINE__, " : read_ZIP() : impossible to close " + path);
  }
  static_cast<void>(archive.release());  // closing has freed it
  return 0;
}

}  // namespace talvesk
