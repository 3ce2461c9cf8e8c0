#include "support/ConsoleCapture.h"
#include "widgets/ColorPaletteWidget.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <limits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

/// An editor on handles at 1000, 2000, 3000 and 5000, and the hands of a user.
class PaletteEditor : public ::testing::Test {
 protected:
  PaletteEditor() {
    ColorPalette palette;
    palette.min_db = 1000.0;
    palette.max_db = 5000.0;
    palette.color_gradient.assign({{1, 0, 0, 0}, {0, 1, 0, 0.25}, {0, 0, 1, 0.5}, {1, 1, 1, 1}});
    widget.setColorPalette(palette);
    widget.resize(820, 300);
    widget.show();
    QObject::connect(&widget, &ColorPaletteWidget::modified, [this] { ++modified; });
    QObject::connect(&widget, &ColorPaletteWidget::changed_min_value,
                     [this](int value) { minima.push_back(value); });
    QObject::connect(&widget, &ColorPaletteWidget::changed_max_value,
                     [this](int value) { maxima.push_back(value); });
  }

  void drag(std::size_t handle, int toX) {
    QWidget* track = widget.handleTrack();
    const QPoint from = widget.handlePosition(handle);
    QTest::mousePress(track, Qt::LeftButton, Qt::NoModifier, from);
    for (int i = 1; i <= 8; ++i) {
      const QPoint at(from.x() + (toX - from.x()) * i / 8, from.y());
      QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(track, &move);
    }
    QTest::mouseRelease(track, Qt::LeftButton, Qt::NoModifier, QPoint(toX, from.y()));
  }
  std::vector<int> values() const {
    std::vector<int> found;
    const auto next = [this, &found] {
      return widget.findChild<QSlider*>(QStringLiteral("handle%1").arg(found.size() + 1));
    };
    while (const QSlider* slider = next()) found.push_back(slider->value());
    return found;
  }
  std::string message() const { return widget.findChild<QLabel*>("message")->text().toStdString(); }
  template <typename Child>
  Child& child(const char* name) {
    return *widget.findChild<Child*>(QLatin1String(name));
  }

  testing::ConsoleCapture console;
  ColorPaletteWidget widget;
  int modified = 0;
  std::vector<int> minima;
  std::vector<int> maxima;
};

TEST_F(PaletteEditor, showsASliderPerStopOverTheWholeScale) {
  EXPECT_THAT(values(), ElementsAre(1000, 2000, 3000, 5000));
  for (const QSlider* slider : widget.handleTrack()->findChildren<QSlider*>()) {
    EXPECT_EQ(slider->minimum(), 1000);
    EXPECT_EQ(slider->maximum(), 5000);
  }
  EXPECT_THAT(child<QFrame>("preview").styleSheet().toStdString(),
              HasSubstr("border: 1px solid grey; font-size: 11px; background-color: "
                        "qlineargradient( x1: 0, y1: 0, x2: 1, y2: 0,stop: 0 #ff0000, "
                        "stop: 0.25 #00ff00, stop: 0.5 #0000ff, stop: 1 #ffffff)"));
}

TEST_F(PaletteEditor, tellsOfEveryHandleThatItCreates) {
  EXPECT_THAT(console.out(), HasSubstr("creating handle value : 1000\n"
                                       "creating handle value : 2000\n"
                                       "creating handle value : 3000\n"
                                       "creating handle value : 5000\n"));
  widget.addHandle();
  EXPECT_THAT(console.out(), EndsWith("creating handle value : 1500\n"));
}

TEST_F(PaletteEditor, movesAnInnerHandleWithTheMouseAndKeepsTheGap) {
  drag(1, widget.handleTrack()->width() * 3 / 8);
  EXPECT_NEAR(values()[1], 2500, 10) << "under the mouse";
  EXPECT_GT(modified, 0);
  EXPECT_DOUBLE_EQ(widget.gradient().points()[1].mval, (values()[1] - 1000) / 4000.0);
  EXPECT_THAT(console.out(), HasSubstr("new value: " + std::to_string(values()[1]) + "\n"));
  drag(1, widget.handleTrack()->width());
  EXPECT_EQ(values()[1], 2950);
  drag(1, 0);
  EXPECT_EQ(values()[1], 1050);
}

TEST_F(PaletteEditor, leavesTheEndsWhereTheyAre) {
  drag(0, 300);
  EXPECT_EQ(message(), "Cannot move handle at mimimum value.");
  drag(3, 300);
  EXPECT_EQ(message(), "Cannot move handle at maximum value.");
  EXPECT_THAT(console.out(), HasSubstr("Cannot move handle at mimimum value.\n"));
  EXPECT_THAT(values(), ElementsAre(1000, 2000, 3000, 5000));
  EXPECT_EQ(modified, 0);
  EXPECT_FALSE(child<QPushButton>("deleteSlider").isEnabled());
}

TEST_F(PaletteEditor, doesNotMoveWhatIsOnlyClicked) {
  QTest::mouseClick(widget.handleTrack(), Qt::LeftButton, Qt::NoModifier,
                    widget.handlePosition(1) + QPoint(5, 0));
  EXPECT_EQ(widget.selectedHandle(), 1U);
  EXPECT_EQ(modified, 0);
}

TEST_F(PaletteEditor, worksByKeysAlone) {
  QWidget* track = widget.handleTrack();
  QTest::keyClick(track, Qt::Key_Up);
  QTest::keyClick(track, Qt::Key_Right);
  QTest::keyClick(track, Qt::Key_Left, Qt::ControlModifier);
  QTest::keyClick(track, Qt::Key_PageUp);
  EXPECT_THAT(values(), ElementsAre(1000, 2109, 3000, 5000));
  QTest::keyClick(track, Qt::Key_Insert);
  EXPECT_THAT(values(), ElementsAre(1000, 2109, 2554, 3000, 5000));
  QTest::keyClick(track, Qt::Key_Delete);
  QTest::keyClick(track, Qt::Key_End);
  QTest::keyClick(track, Qt::Key_Delete);
  EXPECT_THAT(values(), ElementsAre(1000, 2109, 3000, 5000));
  EXPECT_EQ(message(), "The first and the last handle stay.");
  child<QSpinBox>("selectedHandle").setValue(3);
  child<QSpinBox>("handleValue").setValue(4000);
  EXPECT_THAT(values(), ElementsAre(1000, 2109, 4000, 5000));
}

TEST_F(PaletteEditor, carriesTheHandlesAlongWithTheScale) {
  child<QSpinBox>("minimum").setValue(0);
  child<QSpinBox>("maximum").setValue(8000);
  EXPECT_THAT(values(), ElementsAre(0, 2000, 4000, 8000));
  EXPECT_THAT(minima, ElementsAre(0));
  EXPECT_THAT(maxima, ElementsAre(8000));
  EXPECT_EQ(modified, 0);
}

TEST_F(PaletteEditor, letsTheEndsOfTheScalePushEachOther) {
  const auto type = [this](const char* box, int value) { child<QSpinBox>(box).setValue(value); };
  type("minimum", 6000);  // above the maximum of 5000
  EXPECT_THAT(std::make_pair(widget.minimum(), widget.maximum()), ::testing::Pair(6000, 6001));
  EXPECT_THAT(maxima, ElementsAre(6001));
  type("maximum", 9000);
  type("maximum", 100);
  EXPECT_THAT(std::make_pair(widget.minimum(), widget.maximum()), ::testing::Pair(99, 100));
  EXPECT_THAT(minima, ElementsAre(6000, 99));
  EXPECT_THAT(maxima, ElementsAre(6001, 9000, 100));
  widget.updateMinValue(std::numeric_limits<int>::max());
  widget.updateMaxValue(std::numeric_limits<int>::min());
  EXPECT_LT(widget.minimum(), widget.maximum());
}

TEST_F(PaletteEditor, changesTheScaleButNotTheColoursOfABuiltInPalette) {
  widget.setColorPalette(ColorPaletteList().current());
  drag(1, 600);
  QTest::keyClick(widget.handleTrack(), Qt::Key_Insert);
  widget.addHandle();
  widget.deleteHandle();
  EXPECT_THAT(values(), ElementsAre(250, 1063, 1875, 2688, 3500));
  EXPECT_EQ(modified, 0);
  widget.updateMaxValue(4000);
  EXPECT_THAT(maxima, ElementsAre(4000));
}

TEST_F(PaletteEditor, standsAnyPalette) {
  for (const double low : {-1e300, 0.0, 0.3, 1e300, std::nan("")}) {
    ColorPalette palette;
    palette.min_db = low;
    palette.max_db = low;
    widget.setColorPalette(palette);  // without a single stop
    EXPECT_LT(widget.minimum(), widget.maximum()) << low;
    EXPECT_GE(values().size(), 2U) << low;
    widget.grab();
  }
}

}  // namespace
}  // namespace talvesk
