#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "io/WrittenPosition.h"
#include "model/GroundModel.h"
#include "model/Mending.h"
#include "model/PickLimits.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

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
Status matchRecords(TravelTimeData& data, const TomoDocument& document,
                    std::vector<TravelTime*>& matches) {
  const std::size_t shots = document.recordings->traceSets.size();
  if (data.records.size() != shots || document.ttArray.size() != shots) {
    return Status::failure(
        Message::tr("the file holds picks of %1 shots, the survey has %2; the picks were not taken")
            .arg(data.records.size())
            .arg(shots));
  }
  std::vector<TravelTime*> bySet(shots, nullptr);
  for (TravelTime& record : data.records) {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= shots || bySet[set] != nullptr) {
      return Status::failure(
          Message::tr("trace set %1 is named twice or not in the survey; the picks were not taken")
              .arg(record.traceSetID));
    }
    if (record.ttMisurati.size() != document.recordings->traceSets[set].size()) {
      return Status::failure(Message::tr("the file holds %1 times for trace set %2, which has %3 "
                                         "traces; the picks were not taken")
                                 .arg(record.ttMisurati.size())
                                 .arg(set)
                                 .arg(document.recordings->traceSets[set].size()));
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

/// What an import would do to a document.
struct Plan {
  /// Of the data, in the order of the document's: those of its trace sets; without traces, which
  /// nothing but their place and number tells apart, all.
  std::vector<TravelTime*> records;
  bool moved = true;  ///< a position, or what belongs to which string or trace, is another
  ModelLoss loss = ModelLoss::kNothing;
};

/// Gives back to positions the digits that writing took away. \return whether others moved
bool settle(std::vector<Point2D>& read, const std::vector<Point2D>& kept) {
  bool moved = read.size() != kept.size();
  for (std::size_t i = 0; i < std::min(read.size(), kept.size()); ++i) {
    if (isWritten(kept[i], read[i])) {
      read[i] = kept[i];
    } else {
      moved = true;
    }
  }
  return moved;
}

/// \param records of the data, each beside one of the document or beyond them
bool settle(TravelTimeData& data, const TomoDocument& document,
            const std::vector<TravelTime*>& records) {
  const auto& strings = document.line->goephonesStringSet;
  bool moved = data.strings.size() != strings.size() || records.size() != document.ttArray.size();
  for (std::size_t s = 0; s < std::min(data.strings.size(), strings.size()); ++s) {
    if (settle(data.strings[s], strings[s])) moved = true;
  }
  for (std::size_t i = 0; i < std::min(records.size(), document.ttArray.size()); ++i) {
    const TravelTime& kept = document.ttArray[i];
    TravelTime& read = *records[i];
    if (isWritten(kept.shotPos2d, read.shotPos2d)) {
      read.shotPos2d = kept.shotPos2d;
    } else {
      moved = true;
    }
    if (read.indexStesa != kept.indexStesa || read.ttMisurati.size() != kept.ttMisurati.size()) {
      moved = true;
    }
  }
  return moved;
}

Status makePlan(TravelTimeData& data, const TomoDocument& document, Plan& plan) {
  Status status = checkStrings(data);
  if (!status.ok()) return status;
  if (document.recordings->traceSets.empty()) {
    for (TravelTime& record : data.records) plan.records.push_back(&record);
  } else {
    status = matchRecords(data, document, plan.records);
    if (!status.ok()) return status;
  }
  plan.moved = settle(data, document, plan.records);
  if (!plan.moved) return {};
  std::vector<Point2D> shots;  // in the order of the survey, which says whose elevation counts
  for (const TravelTime* record : plan.records) shots.push_back(record->shotPos2d);
  plan.loss = modelLoss(document, measureSurvey(data.strings, shots));
  return {};
}

/// The records stay, with other times and, if they moved, positions.
void fillRecords(const Plan& plan, TomoDocument& document) {
  for (std::size_t i = 0; i < plan.records.size(); ++i) {
    TravelTime& record = document.ttArray.edit()[i];
    TravelTime& read = *plan.records[i];
    record.shotPos2d = read.shotPos2d;
    record.indexStesa = read.indexStesa;
    record.ttMisurati = std::move(read.ttMisurati);
    record.unconfirmed = {};  // the marks were those of the picks that go
    record.pickErrors = std::move(read.pickErrors);
    dropPicksWithoutPart(document, record);
    if (plan.moved) record.ttCalcolati.edit().assign(record.ttMisurati.size(), kNoTime);
  }
}

void replaceRecords(std::vector<TravelTime> records, TomoDocument& document) {
  document.ttArray.edit() = std::move(records);
  document.recordings.edit().filenames.clear();
  document.recordings.edit().filenames_DX.clear();
  document.recordings.edit().filenames_SX.clear();
}

}  // namespace

void fitToRecords(TravelTimeData& data, const TomoDocument& document) {
  const Message dropped = dropImpossiblePicks(data.records, document.recordings->traceSets);
  if (!dropped.empty()) data.warnings.push_back(dropped);
  for (TravelTime& record : data.records) {
    const std::size_t count = dropPicksWithoutPart(document, record);
    if (count == 0) continue;
    data.warnings.push_back(
        Message::tr("shot %1: picks left out, as the shot is disabled or their traces are killed: "
                    "%2")
            .arg(record.traceSetID + std::int64_t{1})
            .arg(count));
  }
}

Status checkImport(TravelTimeData& data, const TomoDocument& document, ImportCost& cost) {
  Plan plan;
  Status status = makePlan(data, document, plan);
  cost.model = plan.loss;
  cost.survey = plan.moved && document.recordings->traceSets.empty();
  return status;
}

Status importTravelTimes(TravelTimeData data, TomoDocument& document) {
  Plan plan;
  if (Status status = makePlan(data, document, plan); !status.ok()) return status;
  // Cell sizes that were proposed for other positions are none for these.
  const bool all = plan.moved && document.model->grid == nullptr;
  if (plan.moved && document.recordings->traceSets.empty()) {
    replaceRecords(std::move(data.records), document);
    if (all || plan.loss == ModelLoss::kGrid) document.model.edit().layers.clear();
  } else {
    fillRecords(plan, document);
  }
  document.line.edit().goephonesStringSet = std::move(data.strings);
  forgetModel(all ? ModelLoss::kGrid : plan.loss, document);
  document.line.edit().shotPositions.clear();
  for (const TravelTime& record : document.ttArray) {
    document.line.edit().shotPositions.push_back(record.shotPos2d.x);
  }
  return {};
}

}  // namespace talvesk
