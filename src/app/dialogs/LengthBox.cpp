#include "app/dialogs/LengthBox.h"

#include "app/LengthText.h"
#include "base/LengthUnit.h"

#include <QDoubleValidator>
#include <QEvent>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kDecimalsOfFoot = 4;  // a foot is 0.3048 m: so many more make typed feet exact

bool inMetres() {
  return lengthUnit() == LengthUnit::kMetre;
}

double rounded(double number, int decimals) {
  return QString::number(number, 'f', decimals).toDouble();
}

/// The number without the unit behind it.
QString bare(QString text, const QString& suffix) {
  if (!suffix.isEmpty() && text.endsWith(suffix)) text.chop(suffix.size());
  return text.trimmed();
}

QString shownText(const QAbstractSpinBox& box, double shown, int decimals) {
  QLocale locale = box.locale();
  if (!box.isGroupSeparatorShown()) locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(shown, 'f', decimals);
}

std::optional<double> typedNumber(const QAbstractSpinBox& box, const QString& text) {
  bool isNumber = false;
  const double number = box.locale().toDouble(text, &isNumber);
  return isNumber && std::isfinite(number) ? std::make_optional(number) : std::nullopt;
}

/// \param least, most in the unit shown; a limit counts as it is seen
QValidator::State judge(const QAbstractSpinBox& box, QString text, double least, double most,
                        int decimals) {
  QDoubleValidator validator(std::min(least, rounded(least, decimals)),
                             std::max(most, rounded(most, decimals)), decimals, nullptr);
  validator.setNotation(QDoubleValidator::StandardNotation);
  QLocale locale = box.locale();
  locale.setNumberOptions(QLocale::RejectGroupSeparator);
  validator.setLocale(locale);
  int position = 0;
  return validator.validate(text, position);
}

/// The 1, 2 or 5 of the decade that is nearest to a step.
double roundStep(double step) {
  const double decade = std::pow(10.0, std::floor(std::log10(step)));
  const double part = step / decade;
  const double round = part < std::sqrt(2.0)    ? 1.0
                       : part < std::sqrt(10.0) ? 2.0
                       : part < std::sqrt(50.0) ? 5.0
                                                : 10.0;
  return round * decade;
}

/// Where so many steps from a number lead, all in the unit shown.
double stepped(double from, double step, int steps) {
  constexpr double kOn = 1e-6;  // of a step: as good as on a multiple
  const double at = from / step;
  return step * (steps > 0 ? std::floor(at + kOn) + steps : std::ceil(at - kOn) + steps);
}

template <typename Box>
void showUnitBehind(Box& box) {
  if (box.suffix() == QLatin1String(" m") || box.suffix() == QLatin1String(" ft")) {
    box.setSuffix(QLatin1Char(' ') + QLatin1String(lengthUnitName()));
  } else if (box.suffix() == QLatin1String(" m/s") || box.suffix() == QLatin1String(" ft/s")) {
    box.setSuffix(QLatin1Char(' ') + QLatin1String(velocityUnitName()));
  }
}

}  // namespace

LengthBox::LengthBox(QWidget* parent) : QDoubleSpinBox(parent) {
  setDecimals(mDecimals);
}

void LengthBox::setDecimals(int decimals) {
  mDecimals = decimals;
  QDoubleSpinBox::setDecimals(inMetres() ? decimals : decimals + kDecimalsOfFoot);
}

void LengthBox::setValue(double metres) {
  QDoubleSpinBox::setValue(rounded(metres, mDecimals));
}

void LengthBox::followUnit() {
  setDecimals(mDecimals);
  showUnitBehind(*this);
  setSuffix(suffix());  // the number is written anew
}

QString LengthBox::textFromValue(double metres) const {
  if (inMetres()) return QDoubleSpinBox::textFromValue(metres);
  return shownText(*this, shownLength(metres), mDecimals);
}

double LengthBox::valueFromText(const QString& text) const {
  if (inMetres()) return QDoubleSpinBox::valueFromText(text);
  const std::optional<double> typed = typedNumber(*this, bare(text, suffix()));
  if (!typed) return value();
  for (const double known : {value(), minimum(), maximum()}) {
    if (*typed == rounded(shownLength(known), mDecimals)) return known;
  }
  return metresTyped(*typed);
}

QValidator::State LengthBox::validate(QString& text, int& position) const {
  if (inMetres()) return QDoubleSpinBox::validate(text, position);
  return judge(*this, bare(text, suffix()), shownLength(minimum()), shownLength(maximum()),
               mDecimals);
}

void LengthBox::stepBy(int steps) {
  if (inMetres()) return QDoubleSpinBox::stepBy(steps);
  const double step = roundStep(shownLength(singleStep()));
  QDoubleSpinBox::setValue(metresTyped(stepped(shownLength(value()), step, steps)));
  selectAll();
}

void LengthBox::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) followUnit();
  QDoubleSpinBox::changeEvent(event);
}

VelocityBox::VelocityBox(QWidget* parent) : QSpinBox(parent), mTold(value()) {
  connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, &VelocityBox::tell);
  // The whole metres per second may be the same.
  connect(lineEdit(), &QLineEdit::textChanged, this, &VelocityBox::tell);
  connect(this, &QSpinBox::editingFinished, this, &VelocityBox::tell);
}

void VelocityBox::tell() {
  if (velocity() == mTold) return;
  mTold = velocity();
  emit velocityChanged();
}

double VelocityBox::velocity() const {
  return velocityOf(value());
}

void VelocityBox::setVelocity(double metresPerSecond) {
  const double held = within(std::isfinite(metresPerSecond) ? metresPerSecond : 0.0);
  mExact = inMetres() ? std::nullopt : std::make_optional(held);
  setValue(mExact ? whole(held) : static_cast<int>(held));
  tell();
}

void VelocityBox::followUnit() {
  if (inMetres()) mExact.reset();
  showUnitBehind(*this);
  setSuffix(suffix());  // the number is written anew
}

double VelocityBox::within(double metresPerSecond) const {
  return std::clamp<double>(metresPerSecond, minimum(), maximum());
}

int VelocityBox::whole(double metresPerSecond) const {
  return static_cast<int>(within(std::round(metresPerSecond)));
}

/// What was typed or given where it rounds to this.
double VelocityBox::velocityOf(int metresPerSecond) const {
  return mExact && whole(*mExact) == metresPerSecond ? *mExact : metresPerSecond;
}

QString VelocityBox::textFromValue(int metresPerSecond) const {
  if (inMetres()) return QSpinBox::textFromValue(metresPerSecond);
  return shownText(*this, shownLength(velocityOf(metresPerSecond)), 0);
}

int VelocityBox::valueFromText(const QString& text) const {
  if (inMetres()) return QSpinBox::valueFromText(text);
  const std::optional<double> typed = typedNumber(*this, bare(text, suffix()));
  if (!typed || *typed == std::round(shownLength(velocity()))) return value();
  mExact = within(metresTyped(*typed));
  return whole(*mExact);
}

QValidator::State VelocityBox::validate(QString& text, int& position) const {
  if (inMetres()) return QSpinBox::validate(text, position);
  return judge(*this, bare(text, suffix()), shownLength(minimum()), shownLength(maximum()), 0);
}

void VelocityBox::stepBy(int steps) {
  if (inMetres()) return QSpinBox::stepBy(steps);
  const double step = roundStep(shownLength(singleStep()));
  setVelocity(metresTyped(stepped(shownLength(velocity()), step, steps)));
  selectAll();
}

void VelocityBox::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) followUnit();
  QSpinBox::changeEvent(event);
}

}  // namespace talvesk
