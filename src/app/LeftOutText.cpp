#include "app/LeftOutText.h"

#include "app/dialogs/GeometryTexts.h"
#include "model/LeftOut.h"

#include <QCoreApplication>

namespace talvesk {
namespace {

class LeftOutText {
  Q_DECLARE_TR_FUNCTIONS(talvesk::LeftOutText)
 public:
  static QString picks(const LeftOut& left) {
    return tr("%1 of %2 picks").arg(left.picks).arg(left.of);
  }
  static QStringList counts(const LeftOut& left);
  static QStringList names(const LeftOut& left);
};

QStringList LeftOutText::counts(const LeftOut& left) {
  QStringList words;
  const auto shots = static_cast<int>(left.shotsBeyond.size());
  const auto geophones = static_cast<int>(left.geophoneCount());
  const auto lost = static_cast<int>(left.shotsWithoutString.size());
  if (shots > 0) words << tr("%n shot(s) beyond the last column", nullptr, shots);
  if (geophones > 0) words << tr("%n geophone(s) beyond the last column", nullptr, geophones);
  if (lost > 0) words << tr("%n shot(s) without a geophone string", nullptr, lost);
  if (left.picks > 0) words << picks(left);
  return words;
}

QStringList LeftOutText::names(const LeftOut& left) {
  QStringList words;
  const auto shots = static_cast<int>(left.shotsBeyond.size());
  const auto lost = static_cast<int>(left.shotsWithoutString.size());
  if (shots > 0) {
    words << tr("Shot(s) %1 beyond the last column", nullptr, shots)
                 .arg(numberRanges(left.shotsBeyond));
  }
  for (const LeftOut::Geophones& geophones : left.geophones) {
    words << tr("Geophone(s) %1 of string %2 beyond the last column", nullptr,
                static_cast<int>(geophones.numbers.size()))
                 .arg(numberRanges(geophones.numbers))
                 .arg(geophones.string + 1);
  }
  if (lost > 0) {
    words << tr("Shot(s) %1 without a geophone string", nullptr, lost)
                 .arg(numberRanges(left.shotsWithoutString));
  }
  if (left.picks > 0) words << picks(left);
  return words;
}

}  // namespace

QStringList leftOutCounts(const LeftOut& left) {
  return LeftOutText::counts(left);
}

QStringList leftOutNames(const LeftOut& left) {
  return LeftOutText::names(left);
}

}  // namespace talvesk
