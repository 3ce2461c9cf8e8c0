#include "app/dialogs/RefractionTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

namespace talvesk {
namespace {

/// Its context in the translations.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::RefractionTexts)
};

}  // namespace

QString refractionText(const RefractionWarning& warning) {
  using Kind = RefractionWarning::Kind;
  switch (warning.kind) {
    case Kind::kNoShotPair:
      return Texts::tr("Unable to find nearest shot for first refractor");
    case Kind::kVelocityNegative:
      return Texts::tr(
          "Velocity is less then zero at least one receiver. The profile may not be accurate. "
          "Please check input data ");
    case Kind::kStrongVariation:
      return Texts::tr("Strong lateral velocity variations. The profile may not be accurate.");
    case Kind::kTgNegative:
      return Texts::tr(
          "The Tg function is less then zero at least one receiver. The profile may not be "
          "accurate. Please check input data ");
    case Kind::kNoShotPairBelow:
      return Texts::tr(
                 "Layer %1: no shot at each end of the line has picks of it, so it has no profile.")
          .arg(warning.layer);
    case Kind::kFewForward:
      return Texts::tr(
                 "Layer %1: the shot at the start of the line has fewer than two usable picks of "
                 "it, so there is no forward curve.")
          .arg(warning.layer);
    case Kind::kFewReverse:
      return Texts::tr(
                 "Layer %1: the shot at the end of the line has fewer than two usable picks of it, "
                 "so there is no reverse curve.")
          .arg(warning.layer);
    case Kind::kFewCommon:
      return Texts::tr(
                 "Layer %1: forward and reverse curve have fewer than two receivers in common.")
          .arg(warning.layer);
    case Kind::kNoFirstLayer:
      return Texts::tr(
                 "Layer %1: no shot that takes part has two picks of it on one side, so it has no "
                 "velocity and the layers below have no depth.")
          .arg(warning.layer);
    case Kind::kBadFirstLayer:
      return Texts::
          tr("Layer %1: its velocity comes out outside 50 to 12 000 m/s, so it has none and the "
             "layers below have no depth.")
              .arg(warning.layer);
    case Kind::kBadVelocity:
      return Texts::tr(
                 "Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity "
                 "comes out outside 50 to 12 000 m/s.")
          .arg(warning.layer)
          .arg(warning.count)
          .arg(warning.total);
    case Kind::kSlowRefractor:
      return Texts::tr(
                 "Layer %1: no depth at %2 of %3 receivers, where it is not faster than the layer "
                 "above.")
          .arg(warning.layer)
          .arg(warning.count)
          .arg(warning.total);
    case Kind::kOutsideUpper:
      return Texts::tr(
                 "Layer %1: no depth at %2 of %3 receivers, which lie beyond the profile of the "
                 "layer above.")
          .arg(warning.layer)
          .arg(warning.count)
          .arg(warning.total);
    case Kind::kTooDeep:
      return Texts::tr(
                 "Layer %1: no depth at %2 of %3 receivers, where it comes out deeper than the "
                 "line is long.")
          .arg(warning.layer)
          .arg(warning.count)
          .arg(warning.total);
  }
  return {};
}

QString firstLayerText(const refractionDataStructure::processingData& results) {
  const QLocale locale;
  const refractionDataStructure::FirstLayer& first = results.first;
  const auto ends = std::minmax_element(first.velocity.begin(), first.velocity.end());
  const auto whole = [&locale](double velocity) { return locale.toString(velocity, 'f', 0); };
  const QString text = Texts::tr("Layer 1 has %1 m/s in the mean, and %2 to %3 m/s at the surface.")
                           .arg(whole(results.v1), whole(*ends.first), whole(*ends.second));
  if (!(first.growth > 0.0)) return text;
  return text + QLatin1Char(' ') +
         Texts::tr("It grows by %1 % of that per metre, down to %2 m.")
             .arg(locale.toString(100.0 * first.growth, 'f', 1),
                  locale.toString(first.growsTo, 'f', 1));
}

QString noShotPairText(const ShotPairReach& reach) {
  if (!reach.hasShots()) return Texts::tr("No shot that takes part has picks of layer 2.");
  const QLocale locale;
  const auto metres = [&locale](double x) {
    return locale.toString(x, 'g', QLocale::FloatingPointShortest);
  };
  return Texts::tr(
             "At each end of the line, or beyond, there must be a shot with picks of layer 2. Such "
             "shots reach from %1 to %2 m, but the geophones from %3 to %4 m.")
      .arg(metres(reach.firstShot), metres(reach.lastShot), metres(reach.firstReceiver),
           metres(reach.lastReceiver));
}

}  // namespace talvesk
