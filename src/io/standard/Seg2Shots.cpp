#include "io/standard/Seg2Shots.h"

#include "base/TextNumber.h"
#include "io/ShotWarnings.h"

#include <algorithm>
#include <map>
#include <utility>

namespace talvesk {
namespace {

/// The shot of a trace by what it is told apart by; empty where its header does not tell.
using Key = std::string (*)(const Seg2TraceHeader& header);

std::string numberKey(const Seg2TraceHeader& header) {
  constexpr std::size_t kLongest = 20;
  std::string number(header.shot.substr(0, kLongest));
  std::replace_if(
      number.begin(), number.end(), [](char c) { return c < '!' || c > '~'; }, '?');
  return number.empty() ? number : "shot " + number;
}

std::string sourceKey(const Seg2TraceHeader& header) {
  std::string key;
  for (std::size_t i = 0; i < header.source.numbers; ++i) {
    key += (key.empty() ? "source " : " ") + formatDouble(header.source.at[i], 12);
  }
  return key;
}

struct Group {
  std::string name;
  std::vector<std::size_t> traces;
};

/// In order of first appearance; none where a trace lacks the key.
std::vector<Group> groupsBy(Key key, const std::vector<Seg2Trace>& traces) {
  std::vector<Group> groups;
  std::map<std::string, std::size_t> known;
  for (std::size_t i = 0; i < traces.size(); ++i) {
    std::string name = key(traces[i].header);
    if (name.empty()) return {};
    const auto [at, isNew] = known.emplace(name, groups.size());
    if (isNew) groups.push_back({std::move(name), {}});
    groups[at->second].traces.push_back(i);
  }
  return groups;
}

bool haveOneReceiver(const std::vector<Seg2Trace>& traces) {
  return std::all_of(traces.begin(), traces.end(), [&](const Seg2Trace& trace) {
    return trace.header.receiver.numbers > 0 &&
           trace.record.receiver == traces.front().record.receiver;
  });
}

/// Shots of one trace each are shots into a single geophone. Along a line of geophones it is a
/// header that counts traces, or repeats the receiver's position.
bool areShots(const std::vector<Group>& groups, const std::vector<Seg2Trace>& traces) {
  return groups.size() > 1 && (groups.size() < traces.size() || haveOneReceiver(traces));
}

void warnOfChannels(const std::vector<Seg2Number>& channels, ShotFileData& data) {
  const bool told = std::all_of(channels.begin(), channels.end(),
                                [](const Seg2Number& channel) { return channel.value; });
  const auto descends = [](const Seg2Number& a, const Seg2Number& b) {
    return *b.value <= *a.value;
  };
  if (!told || std::adjacent_find(channels.begin(), channels.end(), descends) == channels.end()) {
    return;
  }
  data.warnings.push_back(
      Message::tr("its channel numbers do not ascend; the traces stay in the order of the file"));
}

StandardReading::Shot shotOf(const Group& group, std::vector<Seg2Trace>& traces) {
  StandardReading::Shot shot;
  shot.name = group.name;
  shot.data.format = "seg2";
  shot.data.traces.reserve(group.traces.size());
  std::vector<Seg2Number> channels;
  for (const std::size_t trace : group.traces) {
    channels.push_back(traces[trace].header.channel);
    shot.data.traces.push_back(std::move(traces[trace].record));
  }
  warnOfTraces(shot.data, 0, 0);
  warnOfChannels(channels, shot.data);
  return shot;
}

Group everything(std::size_t traces) {
  Group group;
  for (std::size_t i = 0; i < traces; ++i) group.traces.push_back(i);
  return group;
}

}  // namespace

void dealToShots(std::vector<Seg2Trace> traces, StandardReading& reading) {
  const std::vector<Group> numbered = groupsBy(numberKey, traces);
  const std::vector<Group> placed = groupsBy(sourceKey, traces);
  std::vector<Group> groups;
  if (areShots(numbered, traces)) {
    groups = numbered;
    reading.split = "SHOT_SEQUENCE_NUMBER";
  } else if (areShots(placed, traces)) {
    groups = placed;
    reading.split = "SOURCE_LOCATION";
  } else {
    groups = {everything(traces.size())};
  }
  if (reading.split.empty() && placed.size() > 1) {
    reading.warnings.push_back(
        Message::tr("every trace tells a source position of its own; the file was read as one "
                    "shot, at the first of them"));
  }
  for (const Group& group : groups) reading.shots.push_back(shotOf(group, traces));
}

}  // namespace talvesk
