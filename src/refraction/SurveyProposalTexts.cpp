#include "refraction/SurveyProposal.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kMostNamed = 8;  // picks

Message milliseconds(double seconds) {
  const double value = seconds * 1000.0;
  return Message::number(std::fabs(value) < 1.0 ? std::round(value * 100.0) / 100.0 : value, 2);
}

/// What the next layer would gain.
Message gainOf(std::uint32_t layers, const GroundFit& fit, const GroundFit& more) {
  if (layers == 1) {
    if (!more.fitted) return Message::tr("no second layer can be fitted");
    return Message::tr("a second layer gains %1 ms")
        .arg(milliseconds(std::max(0.0, fit.misfit - more.misfit)));
  }
  if (!more.fitted) return Message::tr("no third layer can be fitted");
  return Message::tr("a third layer gains %1 ms")
      .arg(milliseconds(std::max(0.0, fit.misfit - more.misfit)));
}

Message layersText(std::uint32_t layers, const GroundFit& fit) {
  const Message misfit = milliseconds(fit.misfit);
  if (layers == 1) return Message::tr("1 layer, misfit %1 ms").arg(misfit);
  return Message::tr("%1 layers, misfit %2 ms").arg(layers).arg(misfit);
}

/// All pieces of a layer that rest on few picks, in one line: "layer 1 rests on fewer than four
/// picks to the right of shots 2 (2), 3 (3) and to the left of shot 3 (3)".
std::optional<Message> shortPiecesText(const std::vector<ShortPiece>& pieces, std::uint32_t layer) {
  const auto namedOn = [&](Side side) {
    std::pair<std::size_t, std::string> named;
    for (const ShortPiece& piece : pieces) {
      if (piece.layer != layer || piece.side != side) continue;
      named.second += (named.first++ > 0 ? ", " : "") + std::to_string(piece.shot + 1) + " (" +
                      std::to_string(piece.picks) + ")";
    }
    return named;
  };
  const auto [rightCount, right] = namedOn(Side::kRight);
  const auto [leftCount, left] = namedOn(Side::kLeft);
  if (rightCount + leftCount == 0) return std::nullopt;
  const Message toRight = rightCount == 1
                              ? Message::tr("to the right of shot %1").arg(Message(right))
                              : Message::tr("to the right of shots %1").arg(Message(right));
  const Message toLeft = leftCount == 1 ? Message::tr("to the left of shot %1").arg(Message(left))
                                        : Message::tr("to the left of shots %1").arg(Message(left));
  const Message where = leftCount == 0    ? toRight
                        : rightCount == 0 ? toLeft
                                          : Message::tr("%1 and %2").arg(toRight).arg(toLeft);
  return Message::tr("layer %1 rests on fewer than four picks (their number in brackets) %2")
      .arg(layer)
      .arg(where);
}

}  // namespace

Message SurveyProposal::statement() const {
  if (!chosen) return Message::tr("no layers are proposed: there are too few picks to fit any");
  const GroundFit& fit = grounds[*chosen];
  const GroundFit& gradient = grounds.back();
  if (fit.layers == 0) {
    const GroundFit& two = grounds[1];
    const Message steady =
        Message::tr(
            "no layers: a velocity that grows steadily with depth, from %1 with a gradient of "
            "%2 1/s, has a misfit of %3 ms")
            .arg(Message::velocity(fit.velocities.front(), 3))
            .arg(Message::number(fit.gradient, 2))
            .arg(milliseconds(fit.misfit));
    if (!two.fitted) return steady;
    return Message::tr("%1; %2").arg(steady).arg(layersText(2, two));
  }
  Message text = layersText(fit.layers, fit);
  if (fit.layers < refractionDataStructure::kLastLayer) {
    text = Message::tr("%1; %2").arg(text).arg(gainOf(fit.layers, fit, grounds[fit.layers]));
  } else if (grounds[1].fitted) {
    text = Message::tr("%1; %2").arg(text).arg(layersText(2, grounds[1]));
  }
  if (!gradient.fitted) return text;
  return Message::tr("%1; without layers, by a steady gradient, %2 ms")
      .arg(text)
      .arg(milliseconds(gradient.misfit));
}

std::vector<Message> SurveyProposal::remarks() const {
  std::vector<Message> remarks;
  if (thirdNotBuildable) {
    remarks.push_back(
        Message::tr("three layers fit better, but no shot at each end of the line has picks of the "
                    "layer in between: two layers are proposed"));
  }
  for (std::uint32_t layer = 1; layer <= refractionDataStructure::kLastLayer; ++layer) {
    if (auto text = shortPiecesText(shortPieces, layer)) remarks.push_back(std::move(*text));
  }
  if (standOut.empty()) return remarks;
  std::string named;
  for (std::size_t i = 0; i < standOut.size() && i < kMostNamed; ++i) {
    named += (i > 0 ? ", " : "") + std::to_string(standOut[i].shot + 1) + "/" +
             std::to_string(standOut[i].trace + 1);
  }
  if (standOut.size() > kMostNamed) named += ", ...";
  if (standOut.size() == 1) {
    remarks.push_back(Message::tr("1 pick fits no layer and is given to none (shot/trace): %1")
                          .arg(Message(named)));
    return remarks;
  }
  remarks.push_back(Message::tr("%1 picks fit no layer and are given to none (shot/trace): %2")
                        .arg(standOut.size())
                        .arg(Message(named)));
  return remarks;
}

}  // namespace talvesk
