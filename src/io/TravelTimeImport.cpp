#include "io/TravelTimeFile.h"
#include "model/PickLimits.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

Status checkStrings(const TravelTimeData& data) {
  for (const TravelTime& record : data.records) {
    if (record.indexStesa < 0 ||
        static_cast<std::size_t>(record.indexStesa) >= data.strings.size()) {
      return Status::failure("a record names geophone string " + std::to_string(record.indexStesa) +
                             " of " + std::to_string(data.strings.size()));
    }
  }
  return {};
}

/// For each record of the document, the record of the file that has its trace set.
Status matchRecords(const TravelTimeData& data, const TomoDocument& document,
                    std::vector<const TravelTime*>& matches) {
  const std::size_t shots = document.traceSets.size();
  if (data.records.size() != shots || document.ttArray.size() != shots) {
    return Status::failure("the file holds picks of " + std::to_string(data.records.size()) +
                           " shots, the survey has " + std::to_string(shots) +
                           "; the picks were not taken");
  }
  std::vector<const TravelTime*> bySet(shots, nullptr);
  for (const TravelTime& record : data.records) {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= shots || bySet[set] != nullptr) {
      return Status::failure("trace set " + std::to_string(record.traceSetID) +
                             " is named twice or not in the survey; the picks were not taken");
    }
    if (record.ttMisurati.size() != document.traceSets[set].size()) {
      return Status::failure("the file holds " + std::to_string(record.ttMisurati.size()) +
                             " times for trace set " + std::to_string(set) + ", which has " +
                             std::to_string(document.traceSets[set].size()) +
                             " traces; the picks were not taken");
    }
    bySet[set] = &record;
  }
  for (const TravelTime& record : document.ttArray) {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= shots) {
      return Status::failure("a record of the survey has no trace set; the picks were not taken");
    }
    matches.push_back(bySet[set]);
  }
  return {};
}

bool sameGeometry(const TravelTimeData& data, const TomoDocument& document,
                  const std::vector<const TravelTime*>& matches) {
  if (data.strings != document.goephonesStringSet) return false;
  return std::equal(matches.begin(), matches.end(), document.ttArray.begin(),
                    [](const TravelTime* read, const TravelTime& kept) {
                      return read->shotPos2d == kept.shotPos2d &&
                             read->indexStesa == kept.indexStesa;
                    });
}

Status fillTraceSets(TravelTimeData data, TomoDocument& document) {
  std::vector<const TravelTime*> matches;
  if (Status status = matchRecords(data, document, matches); !status.ok()) return status;
  const bool moved = !sameGeometry(data, document, matches);
  for (std::size_t i = 0; i < matches.size(); ++i) {
    TravelTime& record = document.ttArray[i];
    record.shotPos2d = matches[i]->shotPos2d;
    record.indexStesa = matches[i]->indexStesa;
    record.ttMisurati = matches[i]->ttMisurati;
    if (moved) record.ttCalcolati.assign(record.ttMisurati.size(), kNoTime);
  }
  document.goephonesStringSet = std::move(data.strings);
  if (moved) document.clearModelAndResults();
  return {};
}

void replaceSurvey(TravelTimeData data, TomoDocument& document) {
  document.goephonesStringSet = std::move(data.strings);
  document.ttArray = std::move(data.records);
  document.filenames.clear();
  document.filenames_DX.clear();
  document.filenames_SX.clear();
  document.layers.clear();
  document.clearModelAndResults();
}

}  // namespace

void fitToRecords(TravelTimeData& data, const TomoDocument& document) {
  const std::string dropped = dropImpossiblePicks(data.records, document.traceSets);
  if (!dropped.empty()) data.warnings.push_back(dropped);
}

Status importTravelTimes(TravelTimeData data, TomoDocument& document) {
  if (Status status = checkStrings(data); !status.ok()) return status;
  if (document.traceSets.empty()) {
    replaceSurvey(std::move(data), document);
  } else if (Status status = fillTraceSets(std::move(data), document); !status.ok()) {
    return status;
  }
  document.shotPositions.clear();
  for (const TravelTime& record : document.ttArray) {
    document.shotPositions.push_back(record.shotPos2d.x);
  }
  document.modified = true;
  return {};
}

}  // namespace talvesk
