#include "app/dialogs/RefractionTexts.h"

#include "app/LengthText.h"
#include "base/LengthUnit.h"
#include "figures/ShownLength.h"
#include "refraction/PlausibleResults.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

namespace talvesk {
namespace {

/// Its context in the translations.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::RefractionTexts)
};

QString whole(double velocity) {
  return lengthNumber(velocity, 0);
}

/// The greatest velocity that the ground may have, with a space between its thousands, as a comma
/// would be taken for that of a decimal.
QString outermost() {
  QString number = QString::number(shownLength(kGreatestVelocity), 'f', 0);
  return QStringLiteral("%1 %2").arg(number.insert(number.size() - 3, QLatin1Char(' ')),
                                     QLatin1String(velocityUnitName()));
}

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
      return Texts::tr(
                 "Layer %1: its velocity comes out outside %2 to %3, so it has none and the "
                 "layers below have no depth.")
          .arg(warning.layer)
          .arg(whole(kLeastVelocity), outermost());
    case Kind::kBadVelocity:
      return Texts::tr(
                 "Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity "
                 "comes out outside %4 to %5.")
          .arg(warning.layer)
          .arg(warning.count)
          .arg(warning.total)
          .arg(whole(kLeastVelocity), outermost());
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
  const refractionDataStructure::FirstLayer& first = results.first;
  const auto ends = std::minmax_element(first.velocity.begin(), first.velocity.end());
  const QString text = Texts::tr("Layer 1 has %1 in the mean, and %2 to %3 at the surface.")
                           .arg(velocityWithUnit(results.v1, 0), whole(*ends.first),
                                velocityWithUnit(*ends.second, 0));
  if (!(first.growth > 0.0)) return text;
  return text + QLatin1Char(' ') +
         Texts::tr("It grows by %1 % of that per %2, down to %3.")
             .arg(QLocale().toString(100.0 * first.growth / shownLength(1.0), 'f', 1),
                  QLatin1String(lengthUnitName()), lengthWithUnit(first.growsTo, 1));
}

QString noShotPairText(const ShotPairReach& reach) {
  if (!reach.hasShots()) return Texts::tr("No shot that takes part has picks of layer 2.");
  const auto length = [](double x) {
    return lengthUnit() == LengthUnit::kMetre
               ? QLocale().toString(x, 'g', QLocale::FloatingPointShortest)
               : lengthText(x);
  };
  return Texts::tr(
             "At each end of the line, or beyond, there must be a shot with picks of layer 2. Such "
             "shots reach from %1 to %2, but the geophones from %3 to %4.")
      .arg(length(reach.firstShot), withLengthUnit(length(reach.lastShot)),
           length(reach.firstReceiver), withLengthUnit(length(reach.lastReceiver)));
}

}  // namespace talvesk
