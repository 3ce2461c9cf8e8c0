#include "app/dialogs/GeometryTexts.h"

#include "app/LengthText.h"
#include "base/LengthUnit.h"
#include "base/TypedTable.h"
#include "model/GeometryCheck.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// More ranges than these are counted.
constexpr int kMostRanges = 8;

class GeometryTexts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::GeometryTexts)
 public:
  static QString ofGeophones(const GeometryMistake& mistake, const QString& who);
  static QString ofShots(const GeometryMistake& mistake, const SurveyGeometry& geometry);
  static QString andMore(const QString& ranges, int more) {
    return tr("%1 and %n more", nullptr, more).arg(ranges);
  }
};

QString GeometryTexts::ofGeophones(const GeometryMistake& mistake, const QString& who) {
  const int string = mistake.string + 1;
  const int count = static_cast<int>(mistake.geophones.size());
  switch (mistake.fault) {
    case GeometryFault::NoPosition:
      return tr("String %1: geophone(s) %2 without a position.", nullptr, count)
          .arg(string)
          .arg(who);
    case GeometryFault::SamePlace:
      return tr("String %1: geophones %2 stand at one place.").arg(string).arg(who);
    case GeometryFault::StepsBack:
      return tr("String %1: geophone(s) %2 against the direction of the string.", nullptr, count)
          .arg(string)
          .arg(who);
    default:
      return tr("String %1: geophone(s) %2 not at the elevation that string %3 has there.", nullptr,
                count)
          .arg(string)
          .arg(who)
          .arg(mistake.otherString + 1);
  }
}

QString GeometryTexts::ofShots(const GeometryMistake& mistake, const SurveyGeometry& geometry) {
  const int count = static_cast<int>(mistake.shots.size());
  const QString who = numberRanges(mistake.shots);
  switch (mistake.fault) {
    case GeometryFault::NoPosition:
      return tr("Shot(s) %1 without a position.", nullptr, count).arg(who);
    case GeometryFault::NoString:
      return tr("Shot(s) %1 without a geophone string.", nullptr, count).arg(who);
    case GeometryFault::MixedWaves:
      return tr("Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.",
                nullptr, count)
          .arg(who);
    case GeometryFault::ShotFarOff:
      return tr("Shot(s) %1 farther off the line than the line is long.", nullptr, count).arg(who);
    case GeometryFault::ShotOffSurface:
      return tr("Shot(s) %1 far above or below the line.", nullptr, count).arg(who);
    case GeometryFault::ShotNotLevelled:
      return tr("Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.",
                nullptr, count)
          .arg(who);
    default:
      break;
  }
  const std::size_t geophones = geometry.strings[static_cast<std::size_t>(mistake.string)].size();
  return tr("String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.",
            nullptr, count)
      .arg(mistake.string + 1)
      .arg(geophones)
      .arg(who)
      .arg(mistake.traces)
      .arg(std::min(geophones, mistake.traces));
}

}  // namespace

QString geometryNumber(double value) {
  if (std::isnan(value)) return {};
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  const char format = std::fabs(value) < 1e9 ? 'f' : 'g';
  return locale.toString(value == 0.0 ? 0.0 : value, format, QLocale::FloatingPointShortest);
}

QString geometryLength(double metres) {
  const bool asItIs = lengthUnit() == LengthUnit::kMetre || !(std::fabs(metres) < 1e9);
  return asItIs ? geometryNumber(shownLength(metres)) : lengthText(metres);
}

bool usesDecimalComma() {
  return QLocale().decimalPoint() == QLatin1Char(',');
}

bool readGeometryNumber(const QString& text, double& value) {
  return parseTyped(text.toStdString(), usesDecimalComma(), value);
}

QString numberRanges(const std::vector<std::size_t>& indices) {
  QStringList ranges;
  std::size_t told = 0;
  for (std::size_t i = 0; i < indices.size() && ranges.size() < kMostRanges; i = told) {
    told = i + 1;
    while (told < indices.size() && indices[told] == indices[told - 1] + 1) ++told;
    const QString first = QString::number(indices[i] + 1);
    const QString last = QString::number(indices[told - 1] + 1);
    ranges << (told - i == 1 ? first : first + QLatin1Char('-') + last);
  }
  const QString text = ranges.join(QStringLiteral(", "));
  const int more = static_cast<int>(indices.size() - told);
  return more == 0 ? text : GeometryTexts::andMore(text, more);
}

QString mistakeText(const GeometryMistake& mistake, const SurveyGeometry& geometry) {
  if (mistake.fault == GeometryFault::EmptyString) {
    return GeometryTexts::tr("String %1 has no geophones.").arg(mistake.string + 1);
  }
  if (mistake.fault == GeometryFault::StringUnused) {
    return GeometryTexts::tr(
               "No shot uses string %1; its positions shape the surface all the same.")
        .arg(mistake.string + 1);
  }
  if (!mistake.geophones.empty()) {
    return GeometryTexts::ofGeophones(mistake, numberRanges(mistake.geophones));
  }
  return GeometryTexts::ofShots(mistake, geometry);
}

QString shotDescription(const SurveyGeometry& geometry, std::size_t shot) {
  if (shot >= geometry.shots.size()) return {};
  const GeometryShot& about = geometry.shots[shot];
  const auto nameOf = [](const std::string& path) {
    return QFileInfo(QString::fromStdString(path)).fileName();
  };
  QStringList files;
  for (const std::string* path : {&about.file, &about.fileDX, &about.fileSX}) {
    if (!path->empty()) files << nameOf(*path);
  }
  const QString string = about.string < 0 ? QStringLiteral("-") : QString::number(about.string + 1);
  const QString position = geometryLength(about.place.x);
  const QString unit =
      lengthUnit() == LengthUnit::kMetre ? GeometryTexts::tr(" m</b>") : QStringLiteral(" ft</b>");
  return GeometryTexts::tr("Shot ID <b>") + QString::number(shot + 1) +
         GeometryTexts::tr("</b><br>Geophone geometry ID: <b>") + string +
         GeometryTexts::tr("</b> Shot position: <b>") +
         (position.isEmpty() ? QStringLiteral("-") : position) + unit + QStringLiteral("<br>") +
         GeometryTexts::tr("File name <b>") +
         (files.isEmpty() ? QStringLiteral("-")
                          : files.join(QStringLiteral(" - ")).toHtmlEscaped()) +
         QStringLiteral("</b>");
}

}  // namespace talvesk
