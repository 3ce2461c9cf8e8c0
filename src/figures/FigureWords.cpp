#include "figures/FigureWords.h"

#include "base/TextNumber.h"
#include "figures/ToldLength.h"
#include "view/SectionTexts.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

/// The context that the texts of Message::tr() have in the translations.
constexpr char kMessages[] = "talvesk::Message";

class LanguageOfProgram : public Message::Language {
 public:
  explicit LanguageOfProgram(const QLocale& locale) : mLocale(locale) {}
  std::string text(const char* source) const override {
    return QCoreApplication::translate(kMessages, source).toStdString();
  }
  std::string number(const std::string& c) const override {
    return withSignOf(mLocale, c).toStdString();
  }

 private:
  const QLocale& mLocale;
};

template <typename Is>
std::size_t countOf(const std::vector<TraceMend>& traces, Is is) {
  return static_cast<std::size_t>(std::count_if(traces.begin(), traces.end(), is));
}

}  // namespace

QString FigureWords::message(const Message& message, const QLocale& locale) {
  return qt(message.in(LanguageOfProgram(locale)));
}

ShownUnit FigureWords::unitOf(const SectionScene& scene) {
  return shownUnit(scene.values ? scene.values->unit : quantityUnit(scene.quantity));
}

QStringList FigureWords::mends(const ShotMends& mends, const QLocale& locale) {
  QStringList words;
  if (mends.disabled) words += tr("shot disabled");
  if (mends.timeShift != 0.0) {
    words += tr("shifted by %1 ms").arg(withSignOf(locale, formatDouble(1e3 * mends.timeShift)));
  }
  if (mends.orderReversed) words += tr("order reversed");
  if (!mends.stackedWith.empty()) {
    words += tr("stacked with %1", "shots").arg(shots(mends.stackedWith.size()));
  }
  const std::size_t killed = countOf(mends.traces, [](const TraceMend& t) { return t.killed; });
  const std::size_t turned = countOf(mends.traces, [](const TraceMend& t) { return t.reversed; });
  const std::size_t muted =
      countOf(mends.traces, [](const TraceMend& t) { return t.mutedBefore > 0.0; });
  const std::size_t scaled =
      countOf(mends.traces, [](const TraceMend& t) { return t.gain != 1.0; });
  if (killed > 0) words += tr("%1 killed", "traces").arg(traces(killed));
  if (turned > 0) words += tr("%1 of reversed polarity", "traces").arg(traces(turned));
  if (muted > 0) words += tr("%1 muted", "traces").arg(traces(muted));
  if (scaled > 0) words += tr("%1 with a gain of their own", "traces").arg(traces(scaled));
  return words;
}

QString FigureWords::pickError(double sigma, const QLocale& locale) {
  return sigma > 0.0 ? locale.toString(1e3 * sigma, 'f', 2) : QString(QChar(0x2013));
}

QString FigureWords::errorBars() {
  return tr("bars of one standard deviation, dashed above %1 ms")
      .arg(figureDigits(formatDouble(parameters::kGoodPick.value)));
}

QString FigureWords::grades(const PickGrades& grades) {
  QStringList words;
  if (grades.good > 0) words += tr("%1 good", "picks").arg(grades.good);
  if (grades.doubtful > 0) words += tr("%1 doubtful", "picks").arg(grades.doubtful);
  if (grades.unknown > 0) words += tr("%1 of unknown error", "picks").arg(grades.unknown);
  return words.isEmpty() ? QString(QChar(0x2013)) : words.join(QStringLiteral(", "));
}

QString FigureWords::quantity(SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVerticalGradient:
      return tr("Vertical gradient of velocity");
    case SectionQuantity::kLaplacian:
      return tr("Laplacian of velocity");
    case SectionQuantity::kInformationDensity:
      return tr("Information density");
    case SectionQuantity::kCertainty:
      return tr("Uncertainty of velocity");
    case SectionQuantity::kVelocity:
      break;
  }
  return tr("Velocity");
}

QString FigureWords::quantity(const SectionScene& scene) {
  return scene.values ? message(scene.values->name) : quantity(scene.quantity);
}

QString FigureWords::quantityAxis(const SectionScene& scene) {
  const QString unit = showsSpread(scene) ? QStringLiteral("\u00B1 %") : qt(unitOf(scene).name);
  return unit.isEmpty() ? quantity(scene) : QStringLiteral("%1 [%2]").arg(quantity(scene), unit);
}

// Counts are spelt out instead of left to the plurals of a translation: the headless program has no
// translation at all.

QString FigureWords::traces(std::size_t count) {
  return count == 1 ? tr("1 trace") : tr("%1 traces").arg(count);
}

QString FigureWords::picks(std::size_t count) {
  return count == 1 ? tr("1 pick") : tr("%1 picks").arg(count);
}

QString FigureWords::shots(std::size_t count) {
  return count == 1 ? tr("1 shot") : tr("%1 shots").arg(count);
}

QString FigureWords::computedTimes(std::size_t count) {
  return count == 1 ? tr("1 computed time") : tr("%1 computed times").arg(count);
}

QString FigureWords::misfit(const SectionMisfit& misfit, const QLocale& locale) {
  return tr("RMS misfit %1 ms, %2 %")
      .arg(withSignOf(locale, formatDouble(1e3 * misfit.rmse, 3)),
           withSignOf(locale, formatDouble(1e2 * misfit.relativeRms, 3)));
}

QString FigureWords::chiSquare(const ChiSquare& fit, const QLocale& locale) {
  if (fit.count == 0) return {};
  const QString value = withSignOf(locale, formatDouble(fit.chi2, 3));
  return fit.shifted ? tr("chi-square %1 with the time shifts of shots").arg(value)
                     : tr("chi-square %1").arg(value);
}

QString FigureWords::lastPassMisfit(double percent, const QLocale& locale) {
  return tr("last solver pass %1 %").arg(withSignOf(locale, formatDouble(percent, 3)));
}

QString FigureWords::picksChanged() {
  return tr("picks have changed since the inversion");
}

QString FigureWords::layer(std::uint32_t layer, double velocity, double error,
                           const QLocale& locale) {
  if (!std::isfinite(velocity) || !(velocity > 0.0)) return tr("Layer %1").arg(layer);
  const QString text = locale.toString(shownLength(velocity), 'f', 0);
  if (!std::isfinite(error) || !(error > 0.0)) {
    return tr("Layer %1, %2").arg(layer).arg(withVelocityUnit(text));
  }
  const double shown = shownLength(error);
  return tr("Layer %1, %2 \u00B1 %3")
      .arg(layer)
      .arg(text, withVelocityUnit(locale.toString(shown, 'f', shown < 1.0 ? 1 : 0)));
}

QString FigureWords::uncarried() {
  return tr("Dashed: not carried by picks there");
}

QString FigureWords::profileBand() {
  return tr("Error of the picks (68 of 100)");
}

QString FigureWords::velocity(double velocity, const QLocale& locale) {
  return withVelocityUnit(withSignOf(locale, formatDouble(toldVelocity(velocity), 6)));
}

QString FigureWords::depthBand(double value, const QLocale& locale) {
  return tr("Depth of %1, 16 to 84 %").arg(velocity(value, locale));
}

QString FigureWords::fading() {
  return tr("Pale: uncertain, \u00B1 %1 to %2 % and no ray").arg(kSureSpread).arg(kUnsureSpread);
}

QStringList FigureWords::certaintyWarnings(const SectionScene& scene, const QLocale& locale) {
  QStringList warnings;
  if (!scene.certainty) return warnings;
  if (scene.certainty->picksChanged) {
    warnings += tr("picks have changed since the certainty was found out");
  }
  if (!scene.certainty->fits()) {
    warnings += tr("certainty of other sections than this one: %1 % of its cells with rays lie "
                   "beyond two deviations")
                    .arg(locale.toString(scene.certainty->percentBeyond, 'f', 0));
  }
  return warnings;
}

QString FigureWords::refractor(std::size_t index) {
  return tr("Refractor %1").arg(index + 1);
}

QString FigureWords::oldRefractor(std::size_t index) {
  return tr("Refractor %1 (picks have changed since)").arg(index + 1);
}

QString FigureWords::exaggeration(double factor, const QLocale& locale) {
  if (std::abs(factor - 1.0) <= 1e-9) return {};
  std::string digits = formatDouble(factor, 4);
  if (digits.find_first_of(".e") == std::string::npos) digits += ".0";
  return tr("Vertical exaggeration %1").arg(withSignOf(locale, digits));
}

QStringList FigureWords::sectionFacts(const SectionScene& scene, double verticalExaggeration,
                                      const QLocale& locale) {
  const ShownUnit shown = unitOf(scene);
  const auto text = [&](double value, double step) {
    return withSignOf(locale, valueText(shown.shown(value), shown.shown(step)));
  };
  const double step = scene.range.span() / 100.0;
  QString unit = qt(shown.name);
  if (!unit.isEmpty()) unit.prepend(QLatin1Char(' '));
  QStringList facts;
  if (scene.fill != SectionFill::kNone) {
    facts += tr("%1 %2 to %3", "quantity, least and greatest value with its unit")
                 .arg(quantity(scene), text(scene.dataRange.min, step),
                      text(scene.dataRange.max, step) + unit);
  }
  if (const double spacing = levelSpacing(scene.contourLevels); spacing > 0.0) {
    facts += tr("Contours every %1").arg(text(spacing, spacing / 10.0) + unit);
  }
  if (!scene.rays.empty()) {
    facts += scene.rays.size() == 1 ? tr("1 ray") : tr("%1 rays").arg(scene.rays.size());
  }
  if (scene.misfit.count > 0) facts += misfit(scene.misfit, locale);
  if (scene.fit.count > 0) facts += chiSquare(scene.fit, locale);
  if (scene.picksChanged) facts += picksChanged();
  if (scene.smoothed) facts += tr("smoothed since the inversion");
  if (scene.lastPassPercent >= 0.0) facts += lastPassMisfit(scene.lastPassPercent, locale);
  if (scene.certainty) {
    const int members = scene.certainty->members;
    facts += showsSpread(scene)
                 ? tr("\u00B1: half of the range from 16 to 84 % of %1 members").arg(members)
                 : tr("certainty of %1 members").arg(members);
    if (scene.certainty->leftOut > 0) facts += tr("%1 left out").arg(scene.certainty->leftOut);
    facts += certaintyWarnings(scene, locale);
  }
  if (scene.annotations.outside > 0) {
    facts += tr("annotations outside the section: %1").arg(scene.annotations.outside);
  }
  const QString factor = exaggeration(verticalExaggeration, locale);
  if (!factor.isEmpty()) facts += factor;
  return facts;
}

QString FigureWords::sectionTitle(const SectionScene& scene) {
  const QString title = qt(scene.title).simplified();
  return title.isEmpty() && scene.fill != SectionFill::kNone ? quantity(scene) : title;
}

QString FigureWords::joined(const QStringList& parts) {
  return parts.join(QStringLiteral("   \u00B7   "));
}

}  // namespace talvesk
