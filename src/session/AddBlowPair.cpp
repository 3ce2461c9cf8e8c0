#include "session/AddBlowPair.h"

#include "io/ShotLoader.h"
#include "io/Survey.h"
#include "model/Recordings.h"

#include <utility>

namespace talvesk {

Status addBlowPair(const BlowPair& pair, BlowPair::Set which, Survey& survey) {
  if (!pair.hasSum()) return Status::failure(pair.noSum);
  Status status = checkTakesShots(survey.document);
  if (!status.ok()) return status;
  ShotFileData data;
  for (const Trace& trace : pair.document.recordings->traceSets[which]) {
    data.traces.push_back({trace.samples, trace.sourcePosition, trace.receiverPosition, trace.delay,
                           trace.sampleInterval});
  }
  appendShot({}, std::move(data), survey.document);
  const std::size_t set = survey.document.recordings->traceSets.size() - 1;
  survey.document.recordings.edit().noteOf(set).nameInFile = nameOf(pair, which).english();
  return {};
}

}  // namespace talvesk
