#include "view/BlowPair.h"

#include <cmath>

namespace talvesk {
namespace {

constexpr double kOnePlace = 0.1;  ///< of the distance between geophones

}  // namespace

bool BlowPair::isOfTwoPlaces() const {
  return shotsApart > kOnePlace * spacing && shotsApart > 0.0;
}

bool BlowPair::arePlacesDoubtful() const {
  return isOfTwoPlaces() || withoutPlaces || !std::isfinite(shotsApart);
}

Message describeMatch(const BlowPair& pair) {
  return (pair.withoutPlaces
              ? Message::tr("%1 traces go together by their numbers, for all are at one place")
              : Message::tr("%1 traces at the same places"))
      .arg(pair.matched);
}

Message describeShotPlaces(const BlowPair& pair) {
  if (!std::isfinite(pair.shotsApart)) return Message::tr("where a shot was is not known");
  if (!(pair.shotsApart > 0.0)) return Message::tr("the shots are at one place");
  const Message apart = Message::length(pair.shotsApart, 3);
  if (!pair.isOfTwoPlaces()) return Message::tr("the shots are %1 apart").arg(apart);
  return Message::tr("the shots are %1 apart: difference and sum are not of one place").arg(apart);
}

std::vector<Message> describeLosses(const BlowPair& pair) {
  std::vector<Message> lines;
  if (pair.unmatchedFirst > 0 || pair.unmatchedSecond > 0) {
    lines.push_back(Message::tr("without a partner: %1 traces of shot %2, %3 of shot %4")
                        .arg(pair.unmatchedFirst)
                        .arg(pair.first.shot + 1)
                        .arg(pair.unmatchedSecond)
                        .arg(pair.second.shot + 1));
  }
  if (pair.killed > 0) {
    lines.push_back(
        Message::tr(
            "left out: %1 pairs with a trace that is killed, or has no samples or no interval")
            .arg(pair.killed));
  }
  if (pair.tooFarInTime > 0) {
    lines.push_back(Message::tr("left out: %1 pairs whose records begin too far apart in time")
                        .arg(pair.tooFarInTime));
  }
  if (pair.zerosAtStart > 0) {
    lines.push_back(
        Message::tr("difference and sum begin with %1 samples of zero").arg(pair.zerosAtStart));
  }
  if (pair.cutAtEnd > 0) {
    lines.push_back(
        Message::tr("difference and sum end %1 samples before the first").arg(pair.cutAtEnd));
  }
  return lines;
}

std::vector<Message> describe(const BlowPair& pair) {
  std::vector<Message> lines = {describeMatch(pair), describeShotPlaces(pair)};
  lines.push_back(
      Message::tr("the second is %1 times as strong").arg(Message::number(pair.strength, 3)));
  if (pair.factor != 1.0) {
    lines.push_back(Message::tr("it is shown times %1").arg(Message::number(pair.factor, 3)));
  }
  if (std::abs(pair.secondLater) > 1e-9) {
    lines.push_back(
        pair.secondLater > 0.0
            ? Message::tr("its record begins %1 ms later").arg(1e3 * pair.secondLater)
            : Message::tr("its record begins %1 ms earlier").arg(-1e3 * pair.secondLater));
  }
  if (!pair.hasSum()) lines.push_back(pair.noSum);
  for (const Message& loss : describeLosses(pair)) lines.push_back(loss);
  return lines;
}

Message nameOf(const BlowPair& pair, BlowPair::Set which) {
  const Message text = which == BlowPair::kSum ? Message::tr("sum of shots %1 and %2")
                                               : Message::tr("difference of shots %1 and %2");
  return Message(text).arg(pair.first.shot + 1).arg(pair.second.shot + 1);
}

}  // namespace talvesk
