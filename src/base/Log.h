#pragma once

#include <fstream>
#include <mutex>
#include <string>

namespace talvesk {

/// The application log: every message goes to the console and, when a path was given, to the log
/// file, each line headed by the local time. Any number of threads may write to it, line by line;
/// moving it is for the thread that owns it, while no other writes.
class Log {
 public:
  /// A log without a file: messages reach the console only.
  Log() = default;
  /// The file is opened, and emptied, by the first message.
  explicit Log(std::string path) : mPath(std::move(path)) {}
  Log(Log&& other) noexcept : mPath(std::move(other.mPath)), mFile(std::move(other.mFile)) {}
  Log& operator=(Log&& other) noexcept {
    mPath = std::move(other.mPath);
    mFile = std::move(other.mFile);
    return *this;
  }

  /// \param level 0 information (standard output), 1 error (standard error). Only the file's line
  /// carries the word "ERROR : "; the console line does not.
  void write(const std::string& message, int level = 0);
  /// The line of write() in the file only: the console has the message already.
  void record(const std::string& message, int level = 0);

  const std::string& path() const { return mPath; }

 private:
  void open(const std::string& message);
  void put(const std::string& stamp, const std::string& message, int level);

  std::string mPath;
  std::ofstream mFile;
  std::mutex mMutex;
};

/// While it lives, the lines of console::log() and console::logError() are recorded in a log, which
/// must outlive it. Made and ended while no other thread writes such lines.
class RecordedConsole {
 public:
  explicit RecordedConsole(Log& log);
  ~RecordedConsole();
  RecordedConsole(const RecordedConsole&) = delete;
  RecordedConsole& operator=(const RecordedConsole&) = delete;
};

}  // namespace talvesk
