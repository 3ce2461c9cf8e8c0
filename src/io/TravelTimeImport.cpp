#include "io/TravelTimeFile.h"

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
      return Status::failure(Message::tr("a record names geophone string %1 of %2")
                                 .arg(record.indexStesa)
                                 .arg(data.strings.size()));
    }
  }
  return {};
}

/// For each record of the document, the record of the file that has its trace set.
Status matchRecords(const TravelTimeData& data, const TomoDocument& document,
                    std::vector<const TravelTime*>& matches) {
  const std::size_t shots = document.traceSets.size();
  if (data.records.size() != shots || document.ttArray.size() != shots) {
    return Status::failure(
        Message::tr("the file holds picks of %1 shots, the survey has %2; the picks were not taken")
            .arg(data.records.size())
            .arg(shots));
  }
  std::vector<const TravelTime*> bySet(shots, nullptr);
  for (const TravelTime& record : data.records) {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= shots || bySet[set] != nullptr) {
      return Status::failure(
          Message::tr("trace set %1 is named twice or not in the survey; the picks were not taken")
              .arg(record.traceSetID));
    }
    if (record.ttMisurati.size() != document.traceSets[set].size()) {
      return Status::failure(Message::tr("the file holds %1 times for trace set %2, which has %3 "
                                         "traces; the picks were not taken")
                                 .arg(record.ttMisurati.size())
                                 .arg(set)
                                 .arg(document.traceSets[set].size()));
    }
    bySet[set] = &record;
  }
  for (const TravelTime& record : document.ttArray) {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= shots) {
      return Status::failure(
          Message::tr("a record of the survey has no trace set; the picks were not taken"));
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
