#include "figures/SectionFigure.h"
#include "model/TomographyOutcome.h"
#include "support/CertainDocument.h"
#include "widgets/section/SectionSheet.h"

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QRegularExpression>
#include <QStringList>
#include <QSvgGenerator>
#include <memory>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

constexpr double kMmPerPixel = 25.4 / 96.0;

QStringList textsOf(const QByteArray& svg) {
  QStringList texts;
  QRegularExpressionMatchIterator found =
      QRegularExpression(QStringLiteral("<text [^>]*>([^<]*)</text>"))
          .globalMatch(QString::fromUtf8(svg));
  while (found.hasNext()) texts << found.next().captured(1).trimmed();
  return texts;
}

QByteArray asSvg(const SectionPaper& paper, const QSize& size, const SectionCamera& camera) {
  QBuffer buffer;
  QSvgGenerator generator;
  generator.setResolution(96);
  generator.setSize(size);
  generator.setOutputDevice(&buffer);
  QPainter painter(&generator);
  paper.paint(painter, size, camera);
  painter.end();
  return buffer.data();
}

TEST(SectionSheet, onTheScreenAndInAFileHasTheSameTicksAndTexts) {
  TomoDocument document = sectionDocument(14, 60, 3.0, [](std::uint32_t row, std::uint32_t c) {
    return 400.0 + 110.0 * row + 5.0 * c;
  });
  document.title = "Line 7";
  document.result.edit().certainty = testing::certainDocument(14, 60).result->certainty;
  document.result.edit().rays = {{0, 5, 10}};
  const std::vector<SectionLine> refractors = {{"", {{{105.0, 95.0}, {150.0, 96.0}}}},
                                               {"Bedrock", {{{105.0, 90.0}, {150.0, 91.0}}}}};
  const ColorPalette palette = ColorPaletteList().current();
  QFont font(QStringLiteral("sans-serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(12);

  SectionViewSettings plain;
  SectionViewSettings rich;
  rich.rays = rich.refraction = rich.gridLines = true;
  rich.verticalExaggeration = 2.5;
  rich.contours.onProfile = rich.contours.filled = true;
  SectionViewSettings gradient;
  gradient.quantity = SectionQuantity::kVerticalGradient;
  gradient.title = gradient.scalarBar = false;
  SectionViewSettings lines;
  lines.profile = false;
  SectionViewSettings sure;
  sure.fadeUncertain = true;
  sure.bandVelocities = {700.0, 900.0};
  SectionViewSettings spread;
  spread.quantity = SectionQuantity::kCertainty;
  for (const SectionViewSettings& settings : {plain, rich, gradient, lines, sure, spread}) {
    for (const QSize& size : {QSize(700, 500), QSize(1100, 700), QSize(1600, 1000)}) {
      auto scene = std::make_shared<SectionScene>();
      ASSERT_TRUE(buildSectionScene(document, settings, palette, refractors, *scene).ok());
      SectionSheet sheet;
      sheet.setScene(scene, palette, settings);
      const SectionPaper paper = sheet.paper(font);
      SectionCamera camera;
      camera.exaggeration = settings.verticalExaggeration;
      const QRect plot = paper.plotRect(size, camera.exaggeration);
      paper.fit(camera, plot.size());

      SectionFigureOptions options = sectionFigureOptions(settings, palette, refractors);
      options.widthMm = size.width() * kMmPerPixel;
      options.heightMm = size.height() * kMmPerPixel;
      QByteArray file;
      SectionFigureLayout layout;
      ASSERT_TRUE(renderSectionFigure(document, options, FigureFormat::kSvg, file, &layout).ok());

      const QStringList texts = textsOf(file);
      EXPECT_GT(texts.size(), 10);
      EXPECT_EQ(textsOf(asSvg(paper, size, camera)).join('\n').toStdString(),
                texts.join('\n').toStdString())
          << size.width();
      EXPECT_NEAR(layout.leftMm, plot.left() * kMmPerPixel, 0.3);
      EXPECT_NEAR(layout.topMm, plot.top() * kMmPerPixel, 0.3);
      EXPECT_NEAR(layout.rightMm, (plot.right() + 1) * kMmPerPixel, 0.3);
      EXPECT_NEAR(layout.bottomMm, (plot.bottom() + 1) * kMmPerPixel, 0.3);
    }
  }
}

}  // namespace
}  // namespace talvesk
