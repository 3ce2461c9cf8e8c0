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

/// The same for whole metres per second: a QSpinBox in metres, whole feet per second in feet. What
/// was typed stays to be seen, though the value is the nearest metre per second.
class VelocityBox : public QSpinBox {
 public:
  explicit VelocityBox(QWidget* parent = nullptr);

  void followUnit();

  QString textFromValue(int metresPerSecond) const override;
  int valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void stepBy(int steps) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  mutable std::optional<double> mTyped;  ///< in the unit shown

  double shown(int metresPerSecond) const;
};

}  // namespace talvesk
