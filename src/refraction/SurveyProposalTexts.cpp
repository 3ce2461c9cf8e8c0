#include "refraction/SurveyProposal.h"

#include <algorithm>
#include <cmath>
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

}  // namespace

Message SurveyProposal::statement() const {
  if (!chosen) return Message::tr("no layers are proposed: there are too few picks to fit any");
  const GroundFit& fit = grounds[*chosen];
  const GroundFit& gradient = grounds.back();
  if (fit.layers == 0) {
    const GroundFit& two = grounds[1];
    const Message steady =
        Message::tr(
            "no layers: a velocity that grows steadily with depth, from %1 m/s by %2 m/s per "
            "metre, has a misfit of %3 ms")
            .arg(Message::number(fit.velocities.front(), 3))
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
  for (const ShortPiece& piece : shortPieces) {
    Message text =
        piece.side == Side::kRight
            ? Message::tr("shot %1, to its right: layer %2 rests on fewer than four picks (%3)")
            : Message::tr("shot %1, to its left: layer %2 rests on fewer than four picks (%3)");
    remarks.push_back(std::move(text).arg(piece.shot + 1).arg(piece.layer).arg(piece.picks));
  }
  if (standOut.empty()) return remarks;
  std::string named;
  for (std::size_t i = 0; i < standOut.size() && i < kMostNamed; ++i) {
    named += (i > 0 ? ", " : "") + std::to_string(standOut[i].shot + 1) + "/" +
             std::to_string(standOut[i].trace + 1);
  }
  if (standOut.size() > kMostNamed) named += ", ...";
  remarks.push_back(Message::tr("%1 picks fit no layer and are given to none (shot/trace): %2")
                        .arg(standOut.size())
                        .arg(Message(named)));
  return remarks;
}

}  // namespace talvesk
