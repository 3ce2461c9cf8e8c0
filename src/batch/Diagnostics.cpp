#include "batch/Diagnostics.h"

#include "base/Console.h"
#include "base/SampleStore.h"
#include "base/StandardStreams.h"
#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"

#include <cmath>
#include <iostream>
#include <sstream>

namespace talvesk {

Channels openChannels(const std::vector<OutputFile>& outputs, bool quiet, bool verbose) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  Channels channels;
  channels.summary = &console::nowhere();
  channels.progress = ProgressStyle::kSilent;
  if (quiet) return channels;
  const bool taken = writesToOutput(outputs);
  channels.summary = taken ? &std::cerr : &std::cout;
  channels.progress = errorsAreOnTerminal() ? ProgressStyle::kBar : ProgressStyle::kLines;
  if (!verbose) return channels;
  console::setOut(*channels.summary);
  console::setError(std::cerr);
  const bool talkOnTerminal = taken ? errorsAreOnTerminal() : outputIsTerminal();
  if (talkOnTerminal) channels.progress = ProgressStyle::kLines;
  return channels;
}

std::string shortNumber(double value) {
  return std::fabs(value) < 99.5 ? formatDouble(value, 2) : formatDouble(std::round(value), 17);
}

void warnOfLosses(const std::string& path, const std::vector<Message>& losses) {
  std::string clauses;
  for (const std::string& loss : losses) clauses += (clauses.empty() ? "" : "; ") + loss;
  warn(path + ": " + clauses + ". Add --reader standard to read it by the standard of its format");
}

void tellSamplesOnDisk(std::ostream& summary) {
  const SampleStore& store = SampleStore::instance();
  constexpr std::size_t kMega = 1000000;
  const SampleStore::Usage usage = store.usage();
  if (usage.disk > 0) {
    summary << "Samples: " << (usage.disk + kMega - 1) / kMega << " MB on the disk, "
            << (usage.memory + kMega - 1) / kMega << " MB in memory\n";
  }
  const Message failure = store.failure();
  if (!failure.empty()) warn("samples are kept in memory: " + failure.english());
}

Status readPicks(const std::string& path, const TravelTimeReading& reading, TravelTimeData& data) {
  Status status = readTravelTimes(path, data, reading);
  for (const std::string& warning : data.warnings) warn(path + ": " + warning);
  if (status.ok() || reading.timeUnit || !asksForTimeUnit(path)) return status;
  return Status::failure(status.message() + "; say it with --time-unit");
}

Status writePicks(const std::string& path, const TomoDocument& document) {
  std::ostringstream remarks;
  std::ostream& before = console::error();
  console::setError(remarks);
  const Status status = writeTravelTimes(path, document);
  console::setError(before);
  if (status.ok() && !remarks.str().empty()) warn(remarks.str());
  return status;
}

Status writePicksWithErrors(const std::string& path, const TomoDocument& document) {
  std::vector<Message> losses;
  const Status status = writeTravelTimes(path, travelTimesOf(document), losses);
  for (const Message& loss : losses) warn(path + ": " + loss.english());
  return status;
}

}  // namespace talvesk
