#include "figures/MisfitFigures.h"
#include "figures/ProfileLines.h"
#include "figures/ReportedLine.h"
#include "figures/SectionFigure.h"
#include "figures/report/Report.h"
#include "figures/report/ReportBuilder.h"
#include "figures/report/ReportPages.h"
#include "model/GeographicsCoord.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "refraction/PicksFingerprint.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"
#include "support/TestSurveys.h"
#include "tomo/RayRecomputation.h"
#include "tomo/TomographyRun.h"
#include "view/SectionViewSettings.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zip.h>

namespace talvesk {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::TestFolder;
using Kind = ReportItem::Kind;

TomoDocument pickedLine(int shots = 3) {
  std::vector<double> places;
  for (int i = 0; i < shots; ++i) places.push_back(24.0 * i / std::max(shots - 1, 1));
  TomoDocument line = testing::testLine(13, 2.0, places, 1.0);
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  line.ttArray.edit()[0].ttMisurati.edit()[3] = kUnpicked;
  return line;
}

TomoDocument invertedLine(int shots = 3) {
  return testing::inverted(pickedLine(shots));
}

refractionDataStructure::Interpretation oneRefractor() {
  return testing::oneRefractor(450.0, 3.0);
}

ReportContent reportOn(const ReportSource& source, const ReportOptions& options = {}) {
  ReportContent content;
  const Status status = buildReport(source, options, content);
  EXPECT_TRUE(status.ok()) << status.message();
  return content;
}

std::vector<std::string> textsOf(const ReportContent& content, Kind kind) {
  std::vector<std::string> texts;
  for (const ReportItem& item : content.items) {
    if (item.kind == kind) texts.push_back(item.text.toStdString());
  }
  return texts;
}

ReportTable tableOf(const ReportContent& content, const QString& caption) {
  for (const ReportItem& item : content.items) {
    if (item.kind == Kind::kTable && item.text.contains(caption)) return item.table;
  }
  throw std::runtime_error("no table " + caption.toStdString());
}

std::string memberOf(const std::string& path, const char* name) {
  int error = 0;
  const std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
      zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error), &zip_discard);
  if (archive == nullptr) return "no archive";
  zip_stat_t facts;
  if (zip_stat(archive.get(), name, 0, &facts) != 0) return "no member";
  std::string bytes(facts.size, '\0');
  zip_file_t* file = zip_fopen(archive.get(), name, 0);
  zip_fread(file, bytes.data(), facts.size);
  zip_fclose(file);
  return bytes;
}

/// All its text, or why it is no XML.
std::string textOfXml(const std::string& xml) {
  QXmlStreamReader reader(QByteArray::fromStdString(xml));
  QString text;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::Characters) text += reader.text() + '\n';
  }
  return reader.hasError() ? "broken: " + reader.errorString().toStdString() : text.toStdString();
}

/// Headings and captions that stand at the foot of a page while what they belong to is on the next.
std::vector<std::string> orphans(const ReportPages& pages) {
  std::vector<std::string> found;
  for (int page = 0; page + 1 < pages.count(); ++page) {
    QStringList texts = pages.textsOf(page);
    texts.removeAll(QString());
    if (texts.isEmpty()) continue;
    const QString last = texts.back();
    const bool heading = last.size() > 3 && last[0].isDigit() && last.mid(1, 2) == "  ";
    if (heading || last.startsWith("Table ")) found.push_back(last.toStdString());
  }
  return found;
}

TEST(Report, tellsOfWhatTheSurveyHas) {
  const auto interpretation = oneRefractor();
  const TomoDocument picked = pickedLine();
  TomoDocument unpicked = pickedLine();
  for (TravelTime& record : unpicked.ttArray.edit()) {
    record.ttMisurati.edit().assign(record.ttMisurati.size(), kUnpicked);
  }
  TomoDocument started = pickedLine();
  testing::putGrid(started, 10.0, 1.0);
  TomoDocument placed = invertedLine();
  placed.map.edit().geoCoord_isSet = true;
  placed.map.edit().geoCoord = {32632, 600000.0, 600100.0, 5000000.0, 5000050.0};

  const struct {
    ReportSource source;
    std::vector<std::string> headings;
    int figures;
    const char* says;
  } facts[] = {
      {{unpicked},
       {"1  Survey", "2  Travel times", "3  Grid and inversion", "4  Method"},
       0,
       "No first breaks have been picked."},
      {{picked},
       {"1  Survey", "2  Travel times", "3  Grid and inversion", "4  Method"},
       1,
       "No grid has been built and nothing has been inverted."},
      {{started},
       {"1  Survey", "2  Travel times", "3  Grid and inversion", "4  Velocity section",
        "5  Method"},
       2,
       "No result of an inversion is known: the grid has the velocities that it was left with."},
      {{placed, &interpretation},
       {"1  Survey", "2  Position", "3  Travel times", "4  Grid and inversion",
        "5  Velocity section", "6  Misfit", "7  Refraction interpretation", "8  Method"},
       7,
       "Coordinate reference system: EPSG:32632, WGS 84 / UTM zone 32N."},
  };
  for (const auto& fact : facts) {
    const ReportContent content = reportOn(fact.source);
    EXPECT_EQ(textsOf(content, Kind::kHeading), fact.headings);
    EXPECT_EQ(textsOf(content, Kind::kFigure).size(), static_cast<std::size_t>(fact.figures));
    EXPECT_THAT(textsOf(content, Kind::kParagraph), Contains(fact.says));
    EXPECT_THAT(orphans(ReportPages(content)), IsEmpty());
  }
}

TEST(Report, tellsTheCourseOfALineThatBends) {
  TomoDocument line = pickedLine();
  line.map.edit() = {{32632, 600000.0, 600030.0, 5000000.0, 5000040.0}, true};
  const QString caption = "Course of the line between its ends";
  EXPECT_THROW(tableOf(reportOn({line}), caption), std::runtime_error) << "straight";
  // East, north, and a little further on the same way.
  line.line.edit().course = {line.map->geoCoord,
                             {{0.0, {600000.0, 5000000.0}},
                              {30.0, {600030.0, 5000000.0}},
                              {50.0, {600030.0, 5000020.0}},
                              {70.5, {600030.0, 5000040.0}}}};
  const ReportTable table = tableOf(reportOn({line}), caption);
  std::vector<std::string> values;
  for (const QStringList& row : table.rows) values.push_back(row[1].toStdString());
  EXPECT_THAT(values, ElementsAre("4", "1", "70.50 m", "70.00 m", "50.00 m", "24.00 m", "0.00 m"));
  line.map.edit().geoCoord.mEastLstGeoph += 1.0;
  EXPECT_THROW(tableOf(reportOn({line}), caption), std::runtime_error) << "of another place";
}

TEST(Report, tellsHowPicksGoWithEachOtherThereAndBack) {
  TomoDocument line = pickedLine(5);
  const auto tables = [&] { return textsOf(reportOn({line}), Kind::kTable); };
  EXPECT_THAT(textsOf(reportOn({line}), Kind::kSubheading), Contains("Reciprocity"));
  for (double& time : line.ttArray.edit()[2].ttMisurati.edit()) {
    if (hasPick(time)) time += 0.004;
  }
  const ReportContent content = reportOn({line});
  EXPECT_THAT(textsOf(content, Kind::kParagraph),
              Contains(HasSubstr("Shot 3: the record is 4 ms late")));
  EXPECT_THAT(tables(), Contains(HasSubstr("Reciprocity of every shot")));
  EXPECT_THAT(tables(), Contains(HasSubstr("Pairs of shots")));

  line.ttArray.edit().resize(1);
  EXPECT_THAT(textsOf(reportOn({line}), Kind::kSubheading), Not(Contains("Reciprocity")));
}

TEST(Report, leavesOutWhatIsNotWanted) {
  const TomoDocument line = invertedLine();
  ReportOptions options;
  options.sections = {};
  options.sections.survey = options.sections.travelTimes = options.sections.method = false;
  options.sections.density = options.sections.rays = false;
  const ReportContent content = reportOn({line}, options);
  EXPECT_THAT(textsOf(content, Kind::kHeading),
              ElementsAre("1  Grid and inversion", "2  Velocity section", "3  Misfit"));
  EXPECT_THAT(textsOf(content, Kind::kFigure),
              ElementsAre("Figure 1. Velocity section",
                          "Figure 2. Residuals of the picks against the distance from their shot",
                          "Figure 3. Residuals of the picks, shot by geophone",
                          HasSubstr("Figure 4. RMS misfit of the section after every")));
}

TEST(Report, refusesASurveyOfNothing) {
  ReportContent content;
  const TomoDocument nothing;
  EXPECT_THAT(buildReport({nothing}, {}, content).message(), HasSubstr("load shot files"));
}

TEST(Report, namesShotFilesSoThatTheyCanBeToldApart) {
  const struct {
    std::vector<std::string> files;
    std::vector<std::string> shown;
  } cases[] = {
      {{"/d/1.dat", "/d/12.dat", "/d/12.dat"}, {"1.dat", "12.dat", "12.dat"}},
      {{"/d/2026-11-21_line_1_shot_01.sg2", "/d/2026-11-21_line_1_shot_02.sg2", "/d/3.sg2"},
       {"2026-\u2026hot_01.sg2", "2026-\u2026hot_02.sg2", "3.sg2"}},
      {{"/d/strada 467 tiro 6 battuta 3 (rifatto).dat",
        "/d/strada 467 tiro 16 battuta 3 (rifatto).dat",
        "/d/strada 467 tiro 6 battuta 3 (rifatto).dat"},
       {"\u2026tiro 6 battuta\u2026", "\u2026tiro 16 battut\u2026", "\u2026tiro 6 battuta\u2026"}},
  };
  for (const auto& c : cases) {
    TomoDocument line = pickedLine();
    line.recordings.edit().filenames = c.files;
    line.recordings.edit().traceSets.resize(3, TraceSet(1));
    const ReportTable table = tableOf(reportOn({line}), "Shots and their recordings");
    std::vector<std::string> shown;
    for (const QStringList& row : table.rows) shown.push_back(row[1].toStdString());
    EXPECT_EQ(shown, c.shown);
  }
}

TEST(Report, listsTheMendsOfItsRecordings) {
  TomoDocument line = pickedLine();
  line.recordings.edit().traceSets.resize(3, TraceSet(13));
  EXPECT_THROW(tableOf(reportOn({line}), "Mends of recordings"), std::runtime_error);
  ShotMends mends;
  mends.orderReversed = true;
  mends.traces = {{true, false, 0.0}};
  ASSERT_TRUE(setMends(1, mends, line).ok());
  const ReportTable table = tableOf(reportOn({line}), "Mends of recordings");
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(table.rows[0][0], "2");
  EXPECT_EQ(table.rows[1][1].toStdString(), "traces killed: 1");
}

TEST(Report, givesEveryShotItsMisfitByHand) {
  TomoDocument line = testing::testLine(3, 2.0, {0.0, 4.0});
  line.ttArray.edit()[0].ttMisurati.edit() = {0.010, 0.020, kUnpicked};
  line.ttArray.edit()[0].ttCalcolati.edit() = {0.011, 0.017, 0.5};
  line.ttArray.edit()[1].ttMisurati.edit() = {0.010, 0.010, kNoTime};
  line.ttArray.edit()[1].ttCalcolati.edit() = {kNoTime, kNoTime, 0.1};
  const ReportTable table = tableOf(reportOn({line}), "Picks of every shot");
  ASSERT_EQ(table.rows.size(), 3u);
  EXPECT_EQ(table.rows[0], QStringList({"1", "0.00", "3", "2", "2.24", "12.7", "-1.00", "-3.00"}));
  const QString none = QStringLiteral("\u2013");
  EXPECT_EQ(table.rows[1], QStringList({"2", "4.00", "3", "2", none, none, none, none}));
  EXPECT_EQ(table.rows[2], QStringList({"All", "", "6", "4", "2.24", "12.7", "-1.00", "-3.00"}));
  const std::vector<Residual> residuals = residualsOf(line);
  ASSERT_EQ(residuals.size(), 2u);
  EXPECT_DOUBLE_EQ(residuals[1].offset, 2.0);
}

TEST(Report, countsThePicksOfEveryShotByTheirErrors) {
  TomoDocument line = testing::testLine(4, 2.0, {0.0, 4.0, 6.0});
  line.ttArray.edit()[0].ttMisurati.edit() = {0.010, 0.020, 0.030, kUnpicked};
  line.ttArray.edit()[1].ttMisurati.edit() = {0.010, 0.020, 0.030, kNoTime};
  for (const ReportItem& item : reportOn({line}).items) {
    EXPECT_FALSE(item.text.contains("Errors of the picks")) << "nothing is known of any";
  }
  line.ttArray.edit()[0].setError(0, 0.0005);
  line.ttArray.edit()[0].setError(1, 0.0025);
  line.ttArray.edit()[0].setError(2, 0.004);
  line.ttArray.edit()[1].setError(2, 0.003);
  const ReportTable table = tableOf(reportOn({line}), "Errors of the picks of every shot");
  const QString none = QStringLiteral("\u2013");
  ASSERT_EQ(table.rows.size(), 4u);
  EXPECT_EQ(table.rows[0], QStringList({"1", "3", "2", "1", "0", "2.50", "4.00"}));
  EXPECT_EQ(table.rows[1], QStringList({"2", "3", "0", "1", "2", "3.00", "3.00"}));
  EXPECT_EQ(table.rows[2], QStringList({"3", "0", "0", "0", "0", none, none}));
  EXPECT_EQ(table.rows[3], QStringList({"All", "6", "2", "2", "2", "3.00", "4.00"}));
}

TEST(Report, keepsItsOwnNumbersAndThoseOfTheRun) {
  const TomoDocument line = invertedLine();
  const ReportContent content = reportOn({line});
  const ReportTable parameters = tableOf(content, "Parameters of the inversion");
  EXPECT_THAT(parameters.rows, Contains(QStringList({"External iterations", "2 of 2"})));
  EXPECT_THAT(parameters.rows, Contains(QStringList({"Velocity limits", "250 \u2013 3500 m/s"})));
  EXPECT_EQ(tableOf(content, "Misfit after every external iteration").rows.size(), 3u);
  EXPECT_THAT(tableOf(content, "The line").rows,
              Contains(QStringList({"Length of the line", "24.00 m"})));
}

/// The figures of the sections, painted.
std::vector<QImage> sectionsOf(const TomoDocument& line, const SectionViewSettings& view) {
  ReportOptions options;
  options.sections.travelTimes = options.sections.rays = options.sections.misfit = false;
  options.section = sectionFigureOptions(view, options.section.palette, {});
  std::vector<QImage> pictures;
  for (const ReportItem& item : reportOn({line}, options).items) {
    if (item.kind != Kind::kFigure) continue;
    QImage picture(1000, 500, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    item.figure.paint(painter, picture.rect());
    painter.end();
    pictures.push_back(picture);
  }
  return pictures;
}

TEST(Report, showsItsSectionsWhateverTheViewHides) {
  const TomoDocument line = invertedLine();
  const SectionViewSettings plain;
  const std::vector<QImage> wanted = sectionsOf(line, plain);
  ASSERT_EQ(wanted.size(), 2u);
  EXPECT_NE(wanted[0], wanted[1]);
  SectionViewSettings bare;
  bare.profile = bare.scalarBar = false;
  EXPECT_EQ(sectionsOf(line, bare), wanted) << "cells and colour bar";
  SectionViewSettings other;
  other.quantity = SectionQuantity::kVerticalGradient;
  EXPECT_EQ(sectionsOf(line, other), wanted) << "range of the palette";
  SectionViewSettings bands;
  bands.contours.filled = true;
  EXPECT_EQ(sectionsOf(line, bands)[1], wanted[1]) << "bands are of velocity only";
}

TEST(Report, tellsOneMisfitOfTheSectionBeforeAndAfterItsRaysAreTracedAnew) {
  TomoDocument line = invertedLine();
  const auto misfit = [&] {
    return tableOf(reportOn({line}), "Misfit of the section, along fresh rays").rows;
  };
  const std::vector<QStringList> before = misfit();
  ASSERT_EQ(before.size(), 5u);
  {
    const testing::ConsoleCapture console;
    Log log;
    ASSERT_TRUE(recomputeRays(line, log).ok());
  }
  EXPECT_EQ(misfit(), before);
  const QString first = tableOf(reportOn({line}), "Picks of every shot").rows.back()[4];
  EXPECT_EQ(first.toDouble(), std::round(before[1][1].section(' ', 0, 0).toDouble() * 100) / 100);
  const Misfit& pass = line.result->lastInversion->history.back();
  EXPECT_EQ(tableOf(reportOn({line}), "Last solver pass of the inversion").rows[0][1],
            report::number(1e3 * pass.rmse, 3) + " ms, " +
                report::number(1e2 * pass.relativeRms, 2) + " %");
}

TEST(Report, saysThatPicksHaveChangedAndSpeaksOfNoInversionWithoutOne) {
  TomoDocument line = invertedLine();
  const auto hasText = [&](const char* words) {
    const std::vector<std::string> texts = textsOf(reportOn({line}), Kind::kParagraph);
    return std::any_of(texts.begin(), texts.end(), [&](const std::string& text) {
      return text.find(words) != std::string::npos;
    });
  };
  EXPECT_FALSE(hasText("Picks have changed"));
  EXPECT_TRUE(hasText("inverted by travel-time tomography"));
  line.ttArray.edit()[1].ttMisurati.edit()[2] *= 1.1;
  EXPECT_TRUE(hasText("Picks have changed"));
  line.clearInversion();
  EXPECT_FALSE(hasText("inverted by travel-time tomography"));
}

TEST(Report, breaksPagesOnlyWhereAReaderWould) {
  for (const int shots : {1, 2, 23, 24, 25, 26, 27, 28, 60}) {
    const TomoDocument line = invertedLine(shots);
    const ReportContent content = reportOn({line});
    const ReportPages pages(content);
    EXPECT_GE(pages.count(), 4) << shots;
    EXPECT_THAT(orphans(pages), IsEmpty()) << shots;
    EXPECT_THAT(pages.textsOf(0), Contains(QStringLiteral("Seismic refraction survey")));
  }
}

TEST(Report, paintsPagesOfTheSizeOfTheirPaper) {
  const TomoDocument line = pickedLine();
  ReportOptions options;
  EXPECT_EQ(ReportPages(reportOn({line}, options)).image(0, 25.4).size(), QSize(210, 297));
  options.paper = ReportPaper::kLetter;
  const ReportPages letter(reportOn({line}, options));
  EXPECT_EQ(letter.image(1, 25.4).size(), QSize(216, 279));
  // Ink inside the margins, and none on them but for the foot of the page.
  const QImage page = letter.image(1, 50.8);
  bool ink = false;
  for (int y = 0; y < page.height() - 60; ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (qGray(page.pixel(x, y)) > 200) continue;
      ink = true;
      EXPECT_TRUE(x >= 38 && x <= page.width() - 38 && y >= 38) << x << ' ' << y;
    }
  }
  EXPECT_TRUE(ink);
}

TEST(Report, writesPdfWithShapesAndNoPictures) {
  const TestFolder folder;
  const TomoDocument line = invertedLine();
  const std::string path = folder.file("report.PDF");
  ASSERT_TRUE(writeReport(reportOn({line}), path).ok());
  const std::string bytes = TestFolder::get(path);
  EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
  EXPECT_EQ(bytes.find("/Subtype /Image"), std::string::npos);
  EXPECT_LT(bytes.size(), 2000000u);
}

TEST(Report, writesOdtThatHoldsItsTextsTablesAndPictures) {
  const TestFolder folder;
  const TomoDocument line = invertedLine();
  ReportOptions options;
  options.title = "Line  <3> & \xE2\x82\xAC \x01 more";
  options.client = "Ünal";
  options.notes = "First.\nSecond.";
  const std::string path = folder.file("report.odt");
  ASSERT_TRUE(writeReport(reportOn({line}, options), path).ok());
  const std::string file = TestFolder::get(path);
  EXPECT_EQ(file.substr(30, 47), "mimetypeapplication/vnd.oasis.opendocument.text");
  const std::string content = memberOf(path, "content.xml");
  const std::string text = textOfXml(content);
  for (const char* part :
       {"Line <3> & \xE2\x82\xAC", "Ünal", "First.", "Second.", "Survey", "Table 1. The line",
        "Figure 6. RMS misfit of the section after every"}) {
    EXPECT_THAT(text, HasSubstr(part));
  }
  EXPECT_THAT(content, HasSubstr("table:table-header-rows"));
  EXPECT_THAT(content, HasSubstr("text:outline-level=\"1\""));
  EXPECT_THAT(memberOf(path, "styles.xml"), HasSubstr("text:page-number"));
  EXPECT_THAT(textOfXml(memberOf(path, "meta.xml")), HasSubstr("Line <3>"));
  const QImage picture =
      QImage::fromData(QByteArray::fromStdString(memberOf(path, "Pictures/figure5.png")), "PNG");
  EXPECT_EQ(picture.width(), 2008);  // 170 mm at 300 dots per inch
  EXPECT_EQ(memberOf(path, "Pictures/figure7.png"), "no member");
}

TEST(Report, leavesTheFileAloneWhenItCannotBeWrittenOrIsStopped) {
  const TestFolder folder;
  const TomoDocument line = pickedLine();
  const ReportContent content = reportOn({line});
  EXPECT_THAT(writeReport(content, folder.file("no/report.pdf")).message(), HasSubstr("no/report"));
  EXPECT_THAT(writeReport(content, folder.file("report.doc")).message(), HasSubstr(".odt"));
  for (const char* name : {"report.pdf", "report.odt"}) {
    folder.put(name, "before");
    const Status stopped = writeReport(content, folder.file(name), [](double) { return false; });
    EXPECT_EQ(stopped.code(), kReportCancelled);
    EXPECT_EQ(TestFolder::get(folder.file(name)), "before");
  }
}

TEST(Report, hasARowForEveryReceiverOfEitherRefractor) {
  const TomoDocument document = pickedLine();
  refractionDataStructure::Interpretation interpretation = oneRefractor();
  auto& refractors = interpretation.refractData.cData;
  refractors.push_back({});
  refractors[1].x = {24.0, 26.0};
  refractors[1].elevation = {100.0, 101.5};
  refractors[1].depth = {9.0, 9.5};
  refractors[1].velocity = {3000.0, 3100.0};
  const ReportTable table =
      tableOf(reportOn({document, &interpretation}), QStringLiteral("Depths below the surface"));
  ASSERT_EQ(table.rows.size(), 14U);
  EXPECT_EQ(table.rows[12], QStringList({"24.00", "100.00", "3.00", "1812", "9.00", "3000"}));
  const QString none = QStringLiteral("\u2013");
  EXPECT_EQ(table.rows[13], QStringList({"26.00", "101.50", none, none, "9.50", "3100"}));
}

TEST(Report, velocitiesOfARefractorRangeOverThoseThatAreKnown) {
  const TomoDocument document = pickedLine();
  refractionDataStructure::Interpretation interpretation = oneRefractor();
  std::vector<double>& velocities = interpretation.refractData.cData[0].velocity;
  velocities.front() = NAN;
  velocities.back() = HUGE_VAL;
  const ReportTable facts =
      tableOf(reportOn({document, &interpretation}), QStringLiteral("Layers and refractors"));
  ASSERT_GE(facts.rows.size(), 2u);
  EXPECT_EQ(facts.rows[1][1].toStdString(), "1801 \u2013 1811 m/s");
}

TEST(Report, saysWhatIsNotKnownOfTheLayers) {
  const TomoDocument document = pickedLine();
  refractionDataStructure::Interpretation interpretation = oneRefractor();
  const auto paragraphs = [&] {
    return textsOf(reportOn({document, &interpretation}), Kind::kParagraph);
  };
  EXPECT_THAT(paragraphs(), Not(Contains(HasSubstr("No velocity is given"))));
  auto& results = interpretation.refractData;
  results.v1 = NAN;
  results.cData[0].velocity.assign(13, NAN);
  results.cData[0].depth.assign(13, NAN);
  EXPECT_THAT(paragraphs(), Contains(HasSubstr("No velocity is given")));
  const ReportContent content = reportOn({document, &interpretation});
  const ReportTable facts = tableOf(content, QStringLiteral("Layers and refractors"));
  EXPECT_EQ(facts.rows[0][1].toStdString(), "\u2013");
  EXPECT_EQ(facts.rows[1][1].toStdString(), "\u2013");
  const ReportTable depths = tableOf(content, QStringLiteral("Depths below the surface"));
  EXPECT_EQ(depths.rows[4][2].toStdString(), "\u2013");
  EXPECT_EQ(depths.rows[4][3].toStdString(), "\u2013");
}

TEST(Report, marksAProfileWhosePicksHaveChangedSince) {
  TomoDocument document = pickedLine();
  refractionDataStructure::Interpretation interpretation = oneRefractor();
  interpretation.refractData.picks = fingerprintOf(shotArrivals(document));
  const auto said = [&] {
    return textsOf(reportOn({document, &interpretation}), Kind::kParagraph);
  };
  const char* mark = "picks have changed since";
  EXPECT_THAT(said(), Not(Contains(HasSubstr(mark))));
  EXPECT_EQ(profileLines(document, interpretation)[0].name, "Refractor 1");
  document.ttArray.edit()[1].ttMisurati.edit()[4] += 1e-4;
  EXPECT_THAT(said(), Contains(HasSubstr(mark)));
  EXPECT_THAT(profileLines(document, interpretation)[0].name, HasSubstr(mark));
}

}  // namespace
}  // namespace talvesk
