#include "base/Log.h"

#include "base/CLocale.h"
#include "base/Console.h"

#include <array>
#include <ctime>

namespace talvesk {
namespace {

/// The local time; %X follows no user's locale, so that logs of all users look alike.
std::string timeStamp() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  std::array<char, 80> buffer{};
  const std::size_t length =
      strftime_l(buffer.data(), buffer.size(), "%Y-%m-%d.%X", &local, cLocale());
  return {buffer.data(), length};
}

}  // namespace

void Log::open(const std::string& message) {
  if (mPath.empty() || mFile.is_open()) return;
  mFile.clear();
  mFile.open(mPath, std::ios::out | std::ios::trunc);
  mFile.close();
  // Two windows share the file: each adds to its end, where the other may have emptied it.
  mFile.open(mPath, std::ios::out | std::ios::app);
  if (!mFile.is_open()) console::error() << "Impossible to open log file" << message << std::endl;
}

void Log::put(const std::string& stamp, const std::string& message, int level) {
  if (!mFile.is_open()) return;
  mFile << stamp << (level == 1 ? "ERROR : " : "") << message << std::endl;
}

void Log::write(const std::string& message, int level) {
  const std::lock_guard<std::mutex> line(mMutex);
  const std::string stamp = "[" + timeStamp() + "] ";
  open(message);
  (level == 1 ? console::error() : console::out()) << stamp << message << std::endl;
  put(stamp, message, level);
}

void Log::record(const std::string& message, int level) {
  const std::lock_guard<std::mutex> line(mMutex);
  open(message);
  put("[" + timeStamp() + "] ", message, level);
}

RecordedConsole::RecordedConsole(Log& log) {
  console::setLogger(
      [&log](const std::string& line, bool isError) { log.record(line, isError ? 1 : 0); });
}

RecordedConsole::~RecordedConsole() {
  console::setLogger({});
}

}  // namespace talvesk
