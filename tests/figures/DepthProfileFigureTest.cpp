#include "figures/DepthProfileFigure.h"
#include "support/SectionDocument.h"
#include "view/DepthProfile.h"

#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

/// Numbers right of the axis title of a panel, by their place above the panels.
QStringList numbersOf(const DepthProfiles& section, double width) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setSize(QSize(static_cast<int>(width), 400));
  DepthProfileDress dress;
  dress.font.setPixelSize(12);
  QPainter painter(&svg);
  paintDepthProfile(painter, {0.0, 0.0, width, 400.0}, section.at(115.0), section, dress);
  painter.end();
  QStringList numbers;
  const QRegularExpression text(
      "matrix\\(1,0,0,1,([-0-9.]+),([-0-9.]+)\\)\"[^>]*>\\s*<text[^>]*>(-?[0-9.]+)<");
  auto each = text.globalMatch(QString::fromUtf8(buffer.data()));
  while (each.hasNext()) {
    const auto match = each.next();
    const bool above = match.captured(2).toDouble() < 55.0;
    if (above && match.captured(1).toDouble() > 0.5 * width) numbers << match.captured(3);
  }
  return numbers;
}

/// Gradients from -2700 to 4600 1/s: a step of 5000 has one number in that range, and steps of 2000
/// are close to each other.
TEST(DepthProfileFigure, hasNumbersEnoughToReadAPanelHoweverNarrow) {
  const TomoDocument document = sectionDocument(12, 30, 0.0, [](std::uint32_t row, std::uint32_t) {
    return row < 5 ? 3000.0 : row < 7 ? 12200.0 : 6800.0;
  });
  const DepthProfiles section(document);
  for (const double width : {430.0, 450.0, 500.0, 560.0, 900.0}) {
    const QStringList numbers = numbersOf(section, width);
    EXPECT_GE(numbers.size(), 2) << width;
    EXPECT_LE(numbers.size(), 11) << width;
  }
}

}  // namespace
}  // namespace talvesk
