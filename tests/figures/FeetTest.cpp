#include "figures/DepthProfileFigure.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/GatherFigure.h"
#include "figures/RefractionFigure.h"
#include "figures/ReportedLine.h"
#include "figures/ResidualFigures.h"
#include "figures/SectionFigure.h"
#include "figures/SectionPaper.h"
#include "figures/SectionPaper_layout.h"
#include "figures/ShownScale.h"
#include "figures/ToldLength.h"
#include "figures/TravelTimeFigure.h"
#include "figures/report/Report.h"
#include "figures/report/ReportContent.h"
#include "figures/web/WebData.h"
#include "model/TomographyOutcome.h"
#include "support/InFeet.h"
#include "support/SectionDocument.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"
#include "support/TestSurveys.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

// What a reader sees when lengths are shown in feet.

namespace talvesk {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using testing::InFeet;
using ::testing::IsEmpty;

TomoDocument invertedLine() {
  TomoDocument line = testing::testLine(13, 2.0, {0.0, 12.0, 24.0}, 1.0);
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  return testing::inverted(std::move(line));
}

/// Round in feet.
refractionDataStructure::Interpretation oneRefractor() {
  return testing::oneRefractor(457.2, 3.048);
}

/// All texts of an SVG.
QStringList textsOfSvg(const QByteArray& svg) {
  QStringList texts;
  QXmlStreamReader reader(svg);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != "text") continue;
    texts << reader.readElementText(QXmlStreamReader::IncludeChildElements);
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_FALSE(texts.isEmpty());
  return texts;
}

QStringList textsOfDrawing(const FigureDrawing& drawing) {
  QByteArray bytes;
  const Status status = paintFigure(FigureFormat::kSvg, drawing.sheet, drawing.paint, bytes);
  EXPECT_TRUE(status.ok()) << status.message();
  return textsOfSvg(bytes);
}

/// Those of some texts that speak of metres.
std::vector<std::string> inMetres(const QStringList& texts) {
  static const QRegularExpression kMetres(
      QStringLiteral("(?<![\\p{L}\\d/])(?:\\d+ ?)?m(?:/s)?(?![\\p{L}\\d'])|\\bmet(?:re|er)s?\\b"));
  std::vector<std::string> found;
  for (const QString& text : texts) {
    if (kMetres.match(text).hasMatch()) found.push_back(text.toStdString());
  }
  return found;
}

QStringList textsOf(const ReportContent& content) {
  QStringList texts;
  for (const ReportItem& item : content.items) {
    texts << item.text;
    for (const auto& column : item.table.columns) texts << column.title;
    for (const QStringList& row : item.table.rows) texts << row;
    if (item.figure.paint) texts << textsOfDrawing(item.figure);
  }
  return texts;
}

TEST(Feet, areFoundMissing) {  // the guard below can fail
  for (const char* text : {"Distance [m]", "12.5 m", "1500 m/s", "Velocity (m/s)", "per metre",
                           "at 3 m, offset 4 m", "12 m: clay"}) {
    EXPECT_EQ(inMetres({QString(text)}).size(), 1U) << text;
  }
  for (const char* text : {"RMS misfit 1.2 ms, 3 %", "Time [ms]", "12.5 ft", "MPa", "from", "mm"}) {
    EXPECT_THAT(inMetres({QString(text)}), IsEmpty()) << text;
  }
}

TEST(Feet, roundTheNumbersOfAnAxisWhoseTitleNamesThem) {
  const struct {
    const char* title;
    bool feet;
    std::vector<double> ticks;  ///< metres
    const char* last;
  } facts[] = {{"Distance [m]", false, {0, 20, 40, 60, 80, 100}, "100"},
               {"Distance [ft]", true, {0, 30.48, 60.96, 91.44}, "300"},
               {"Velocity (ft/s)", true, {0, 30.48, 60.96, 91.44}, "300"},
               {"Time [ms]", true, {0, 20, 40, 60, 80, 100}, "100"},
               {"Shift", true, {0, 20, 40, 60, 80, 100}, "100"}};
  for (const auto& fact : facts) {
    setLengthUnit(fact.feet ? LengthUnit::kFoot : LengthUnit::kMetre);
    FigurePlot plot;
    plot.addAxis(QwtPlot::xBottom, fact.title);
    plot.setScale(QwtPlot::xBottom, {0.0, 100.0, 0.0, 100.0, 400.0, 80.0});
    plot.plot().updateAxes();
    const QList<double> ticks =
        plot.plot().axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
    ASSERT_EQ(ticks.size(), static_cast<int>(fact.ticks.size())) << fact.title;
    for (int i = 0; i < ticks.size(); ++i) {
      EXPECT_NEAR(ticks[i], fact.ticks[static_cast<std::size_t>(i)], 1e-9) << fact.title;
    }
    EXPECT_EQ(plot.plot().axisScaleDraw(QwtPlot::xBottom)->label(ticks.back()).text(), fact.last);
  }
  setLengthUnit(LengthUnit::kMetre);
}

TEST(Feet, areAtTheAxesTheBarAndInTheCaptionOfASection) {
  const TomoDocument document = testing::sectionDocument(
      14, 60, 3.0, [](std::uint32_t row, std::uint32_t) { return 400.0 + 110.0 * row; });
  SectionScene scene;
  SectionSceneOptions options;
  options.contourValues = {609.6, 914.4, 1219.2};
  ASSERT_TRUE(buildSectionScene(document, options, scene).ok());
  const ColorTable colors = sectionColors(scene, ColorPaletteList().palettes().front());
  SectionDress dress;
  dress.font.setPixelSize(12);
  const SectionPaper paper(scene, SectionExtent(scene), colors, dress);
  const QSize size(1000, 500);
  const auto texts = [&] {
    SectionCamera camera;
    paper.fit(camera, paper.plotRect(size, 1.0).size());
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QStringList words;
    for (const PlacedText& text : paper.paint(painter, size, camera)) words << text.text;
    return words;
  };
  EXPECT_TRUE(texts().contains("Distance [m]"));
  const InFeet feet;
  const QStringList words = texts();
  for (const char* word : {"Distance [ft]", "Elevation [ft]", "Velocity [ft/s]", "400", "5000"}) {
    EXPECT_TRUE(words.contains(word)) << word << " in " << words.join('|').toStdString();
  }
  EXPECT_THAT(words.join('|').toStdString(), HasSubstr("Contours every 1000 ft/s"));
  EXPECT_THAT(inMetres(words), IsEmpty());
}

TEST(Feet, areRoundedAlikeWhereverAVelocityIsTold) {
  MarkedIsoline mark;
  mark.velocity = 1500.0;
  const QLocale c = QLocale::c();
  EXPECT_EQ(isolineName(mark, c).toStdString(), "1500 m/s");
  EXPECT_EQ(FigureWords::velocity(1234.5, c).toStdString(), "1234.5 m/s");
  EXPECT_EQ(toldLength(9.25), 9.25);
  const InFeet feet;
  EXPECT_EQ(isolineName(mark, c).toStdString(), "4921 ft/s");
  EXPECT_EQ(FigureWords::velocity(1500.0, c).toStdString(), "4921 ft/s");
  EXPECT_EQ(FigureWords::layer(2, 1500.0, std::nan(""), c).toStdString(), "Layer 2, 4921 ft/s");
  EXPECT_EQ(toldLength(9.0), 29.5);
}

TEST(Feet, areInTheTablesOfAReport) {
  const auto interpretation = oneRefractor();
  const TomoDocument line = invertedLine();
  const InFeet feet;
  ReportContent content;
  ASSERT_TRUE(buildReport({line, &interpretation}, {}, content).ok());
  const auto row = [&](const char* name) {
    for (const ReportItem& item : content.items) {
      for (const QStringList& cells : item.table.rows) {
        if (cells.front() == name) return cells.back().toStdString();
      }
    }
    return std::string("no row");
  };
  EXPECT_EQ(row("Length of the line"), "78.74 ft");
  EXPECT_EQ(row("Velocity of the first layer"), "1500 ft/s");
  EXPECT_EQ(row("Side of a cell"), "3.281 ft");
  const QStringList texts = textsOf(content);
  EXPECT_TRUE(texts.contains("Depth 1 [ft]"));
  EXPECT_TRUE(texts.contains("10.00") || texts.contains("(10.00)")) << "3.048 m";
}

TEST(Feet, leaveNoMetreInFiguresAndReport) {
  const auto interpretation = oneRefractor();
  const TomoDocument line = invertedLine();
  const TomoDocument shots = testing::shotDocument(2, 12, 200);
  const InFeet feet;
  ReportContent content;
  ASSERT_TRUE(buildReport({line, &interpretation}, {}, content).ok());
  QStringList texts = textsOf(content);
  EXPECT_GT(texts.size(), 200);

  QByteArray svg;
  ASSERT_TRUE(renderGatherFigure(shots, 0, {}, FigureFormat::kSvg, svg).ok());
  texts << textsOfSvg(svg);
  ASSERT_TRUE(renderTravelTimeFigure(line, {}, FigureFormat::kSvg, svg).ok());
  texts << textsOfSvg(svg);
  ASSERT_TRUE(renderRefractionFigure(line, interpretation, {}, FigureFormat::kSvg, svg).ok());
  texts << textsOfSvg(svg);
  const ResidualTable table = residualTableOf(line);
  for (const ResidualView view :
       {ResidualView::kMap, ResidualView::kOffset, ResidualView::kGroups, ResidualView::kSection}) {
    FigureDrawing drawing;
    ASSERT_TRUE(prepareResidualFigure(line, table, view, {}, {}, drawing).ok());
    texts << textsOfDrawing(drawing);
  }
  texts << residualText(table, 0, QLocale::c());
  const testing::TestFolder folder;
  const DepthProfiles profiles(line);
  ASSERT_TRUE(writeDepthProfile(folder.file("profile.svg"), profiles.at(12.0), profiles).ok());
  texts << textsOfSvg(
      QByteArray::fromStdString(testing::TestFolder::get(folder.file("profile.svg"))));
  EXPECT_THAT(inMetres(texts), IsEmpty());
}

TEST(Feet, areOnTheWebPageAndItsFilesKnowWhatTheyAreInMetres) {
  const TomoDocument line = invertedLine();
  const ReportOptions options;
  EXPECT_FALSE(webData({line}, options).contains("metres"));
  const double inside = webData({line}, options)["shots"].toArray()[2].toObject()["x"].toDouble();
  const InFeet feet;
  const QJsonObject data = webData({line}, options);
  EXPECT_EQ(data["metres"].toDouble(), 0.3048);
  EXPECT_EQ(inside, 24.0);
  EXPECT_EQ(data["shots"].toArray()[2].toObject()["x"].toDouble(), 78.74);
  const QJsonObject velocity = data["section"].toObject()["quantities"].toArray()[0].toObject();
  EXPECT_EQ(velocity["unit"].toString(), "ft/s");
  QStringList words;
  for (const auto& word : data["words"].toObject()) words << word.toString();
  EXPECT_THAT(inMetres(words), IsEmpty());
  EXPECT_TRUE(words.contains("Distance %1 ft"));
}

}  // namespace
}  // namespace talvesk
