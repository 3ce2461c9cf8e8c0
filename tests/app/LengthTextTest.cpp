#include "app/LengthText.h"
#include "app/UnitWords.h"
#include "app/dialogs/LengthBox.h"
#include "app/dialogs/ParameterField.h"
#include "support/InFeet.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::InFeet;

/// The locale of the user, until the end of a test.
class OfLocale {
 public:
  explicit OfLocale(const QLocale& locale) { QLocale::setDefault(locale); }
  ~OfLocale() { QLocale::setDefault(QLocale::c()); }
};

const QLocale kGerman(QLocale::German, QLocale::Germany);

// --- Texts

TEST(LengthText, writesMetresAsTheyAreAndFeetAsTheyWereTyped) {
  const struct {
    double metres;
    const char* inMetres;
    const char* inFeet;
  } cases[] = {{0.0, "0", "0"},
               {3.048, "3.048", "10"},
               {0.3, "0.3", "0.984"},
               {100.0, "100", "328.084"},
               {-1.5, "-1.5", "-4.921"},
               {0.0003048, "0.0003048", "0.001"},
               {0.01, "0.01", "0.032808"},
               {1234.56, "1234.56", "4050.394"}};
  for (const auto& each : cases) {
    EXPECT_EQ(lengthText(each.metres).toStdString(), each.inMetres);
    const InFeet feet;
    EXPECT_EQ(lengthText(each.metres).toStdString(), each.inFeet);
  }
  const InFeet feet;
  const OfLocale german(kGerman);
  EXPECT_EQ(lengthText(1234.56), QStringLiteral("4050,394"));
}

TEST(LengthText, readsTypedFeetExactlyAndLeavesWhatWasNotEdited) {
  EXPECT_EQ(lengthFrom("10"), 10.0);
  EXPECT_EQ(lengthFrom("0.1", 0.1), 0.1);
  const InFeet feet;
  EXPECT_EQ(lengthFrom("10"), 3.048);
  EXPECT_EQ(lengthFrom("10.5"), 3.2004);
  EXPECT_EQ(lengthFrom("-0.1"), -0.03048);
  EXPECT_EQ(lengthFrom("4921.25984"), 1499.999999232);
  EXPECT_EQ(lengthFrom("ten"), std::nullopt);
  EXPECT_EQ(lengthFrom(""), std::nullopt);
  for (const double held : {0.3, 1.0 / 3.0, 47.123456789, -0.01, 12345.678, 1e-9, 0.0}) {
    EXPECT_EQ(lengthFrom(lengthText(held), held), held);
    EXPECT_EQ(lengthFrom(' ' + lengthText(held) + ' ', held), held);
  }
  EXPECT_NE(lengthFrom("0.985", 0.3), 0.3);
  EXPECT_EQ(metresTyped(0.984, 0.3), 0.3)
      << "as it is pasted into the cell that it was copied from";
}

TEST(LengthText, tellsLengthsWithTheirUnit) {
  const OfLocale c(QLocale::c());
  EXPECT_EQ(lengthWithUnit(12.5, 2), QStringLiteral("12.50 m"));
  EXPECT_EQ(velocityWithUnit(1500.0, 0), QStringLiteral("1500 m/s"));
  EXPECT_EQ(lengthDigits(12.5, 6), QStringLiteral("12.5"));
  const InFeet feet;
  EXPECT_EQ(lengthWithUnit(12.5, 2), QStringLiteral("41.01 ft"));
  EXPECT_EQ(velocityWithUnit(1524.0, 0), QStringLiteral("5000 ft/s"));
  EXPECT_EQ(lengthDigits(3.048, 6), QStringLiteral("10"));
}

TEST(UnitWords, exchangeTheUnitInBracketsThereAndBack) {
  const struct {
    const char* metres;
    const char* feet;
  } cases[] = {{"Cell size (m)", "Cell size (ft)"},
               {"S&pacing (m):", "S&pacing (ft):"},
               {"Velocity [m/s]", "Velocity [ft/s]"},
               {"Across\n(m)", "Across\n(ft)"},
               {"Depths (m), velocities (m/s)", "Depths (ft), velocities (ft/s)"},
               {"Time (ms)", "Time (ms)"},
               {"a (mm) b [mm] (min) m/s m", "a (mm) b [mm] (min) m/s m"}};
  for (const auto& each : cases) {
    EXPECT_EQ(inShownUnits(each.metres).toStdString(), each.metres);
    {
      const InFeet feet;
      EXPECT_EQ(inShownUnits(each.metres).toStdString(), each.feet);
      EXPECT_EQ(inShownUnits(each.feet).toStdString(), each.feet);
    }
    EXPECT_EQ(inShownUnits(each.feet).toStdString(), each.metres);
  }
}

// --- Fields

/// As a user types into a field: all of it selected, ended by the Enter key.
void type(QAbstractSpinBox& box, const QString& text) {
  box.selectAll();
  QTest::keyClicks(&box, text);
  QTest::keyClick(&box, Qt::Key_Return);
}

constexpr Parameter<double> kDepthOf = {"depth", 5.0, {0.1, 1000.0, 2}, "metres", "depth"};

TEST(LengthBox, isAPlainFieldInMetres) {
  LengthBox box;
  QDoubleSpinBox plain;
  for (QDoubleSpinBox* each : {static_cast<QDoubleSpinBox*>(&box), &plain}) each->setSuffix(" m");
  setUpField(box, kDepthOf);
  setUpField(plain, kDepthOf);
  for (const char* typed : {"10", "0.3", "12.345", "2000", "-1", "x", "0.05", "999.999"}) {
    type(box, typed);
    type(plain, typed);
    EXPECT_EQ(box.value(), plain.value()) << typed;
    EXPECT_EQ(box.text(), plain.text()) << typed;
  }
  box.setValue(1.005);
  plain.setValue(1.005);
  box.stepBy(3);
  plain.stepBy(3);
  EXPECT_EQ(box.value(), plain.value());
  EXPECT_EQ(box.decimals(), plain.decimals());
  EXPECT_EQ(limitsOf(box), limitsOf(plain));
  EXPECT_EQ(limitsOf(box), QStringLiteral("0.10 m \u2013 1000.00 m"));
}

TEST(LengthBox, takesFeetExactlyAndWithinItsLimitsAsTheyAreSeen) {
  const InFeet feet;
  LengthBox box;
  box.setSuffix(" m");
  setUpField(box, kDepthOf);
  showUnits(box);
  EXPECT_EQ(box.text(), QStringLiteral("16.40 ft"));
  EXPECT_EQ(limitsOf(box), QStringLiteral("0.33 ft \u2013 3280.84 ft"));
  const struct {
    const char* typed;
    double metres;
    const char* seen;
  } cases[] = {{"10", 3.048, "10.00 ft"},         {"10.5", 3.2004, "10.50 ft"},
               {"0.99", 0.301752, "0.99 ft"},     {"0.33", 0.1, "0.33 ft"},
               {"3280.84", 1000.0, "3280.84 ft"}, {"12.34 ft", 3.761232, "12.34 ft"}};
  for (const auto& each : cases) {
    type(box, each.typed);
    EXPECT_EQ(box.value(), each.metres) << each.typed;
    EXPECT_EQ(box.text().toStdString(), each.seen);
  }
  type(box, "10");
  for (const char* refused : {"3280.85", "0.32", "x", "-5"}) {
    type(box, refused);
    EXPECT_GE(box.value(), 0.1) << refused;
    EXPECT_LE(box.value(), 1000.0) << refused;
  }
}

TEST(LengthBox, keepsToTheBitWhatWasNotEdited) {
  const InFeet feet;
  LengthBox box;
  setUpField(box, kDepthOf);
  for (const double metres : {0.3, 0.1, 47.13, 999.99, 0.35, 12.5}) {
    box.setValue(metres);
    ASSERT_EQ(box.value(), metres);
    QTest::keyClick(&box, Qt::Key_Return);
    box.interpretText();
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClicks(&box, "5");  // one decimal more than it takes
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.value(), metres);
  }
  box.setValue(0.123456);
  EXPECT_EQ(box.value(), 0.12) << "as in metres";
}

TEST(LengthBox, goesInRoundStepsByArrowsAndWheel) {
  const InFeet feet;
  LengthBox box;
  setUpField(box, kDepthOf);
  box.setSingleStep(0.5);  // 1.64 ft
  box.setValue(5.0);       // 16.40 ft
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(box.text(), QStringLiteral("18.00"));
  EXPECT_EQ(box.value(), 5.4864);
  QTest::keyClick(&box, Qt::Key_Down);
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(box.text(), QStringLiteral("14.00"));
  QTest::keyClick(&box, Qt::Key_PageUp);  // ten steps
  EXPECT_EQ(box.text(), QStringLiteral("34.00"));
  box.show();
  box.setFocus();
  QWheelEvent wheel({5.0, 5.0}, box.mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(box.text(), QStringLiteral("36.00"));
  box.setValue(0.2);
  box.stepBy(-5);
  EXPECT_EQ(box.value(), 0.1) << "no lower than its limit";
  box.setValue(999.9);
  box.stepBy(1);
  EXPECT_EQ(box.value(), 1000.0);
}

TEST(LengthBox, readsADecimalComma) {
  const OfLocale german(kGerman);
  const InFeet feet;
  LengthBox box;
  setUpField(box, kDepthOf);
  type(box, QStringLiteral("10,5"));
  EXPECT_EQ(box.value(), 3.2004);
  EXPECT_EQ(box.text(), QStringLiteral("10,50"));
  box.setValue(0.3);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(box.value(), 0.3);
  EXPECT_EQ(box.text(), QStringLiteral("0,98"));
}

constexpr Parameter<double> kVelocityOf = {"v", 250.0, {1.0, 999999999.0, 0}, "m/s", "velocity"};

TEST(VelocityBox, isAPlainFieldInMetres) {
  VelocityBox box;
  QSpinBox plain;
  setUpField(box, kVelocityOf);
  setUpField(plain, kVelocityOf);
  for (const char* typed : {"1500", "0", "3.5", "x", "1000000"}) {
    type(box, typed);
    type(plain, typed);
    EXPECT_EQ(box.value(), plain.value()) << typed;
    EXPECT_EQ(box.text(), plain.text()) << typed;
  }
  box.stepBy(-2);
  plain.stepBy(-2);
  EXPECT_EQ(box.value(), plain.value());
}

TEST(VelocityBox, takesFeetExactlyAndKeepsToTheBitWhatWasNotEdited) {
  const InFeet feet;
  VelocityBox box;
  setUpField(box, kVelocityOf);
  for (double velocity = 1.0; velocity < 12000.0; velocity += 7.3) {
    box.setVelocity(velocity);
    QTest::keyClick(&box, Qt::Key_Return);
    box.interpretText();
    ASSERT_EQ(box.velocity(), velocity);
    ASSERT_EQ(box.value(), static_cast<int>(std::round(velocity)));
  }
  type(box, "4000");
  EXPECT_EQ(box.velocity(), 1219.2);
  EXPECT_EQ(box.value(), 1219);
  EXPECT_EQ(box.text(), QStringLiteral("4000"));
  VelocityBox again;
  setUpField(again, kVelocityOf);
  again.setVelocity(box.velocity());
  EXPECT_EQ(again.text(), QStringLiteral("4000"));
  box.setValue(1500);
  QTest::keyClick(&box, Qt::Key_Return);
  box.interpretText();
  EXPECT_EQ(box.velocity(), 1500.0);
  EXPECT_EQ(box.text(), QStringLiteral("4921"));
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(box.text(), QStringLiteral("4925"));
  EXPECT_EQ(box.velocity(), 1501.14);
  box.setSingleStep(10);  // 32.8 ft/s
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(box.text(), QStringLiteral("4900"));
}

TEST(VelocityBox, staysWithinItsLimitsAsTheyAreSeen) {
  const InFeet feet;
  VelocityBox box;
  setUpField(box, kVelocityOf);
  box.setValue(box.maximum());
  EXPECT_EQ(box.text(), QStringLiteral("3280839892")) << "more than an int holds";
  type(box, "3280839892");
  EXPECT_EQ(box.velocity(), box.maximum());
  type(box, "3");  // 0.91 m/s; the least is 3.28 ft/s
  EXPECT_EQ(box.velocity(), 1.0);
  box.stepBy(-1);
  EXPECT_EQ(box.velocity(), 1.0);
  for (const double none : {std::nan(""), -5.0, 1e12}) {
    box.setVelocity(none);
    EXPECT_EQ(box.velocity(), none > 0.0 ? box.maximum() : box.minimum());
  }
}

TEST(VelocityBox, tellsOfFeetThatAreTheSameWholeMetres) {
  const InFeet feet;
  VelocityBox box;
  setUpField(box, kVelocityOf);
  type(box, "4000");
  int whole = 0;
  int told = 0;
  QObject::connect(&box, QOverload<int>::of(&QSpinBox::valueChanged), [&] { ++whole; });
  QObject::connect(&box, &VelocityBox::velocityChanged, [&] { ++told; });
  box.findChild<QLineEdit*>()->setCursorPosition(4);
  QTest::keyClick(&box, Qt::Key_Backspace);
  QTest::keyClick(&box, Qt::Key_1);  // 4001
  whole = told = 0;
  QTest::keyClick(&box, Qt::Key_Backspace);
  QTest::keyClick(&box, Qt::Key_2);  // 4002, by way of 400
  EXPECT_EQ(box.velocity(), 1219.8096);
  EXPECT_EQ(told, 2);
  box.setVelocity(1219.8);
  EXPECT_EQ(told, 3);
  EXPECT_EQ(whole, 2) << "1220 before and after";
  box.setVelocity(1219.8);
  EXPECT_EQ(told, 3);
}

TEST(VelocityBox, truncatesWhatItIsGivenInMetres) {
  VelocityBox box;
  setUpField(box, kVelocityOf);
  box.setVelocity(1219.8);
  EXPECT_EQ(box.velocity(), 1219.0);
  type(box, "1500");
  EXPECT_EQ(box.velocity(), 1500.0);
}

TEST(UnitWords, turnVelocitiesInSentences) {
  const OfLocale c(QLocale::c());
  const QString text = QStringLiteral("such as 1500 m/s for the water table (m/s)");
  EXPECT_EQ(inShownVelocities(text), text);
  const InFeet feet;
  EXPECT_EQ(inShownVelocities(text).toStdString(), "such as 4921 ft/s for the water table (m/s)");
}

TEST(UnitWords, reachTheFieldsOfAFormAndLeaveThoseInMetres) {
  QWidget form;
  auto* label = new QLabel(QStringLiteral("Depth (m)"), &form);
  auto* length = new LengthBox(&form);
  auto* velocity = new VelocityBox(&form);
  auto* metric = new QDoubleSpinBox(&form);
  length->setSuffix(" m");
  velocity->setRange(1, 9000);
  velocity->setSuffix(" m/s");
  metric->setSuffix(" m");
  length->setValue(3.05);
  velocity->setValue(1500);
  const InFeet feet;
  showUnits(form);
  EXPECT_EQ(label->text(), QStringLiteral("Depth (ft)"));
  EXPECT_EQ(length->text(), QStringLiteral("10.01 ft"));
  EXPECT_EQ(length->value(), 3.05);
  EXPECT_EQ(velocity->text(), QStringLiteral("4921 ft/s"));
  EXPECT_EQ(metric->suffix(), QStringLiteral(" m"));
}

}  // namespace
}  // namespace talvesk
