#include "io/FileFormats.h"

#include "base/Console.h"
#include "io/CsvPickFile.h"
#include "io/OtteFile.h"
#include "io/PickTableFile.h"
#include "io/Seg2File.h"
#include "io/SegyFile.h"
#include "io/TxCurveFile.h"
#include "io/UnifiedDataFile.h"

#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

Status readSeg2WithoutState(std::string_view bytes, SegyState&, ShotFileData& data) {
  return readSeg2(bytes, data);
}

std::optional<Refusal> readOtteAndTellVersion(std::string_view bytes, TravelTimeData& data) {
  std::string version;
  auto refusal = readOtte(bytes, version, data);
  if (!version.empty()) console::out() << version << std::endl;
  return refusal;
}

std::string inLowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

/// With its dot; empty where the name of the file has none.
std::string_view suffixOf(std::string_view path) {
  const std::size_t dot = path.find_last_of("./\\");
  return dot == std::string_view::npos || path[dot] != '.' ? std::string_view{} : path.substr(dot);
}

bool hasSuffix(const FileFormat& format, std::string_view suffix) {
  return std::find(format.suffixes.begin(), format.suffixes.end(), suffix) != format.suffixes.end();
}

template <typename Formats>
auto formatWith(const Formats& formats, std::string_view suffix) {
  const auto found = std::find_if(formats.begin(), formats.end(), [&](const FileFormat& format) {
    return hasSuffix(format, suffix);
  });
  return found == formats.end() ? nullptr : &*found;
}

template <typename Formats>
std::vector<const char*> suffixesOf(const Formats& formats) {
  std::vector<const char*> all;
  for (const FileFormat& format : formats) {
    all.insert(all.end(), format.suffixes.begin(), format.suffixes.end());
  }
  return all;
}

template <typename Formats>
std::string sentenceOf(const Formats& formats) {
  std::vector<std::string> told;
  std::string text;
  for (const char* suffix : suffixesOf(formats)) {
    std::string lower = inLowerCase(suffix);
    if (std::find(told.begin(), told.end(), lower) != told.end()) continue;
    text += (text.empty() ? "" : ", ") + lower;
    told.push_back(std::move(lower));
  }
  return text;
}

Message filterLine(const Message& filter, const std::vector<const char*>& suffixes) {
  std::string patterns;
  for (const char* suffix : suffixes) {
    patterns += std::string(patterns.empty() ? "*" : " *") + suffix;
  }
  return Message(filter).arg(patterns);
}

template <typename Formats>
std::vector<Message> filtersOfAll(const Message& together, const Formats& formats) {
  std::vector<Message> lines = {filterLine(together, suffixesOf(formats))};
  for (const FileFormat& format : formats) {
    lines.push_back(filterLine(format.filter, format.suffixes));
  }
  lines.push_back(Message::tr("All Files (*)"));
  return lines;
}

}  // namespace

const std::vector<ShotFormat>& shotFormats() {
  static const std::vector<ShotFormat> kFormats = {
      {{"seg2", {".sg2", ".dat", ".seg2"}, Message::tr("SEG2 format (%1)")},
       "SEG-2",
       readSeg2WithoutState},
      {{"segy", {".sgy", ".segy"}, Message::tr("SEGY format (%1)")}, "SEG-Y", readSegy},
      {{"su", {".su"}, Message::tr("SU format (%1)")}, "SU", readSu}};
  return kFormats;
}

const std::vector<TravelTimeFormat>& travelTimeFormats() {
  static const std::vector<TravelTimeFormat> kFormats = {
      {{"otte", {".otte"}, Message::tr("Open Travel Time Exchange format (%1)")},
       readOtteAndTellVersion,
       formatOtte},
      {{"txt", {".txt"}, Message::tr("T-x curves (%1)")}, readTxCurves, nullptr},
      {{"xyz", {".xyz", ".XYZ"}, Message::tr("Sectioned pick table (%1)")}, readPickTable, nullptr},
      {{"csv", {".csv", ".CSV"}, Message::tr("Pick table (%1)")}, readCsvPicks, nullptr},
      {{"sgt", {".sgt"}, Message::tr("Unified data format (%1)")},
       readUnifiedData,
       formatUnifiedData}};
  return kFormats;
}

const FileFormat& projectFormat() {
  static const FileFormat kFormat = {"tvsk", {".tvsk"}, Message::tr("Talvesk projects (%1)")};
  return kFormat;
}

const TravelTimeFormat& exchangeFormat() {
  return travelTimeFormats().front();
}

const TravelTimeFormat& writtenFormatOf(std::string_view path) {
  const TravelTimeFormat* format = formatWith(travelTimeFormats(), inLowerCase(suffixOf(path)));
  return format != nullptr && format->write != nullptr ? *format : exchangeFormat();
}

const ShotFormat* shotFormatOf(std::string_view path) {
  return formatWith(shotFormats(), inLowerCase(suffixOf(path)));
}

const TravelTimeFormat* travelTimeFormatOf(std::string_view path) {
  return formatWith(travelTimeFormats(), suffixOf(path));
}

const ShotFormat* shotFormatNamed(std::string_view id) {
  const std::vector<ShotFormat>& formats = shotFormats();
  const auto found = std::find_if(formats.begin(), formats.end(),
                                  [&](const ShotFormat& format) { return format.id == id; });
  return found == formats.end() ? nullptr : &*found;
}

bool hasSuffixOf(const FileFormat& format, std::string_view path) {
  const std::string_view suffix = suffixOf(path);
  return suffix.size() < path.size() && hasSuffix(format, inLowerCase(suffix));
}

bool looksLikeTravelTimes(std::string_view path) {
  return formatWith(travelTimeFormats(), inLowerCase(suffixOf(path))) != nullptr;
}

std::vector<Message> shotFileFilters() {
  return filtersOfAll(Message::tr("Seismic files (%1)"), shotFormats());
}

std::vector<Message> travelTimeFileFilters() {
  return filtersOfAll(Message::tr("Travel times (%1)"), travelTimeFormats());
}

std::vector<Message> writtenTravelTimeFilters() {
  std::vector<Message> lines;
  for (const TravelTimeFormat& format : travelTimeFormats()) {
    if (format.write != nullptr) lines.push_back(filterLine(format.filter, format.suffixes));
  }
  lines.push_back(Message::tr("All Files (*)"));
  return lines;
}

std::vector<Message> filtersOf(const FileFormat& format) {
  return {filterLine(format.filter, format.suffixes), Message::tr("All Files (*)")};
}

std::string shotSuffixes() {
  return sentenceOf(shotFormats());
}

std::string travelTimeSuffixes() {
  return sentenceOf(travelTimeFormats());
}

std::vector<std::string> writtenTravelTimeSuffixes() {
  std::vector<std::string> suffixes;
  for (const TravelTimeFormat& format : travelTimeFormats()) {
    if (format.write == nullptr) continue;
    suffixes.insert(suffixes.end(), format.suffixes.begin(), format.suffixes.end());
  }
  return suffixes;
}

}  // namespace talvesk
