#include "batch/BlowPairRecords.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/OptionParsing.h"
#include "batch/OutputFiles.h"
#include "io/RecordExport.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <ostream>

namespace talvesk {
namespace {

constexpr const char* kOption = "--blow-pair";
constexpr const char* kGroup = "Two blows";
constexpr int kMostShots = 1000000;

/// "3", or of an S-wave pair "3a" and "3b".
Blow readBlow(std::string text) {
  Blow blow;
  if (!text.empty() && (text.back() == 'a' || text.back() == 'b')) {
    blow.part = text.back() == 'a' ? Blow::Part::kDX : Blow::Part::kSX;
    text.pop_back();
  }
  blow.shot = static_cast<std::size_t>(numberWithin<int>(kOption, text, {1, kMostShots}) - 1);
  return blow;
}

void readPair(const std::string& text, BlowPairRequest& pair) {
  const std::vector<std::string_view> parts = splitFields(text, ',');
  if (parts.size() != 2 || text.back() == ',') {  // an empty last field is none
    throw CLI::ValidationError(kOption, "'" + text + "' does not name two shots: 3,5");
  }
  pair.first = readBlow(std::string(parts[0]));
  pair.second = readBlow(std::string(parts[1]));
  if (pair.first == pair.second) {
    throw CLI::ValidationError(kOption, "'" + text + "' names one recording twice");
  }
}

std::string nameOf(const Blow& blow) {
  const std::string number = std::to_string(blow.shot + 1);
  const std::string letter = blow.part == Blow::Part::kDX   ? "a"
                             : blow.part == Blow::Part::kSX ? "b"
                                                            : "";
  return (number.size() < 2 ? "0" : "") + number + letter;
}

/// A name without its letter would be taken for whichever of a pair came first.
Status checkBlow(const TomoDocument& document, const Blow& blow) {
  const std::vector<Blow> blows = blowsOf(document);
  if (std::find(blows.begin(), blows.end(), blow) != blows.end()) return {};
  const std::string number = std::to_string(blow.shot + 1);
  const std::string shot = std::string(kOption) + ": shot " + number;
  if (blow.shot >= document.ttArray.size()) {
    return Status::failure(shot + ": there are " + std::to_string(document.ttArray.size()) +
                           " shots");
  }
  const auto same = [&](const Blow& other) { return other.shot == blow.shot; };
  const auto other = std::find_if(blows.begin(), blows.end(), same);
  if (other == blows.end()) return Status::failure(shot + " has no samples");
  return Status::failure(other->part == Blow::Part::kWhole
                             ? shot + " is no S-wave pair; leave the letter out"
                             : shot + " is an S-wave pair; its blows are " + number + "a and " +
                                   number + "b");
}

struct Wanted {
  BlowPair::Set set;
  std::string path;
};

std::vector<Wanted> wantedOf(const RecordsOptions& options) {
  const BlowPairRequest& pair = *options.pair;
  const std::string end = nameOf(pair.first) + "-" + nameOf(pair.second) +
                          (options.format == RecordFormat::kSegy ? ".sgy" : ".sg2");
  std::vector<Wanted> wanted;
  const std::string folder = options.folder + "/";
  if (pair.difference) wanted.push_back({BlowPair::kDifference, folder + "difference" + end});
  if (pair.sum) wanted.push_back({BlowPair::kSum, folder + "sum" + end});
  return wanted;
}

}  // namespace

std::function<void()> addBlowPair(CLI::App& command, std::optional<BlowPairRequest>& pair,
                                  const std::vector<CLI::Option*>& allRecords) {
  const auto read = std::make_shared<BlowPairRequest>();
  CLI::Option* option =
      command
          .add_option_function<std::string>(
              kOption, [read](const std::string& text) { readPair(text, *read); },
              "Write what two blows give, at the place of the first, instead of all records: two "
              "shots by their numbers from 1, as 3,5; the two of an S-wave pair as 3a,3b. Traces "
              "go together by the places of their geophones. Needs --difference or --sum")
          ->type_name("A,B")
          ->group(kGroup);
  const auto flag = [&](const char* name, bool& value, const char* help) {
    return command.add_flag(name, value, help)->needs(option)->group(kGroup);
  };
  flag("--difference", read->difference,
       "First less second, difference03-05.sgy: of blows of opposite sense it enhances S waves");
  flag("--sum", read->sum, "sum03-05.sgy: of blows of opposite sense it enhances P waves");
  flag("--equal-strength", read->balanced, "Make the second as strong as the first before");
  for (CLI::Option* other : allRecords) option->excludes(other);
  return [read, option, &pair] {
    if (option->count() == 0) return;
    if (!read->difference && !read->sum) {
      throw CLI::RequiredError(std::string(kOption) + ": --difference or --sum");
    }
    pair = *read;
  };
}

Status writeBlowPairRecords(const RecordsOptions& options, const TomoDocument& document,
                            const std::vector<std::string>& inputs, std::ostream& out) {
  const BlowPairRequest& request = *options.pair;
  const std::vector<Wanted> wanted = wantedOf(options);
  std::vector<OutputFile> outputs;
  for (const Wanted& each : wanted) outputs.push_back({"--output-folder", each.path});
  Status status = checkOutputFiles(outputs, inputs);
  if (status.ok()) status = checkBlow(document, request.first);
  if (status.ok()) status = checkBlow(document, request.second);
  BlowPairOptions laid;
  laid.balanced = request.balanced;
  BlowPair pair;
  if (status.ok()) status = layOver(document, request.first, request.second, laid, pair);
  if (status.ok() && !pair.hasSum()) status = Status::failure(pair.noSum);
  if (!status.ok()) return status;
  for (const Message& line : describeLosses(pair)) warn(line);
  if (pair.withoutPlaces) warn(describeMatch(pair));
  if (pair.isOfTwoPlaces() || !std::isfinite(pair.shotsApart)) warn(describeShotPlaces(pair));
  out << describeMatch(pair) << "; " << describeShotPlaces(pair) << "; the second is "
      << formatDouble(pair.strength, 3) << " times as strong\n";
  std::vector<Message> notes;
  for (const Wanted& each : wanted) {
    status = writeRecord(pair.document, each.set, static_cast<int>(pair.shotOf(each.set) + 1),
                         options.format, each.path, notes);
    if (!status.ok()) return Status::failure(joined(nameOf(pair, each.set), status.text()));
    out << "Wrote " << each.path << std::endl;
  }
  for (const Message& note : notes) warn(note);
  return status;
}

}  // namespace talvesk
