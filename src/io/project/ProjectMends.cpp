#include "io/project/ProjectMends.h"

#include "base/Fingerprint.h"
#include "base/IndexRanges.h"
#include "io/EntryName.h"
#include "io/SegyFile.h"
#include "io/project/ProjectAssembly.h"
#include "model/MendedTraces.h"
#include "model/Mending.h"
#include "model/PickLimits.h"
#include "model/Recordings.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace talvesk {
namespace {

std::uint64_t fingerprintOf(const TraceSet& traces) {
  Fingerprint print;
  for (const Trace& trace : traces) {
    for (const auto* samples : {&trace.samples, &trace.samplesDX, &trace.samplesSX}) {
      print.take(std::uint64_t{samples->size()});
      for (const double sample : *samples) print.take(sample);
    }
  }
  return print.value();
}

bool sameSamples(const TraceSet& a, const TraceSet& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Trace& x, const Trace& y) { return talvesk::sameSamples(x, y); });
}

/// What the record of every channel is but for its samples, from the mended traces.
TraceSet channelsOf(const TraceSet& mended, const ShotMends& mends) {
  TraceSet channels;
  for (std::size_t c = 0; c < mended.size(); ++c) {
    Trace& channel = channels.emplace_back(mended[channelAt(mends, c, mended.size())]);
    channel.sourcePosition = mended[c].sourcePosition;
    channel.receiverPosition = mended[c].receiverPosition;
    channel.filtered = {};
  }
  return channels;
}

/// The samples of channels from their shot file in the folder, read as the first of a program.
bool readOriginals(const Recordings& recordings, std::size_t set, const std::string& folder,
                   TraceSet& channels) {
  SetFiles names =
      filesOfSet(recordings.filenames, recordings.filenames_DX, recordings.filenames_SX, set);
  for (std::string* name : {&names.main, &names.dx, &names.sx}) *name = bareName(*name);
  SegyState state;
  TraceSet read;
  Message why;
  if (names.none() || !readSetFiles(folder, names, state, read, why)) return false;
  if (read.size() != channels.size()) return false;
  for (std::size_t c = 0; c < read.size(); ++c) {
    dropFirstSamples(read[c], channels[c].droppedSamples);
    channels[c].samples = read[c].samples;
    channels[c].samplesDX = read[c].samplesDX;
    channels[c].samplesSX = read[c].samplesSX;
  }
  return true;
}

std::vector<StoredOriginal> originalsToStore(const Recordings& recordings, std::size_t set,
                                             const std::string& folder) {
  const TraceSet& originals = recordings.originals[set];
  TraceSet read = originals;
  const bool given = !recordings.mends[set].changesSamples() ||
                     (readOriginals(recordings, set, folder, read) && sameSamples(read, originals));
  std::vector<StoredOriginal> stored;
  if (given) return stored;
  for (const Trace& trace : originals) {
    stored.push_back({trace.samples, trace.samplesDX, trace.samplesSX});
  }
  return stored;
}

/// The traces of a set as they were recorded; empty when they cannot be told.
TraceSet originalsOf(const Recordings& recordings, const StoredMends& stored,
                     const std::string& folder) {
  TraceSet channels = channelsOf(recordings.traceSets[stored.set], stored.mends);
  if (!stored.mends.changesSamples()) return channels;
  if (stored.originals.empty()) {
    return readOriginals(recordings, stored.set, folder, channels) ? channels : TraceSet();
  }
  if (stored.originals.size() != channels.size()) return {};
  for (std::size_t c = 0; c < channels.size(); ++c) {
    channels[c].samples = stored.originals[c].TAB;
    channels[c].samplesDX = stored.originals[c].TAB_DX;
    channels[c].samplesSX = stored.originals[c].TAB_SX;
  }
  return channels;
}

bool canBe(const std::vector<RecordedPick>& picks, std::size_t channels) {
  const auto sound = [channels](const RecordedPick& pick) {
    return pick.channel < channels && std::fabs(pick.time) <= 2.0 * kLatestPick;
  };
  const auto notAscending = [](const RecordedPick& a, const RecordedPick& b) {
    return a.channel >= b.channel;
  };
  return std::all_of(picks.begin(), picks.end(), sound) &&
         std::adjacent_find(picks.begin(), picks.end(), notAscending) == picks.end();
}

bool take(StoredMends& stored, const std::string& folder, Recordings& recordings) {
  const std::size_t set = stored.set;
  if (set >= recordings.traceSets.size() || recordings.mends[set].any() || !stored.mends.any() ||
      recordings.traceSets[set].empty() ||
      stored.samples != fingerprintOf(recordings.traceSets[set]) ||
      !canBe(stored.mends.picks, recordings.traceSets[set].size())) {
    return false;
  }
  recordings.originals[set] = originalsOf(recordings, stored, folder);
  if (recordings.originals[set].empty()) return false;
  recordings.mends[set] = std::move(stored.mends);
  return true;
}

bool fits(const Recordings& recordings, std::size_t set) {
  return checkMends(recordings, set, recordings.mends[set]).ok() &&
         sameSamples(mendedTraces(recordings, set), recordings.traceSets[set]);
}

/// Until all fit that are left: a stack may hang on others.
void leaveOutWhatDoesNotFit(Recordings& recordings, std::set<std::size_t>& refused) {
  for (bool again = true; std::exchange(again, false);) {
    for (std::size_t set = 0; set < recordings.mends.size(); ++set) {
      if (!recordings.mends[set].any() || fits(recordings, set)) continue;
      recordings.mends[set] = {};
      recordings.originals[set] = {};
      refused.insert(set);
      again = true;
    }
  }
}

}  // namespace

std::optional<MendsMember> mendsOf(const TomoDocument& document, const std::string& folder) {
  const Recordings& recordings = *document.recordings;
  MendsMember member;
  for (std::size_t set = 0; set < recordings.mends.size(); ++set) {
    if (!recordings.mends[set].any()) continue;
    member.shots.push_back({static_cast<std::uint32_t>(set),
                            fingerprintOf(recordings.traceSets[set]), recordings.mends[set],
                            originalsToStore(recordings, set, folder)});
  }
  return member.shots.empty() ? std::nullopt : std::make_optional(std::move(member));
}

void installMends(MendsMember member, const std::string& folder, TomoDocument& document,
                  std::vector<Message>& repairs) {
  std::set<std::size_t> refused;
  TomoDocument next = document;
  Recordings& recordings = next.recordings.edit();
  recordings.mends.assign(recordings.traceSets.size(), {});
  recordings.originals.assign(recordings.traceSets.size(), {});
  for (StoredMends& stored : member.shots) {
    if (!take(stored, folder, recordings)) refused.insert(stored.set);
  }
  leaveOutWhatDoesNotFit(recordings, refused);
  dropEmptyEnds(recordings);
  const std::size_t sets = recordings.mends.size();
  // Another program may have picked where there is no place for picks.
  for (std::size_t set = 0; set < sets; ++set) remakeMended(set, next, &repairs);
  document = std::move(next);
  if (refused.empty()) return;
  repairs.push_back(Message::tr("mends.xml: the mends of these shots are not those of their "
                                "traces, and are left out; traces and picks stay as they are: %1")
                        .arg(ranges({refused.begin(), refused.end()})));
}

}  // namespace talvesk
