#pragma once

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <optional>

namespace talvesk {

/// A field of a length in metres, or of a velocity in metres per second. For the program value,
/// range, step and decimals are metric; what users see, type, and reach by the arrows and the wheel
/// is in the unit of base/LengthUnit.h, with as many decimals. In metres it is a QDoubleSpinBox.
///
/// In feet a value that nobody edited comes back to the bit, typed feet are exact (10.5 is 3.2004),
/// and a limit as it is shown is the limit. Steps are round there (0.5 m becomes 2 ft), and lead to
/// multiples of themselves. The unit itself is the suffix, which showUnits puts right, or stands in
/// the label.
class LengthBox : public QDoubleSpinBox {
 public:
  explicit LengthBox(QWidget* parent = nullptr);

  // Those of QDoubleSpinBox round to the decimals that typed feet need; forms and ParameterField.h
  // know these.
  void setDecimals(int decimals);  ///< of metres, and of what is shown
  void setValue(double metres);    ///< rounded to them, whatever the unit

  /// After another unit was chosen; a change of the language, which tells all widgets of it, does
  /// it, too.
  void followUnit();

  QString textFromValue(double metres) const override;
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void stepBy(int steps) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  int mDecimals = 2;
};

/// The same for a velocity in whole numbers of the unit shown. In metres it is a QSpinBox. In feet
/// velocity() is what was typed, exactly (4000 ft/s are 1219.2 m/s), or what was given, to the bit;
/// value() is the nearest whole metre per second.
class VelocityBox : public QSpinBox {
  Q_OBJECT

 public:
  explicit VelocityBox(QWidget* parent = nullptr);

  double velocity() const;  ///< m/s
  /// \param metresPerSecond taken into the range; where metres are shown, without its decimals
  void setVelocity(double metresPerSecond);

  void followUnit();

  QString textFromValue(int metresPerSecond) const override;
  int valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void stepBy(int steps) override;

 signals:
  void velocityChanged();  ///< also where value() stays what it is

 protected:
  void changeEvent(QEvent* event) override;

 private:
  mutable std::optional<double> mExact;  ///< m/s, of the value() that it rounds to
  double mTold = 0.0;                    ///< m/s

  double within(double metresPerSecond) const;
  int whole(double metresPerSecond) const;
  double velocityOf(int metresPerSecond) const;
  void tell();
};

}  // namespace talvesk
