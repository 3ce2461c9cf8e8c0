#include "app/dialogs/setGeographyDialog.h"

#include "app/NumberText.h"
#include "base/LengthUnit.h"
#include "figures/ShownLength.h"
#include "ui_setGeographyDialog.h"

#include <QLocale>
#include <QPushButton>
#include <cmath>

namespace talvesk {
namespace {

/// How far the ends may be from each other on the map, measured by the length of the line, before
/// the user should look again: tapes and scale factors differ by less.
constexpr double kTolerance = 0.01;

QString degrees(double value, const QString& positive, const QString& negative) {
  return QLocale().toString(std::abs(value), 'f', 6) + QStringLiteral("\u00B0 ") +
         (value < 0.0 ? negative : positive);
}

/// A length, in the unit shown; easting and northing are in metres, as on the map.
QString along(double metres) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return withLengthUnit(locale.toString(shownLength(metres), 'f', 1));
}

}  // namespace

setGeographyDialog::setGeographyDialog(const std::optional<geographicsCoord>& coordinates,
                                       const std::optional<LineEnds>& ends, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::setGeographyDialog>()), mEnds(ends) {
  mUi->setupUi(this);
  if (ends) {
    mUi->firstLabel->setText(tr("First geophone (at %1)").arg(along(ends->first)));
    mUi->lastLabel->setText(tr("Last geophone (at %1)").arg(along(ends->last)));
  }
  if (coordinates) {
    mUi->estFstGeoph->setText(numberText(coordinates->mEastFstGeoph));
    mUi->northFstGeoph->setText(numberText(coordinates->mNorthFstGeoph));
    mUi->estLstGeoph->setText(numberText(coordinates->mEastLstGeoph));
    mUi->northLstGeoph->setText(numberText(coordinates->mNorthLstGeoph));
    if (coordinates->CRS > 0) mUi->epsgEdit->setText(QString::number(coordinates->CRS));
  }
  for (QLineEdit* edit :
       {mUi->estFstGeoph, mUi->northFstGeoph, mUi->estLstGeoph, mUi->northLstGeoph}) {
    connect(edit, &QLineEdit::textChanged, this, [this] { check(); });
  }
  connect(mUi->epsgEdit, &QLineEdit::textChanged, this, [this] {
    checkSystem();
    check();
  });
  checkSystem();
  check();
}

setGeographyDialog::~setGeographyDialog() = default;

std::optional<std::int32_t> setGeographyDialog::code() const {
  QString text = mUi->epsgEdit->text().trimmed();
  if (text.startsWith(QLatin1String("EPSG:"), Qt::CaseInsensitive)) text.remove(0, 5);
  bool isNumber = false;
  const int value = QLocale::c().toInt(text.trimmed(), &isNumber);
  if (!isNumber || value <= 0) return std::nullopt;
  return value;
}

std::optional<geographicsCoord> setGeographyDialog::entered() const {
  const auto eastFirst = numberFrom(mUi->estFstGeoph->text());
  const auto northFirst = numberFrom(mUi->northFstGeoph->text());
  const auto eastLast = numberFrom(mUi->estLstGeoph->text());
  const auto northLast = numberFrom(mUi->northLstGeoph->text());
  if (!eastFirst || !northFirst || !eastLast || !northLast) return std::nullopt;
  return geographicsCoord{code().value_or(0), *eastFirst, *eastLast, *northFirst, *northLast};
}

geographicsCoord setGeographyDialog::coordinates() const {
  return entered().value_or(geographicsCoord());
}

void setGeographyDialog::checkSystem() {
  mTransformer.reset();
  if (const auto epsg = code()) mTransformer = std::make_shared<const GeoTransformer>(*epsg);
  mUi->systemLabel->setText(mTransformer ? QString::fromStdString(mTransformer->systemName())
                                         : QString());
}

void setGeographyDialog::showPlace(QLabel& label, const QString& easting, const QString& northing) {
  const auto east = numberFrom(easting);
  const auto north = numberFrom(northing);
  LonLat place;
  if (!mTransformer || !east || !north || !mTransformer->transform(*east, *north, place)) {
    label.setText(QStringLiteral("\u2013"));
    return;
  }
  label.setText(degrees(place.latitude, tr("N", "north"), tr("S", "south")) +
                QStringLiteral("   ") + degrees(place.longitude, tr("E", "east"), tr("W", "west")));
}

QString setGeographyDialog::systemProblem() const {
  switch (mTransformer->status().code()) {
    case kUnknownSystem:
      return tr("There is no reference system with this EPSG code.");
    case kNotProjected:
      return tr("This system is not projected: it has no easting and northing.");
    case kNotInMetres:
      return tr("This system does not count in metres. Choose one that does.");
    case kCountsBackward:
      return tr("This system counts westward or southward. Choose one with easting and northing.");
    default:
      return tr("This system cannot be turned into longitude and latitude.");
  }
}

/// What keeps the line off the globe, in words; empty when nothing does.
QString setGeographyDialog::problem() const {
  if (mTransformer && !mTransformer->status().ok()) return systemProblem();
  const std::optional<geographicsCoord> ends = entered();
  if (!ends) return tr("Enter easting and northing of both geophones, in metres.");
  if (!mTransformer) {
    return tr("Enter the EPSG code of the reference system, for example 32632 for UTM zone 32 N.");
  }
  switch (LineOnGlobe(mTransformer, *ends).status().code()) {
    case 0:
      return {};
    case kSameEnds:
      return tr("The first and the last geophone have the same coordinates.");
    default:
      return tr("These coordinates lie outside of the reference system.");
  }
}

QString setGeographyDialog::lengthNote(double onMap) const {
  const QString apart = tr("On the map the two geophones are %1 apart").arg(along(onMap));
  if (!mEnds) return apart + QLatin1Char('.');
  const QString both = tr("%1, along the line %2.", "distance on the map, distance along the line")
                           .arg(apart, along(mEnds->length()));
  if (std::abs(onMap - mEnds->length()) <= kTolerance * mEnds->length()) return both;
  return both + QLatin1Char(' ') + tr("Check the coordinates.");
}

void setGeographyDialog::check() {
  showPlace(*mUi->firstPlace, mUi->estFstGeoph->text(), mUi->northFstGeoph->text());
  showPlace(*mUi->lastPlace, mUi->estLstGeoph->text(), mUi->northLstGeoph->text());
  const QString why = problem();
  const bool good = why.isEmpty();
  mUi->checkLabel->setText(good ? lengthNote(LinePlacement(*entered()).length()) : why);
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(good);
}

}  // namespace talvesk
