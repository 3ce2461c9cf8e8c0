#include "app/DarkDesktop.h"

#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionViewItem>
#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr QRect kBox(8, 8, 16, 16);

QPalette dark() {
  QPalette palette(QColor(0x31, 0x36, 0x3b));
  palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
  return palette;
}

/// How far the lightest pixel of what is to be ticked stands out from the ground of a table.
int standsOut(const QStyle& style, QStyle::PrimitiveElement element, const QPalette& palette,
              QStyle::State state = QStyle::State_Enabled | QStyle::State_Off) {
  const QColor& ground = palette.color(QPalette::Base);
  QImage image(32, 32, QImage::Format_RGB32);
  image.fill(ground);
  QStyleOptionViewItem option;
  option.rect = kBox;
  option.palette = palette;
  option.state = state;
  QPainter painter(&image);
  style.drawPrimitive(element, &option, &painter);
  painter.end();
  int most = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      most = std::max(most, image.pixelColor(x, y).lightness() - ground.lightness());
    }
  }
  return most;
}

TEST(DarkDesktop, showsWhatIsToBeTickedInATable) {
  const QString name = QStringLiteral("Fusion");
  const BoxOutlines style(QStyleFactory::create(name));
  const std::unique_ptr<QStyle> plain(QStyleFactory::create(name));
  for (const QStyle::PrimitiveElement element :
       {QStyle::PE_IndicatorItemViewItemCheck, QStyle::PE_IndicatorRadioButton}) {
    EXPECT_LT(standsOut(*plain, element, dark()), 20) << "nobody needs our style";
    EXPECT_GT(standsOut(style, element, dark()), 60);
  }
}

TEST(DarkDesktop, leavesLightDesktopsAsTheyAre) {
  const QString name = QStringLiteral("Fusion");
  const BoxOutlines style(QStyleFactory::create(name));
  const std::unique_ptr<QStyle> plain(QStyleFactory::create(name));
  QPalette light(QColor(0xef, 0xef, 0xef));
  EXPECT_FALSE(isDark(light));
  EXPECT_TRUE(isDark(dark()));
  light.setColor(QPalette::Base, Qt::gray);
  EXPECT_EQ(standsOut(style, QStyle::PE_IndicatorCheckBox, light),
            standsOut(*plain, QStyle::PE_IndicatorCheckBox, light));
}

}  // namespace
}  // namespace talvesk
