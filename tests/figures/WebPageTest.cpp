#include "base/WebText.h"
#include "figures/report/Report.h"
#include "figures/web/WebPage.h"
#include "figures/web/WebPicture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"
#include "support/TestSurveys.h"

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QCryptographicHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::TestFolder;
using Kind = ReportItem::Kind;

TomoDocument pickedLine() {
  TomoDocument line = testing::testLine(13, 2.0, {0.0, 12.0, 24.0}, 1.0);
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  return line;
}

std::string pageOf(const ReportContent& content) {
  QByteArray bytes;
  const Status status = reportAsHtml(content, {}, bytes);
  EXPECT_TRUE(status.ok()) << status.message();
  return bytes.toStdString();
}

ReportContent reportOn(const TomoDocument& line, const ReportOptions& options = {}) {
  ReportContent content;
  EXPECT_TRUE(buildReport({line}, options, content).ok());
  return content;
}

TEST(WebPage, hasTheTextsOfTheOtherReportsInTheirOrder) {
  const TomoDocument line = pickedLine();
  const ReportContent content = reportOn(line);
  const std::string page = pageOf(content);
  std::size_t at = page.find("<main");
  for (const ReportItem& item : content.items) {
    // What belongs to a figure stands below it, a caption above its table.
    if (item.text.isEmpty() || item.kind == Kind::kTable) continue;
    const std::size_t next = page.find(web::escaped(item.text).toStdString() + "</", at);
    ASSERT_NE(next, std::string::npos) << item.text.toStdString();
    at = next;
  }
  for (const ReportItem& item : content.items) {
    for (const QStringList& row : item.table.rows) {
      for (const QString& text : row)
        EXPECT_THAT(page, HasSubstr(web::escaped(text).toStdString()));
    }
  }
}

/// It has no legend that would tell the velocity of a name.
TEST(WebPage, namesMarkedIsolinesWithTheirVelocities) {
  TomoDocument line = testing::sectionDocument(
      10, 30, 0.0, [](std::uint32_t row, std::uint32_t) { return 400.0 + 100.0 * row; });
  line.annotations.edit().isolines = {{"water table", 850.0}, {"", 650.0}};
  const std::string page = pageOf(reportOn(line));
  EXPECT_THAT(page, HasSubstr("\"water table: 850 m/s\""));
  EXPECT_THAT(page, HasSubstr("\"650 m/s\""));
}

TEST(WebPage, showsTextsAsTheyAre) {
  TomoDocument line = pickedLine();
  const std::string attack = "</script><script>alert(1)</script>\"'&<!--\xe2\x80\xa8";
  ReportOptions options;
  options.title = options.client = options.author = options.notes = attack;
  options.section.palette.name = attack;
  options.section.scene.refractors = {{attack, {{{0.0, 99.0}, {20.0, 99.0}}}}};
  testing::putGrid(line, 10.0, 1.0);
  const std::string page = pageOf(reportOn(line, options));
  EXPECT_THAT(page, Not(HasSubstr("<script>alert")));
  EXPECT_THAT(page, HasSubstr("<h1>&lt;/script&gt;&lt;script&gt;alert(1)&lt;/script&gt;"));
  EXPECT_THAT(page, HasSubstr("\\u003c/script\\u003e"));

  const std::size_t begin = page.find("id=\"data\">") + 10;
  const std::string json = page.substr(begin, page.find("</script>", begin) - begin);
  const QJsonObject data = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
  const QJsonArray layers = data["section"].toObject()["layers"].toArray();
  ASSERT_EQ(layers.size(), 1);
  EXPECT_EQ(layers[0].toObject()["name"].toString().toStdString(), attack);
}

TEST(WebPage, allowsItsOwnTwoScriptsAndNothingElse) {
  const std::string page = pageOf(reportOn(pickedLine()));
  EXPECT_THAT(page, HasSubstr("content=\"default-src 'none'; script-src 'sha256-"));
  EXPECT_THAT(page, Not(HasSubstr("unsafe-eval")));
  const QRegularExpression script(QStringLiteral("<script>(.*?)</script>"),
                                  QRegularExpression::DotMatchesEverythingOption);
  auto matches = script.globalMatch(QString::fromStdString(page));
  int scripts = 0;
  for (; matches.hasNext(); ++scripts) {
    const QByteArray text = matches.next().captured(1).toUtf8();
    const auto hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64();
    EXPECT_THAT(page, HasSubstr("'sha256-" + hash.toStdString() + "'"));
  }
  EXPECT_EQ(scripts, 2);
}

TEST(WebPage, holdsTheCornersOfALineThatBends) {
  TomoDocument line = pickedLine();
  line.map.edit() = {{32632, 612345.0, 612445.0, 5000000.0, 5000050.0}, true};
  EXPECT_THAT(pageOf(reportOn(line)), Not(HasSubstr("\"course\"")));
  line.line.edit().course = {line.map->geoCoord,
                             {{0.0, {612345.0, 5000000.0}},
                              {90.0, {612435.25, 5000001.5}},
                              {140.0, {612445.0, 5000050.0}}}};
  EXPECT_THAT(pageOf(reportOn(line)), HasSubstr("[612435.25,5000001.5]"));
}

TEST(WebPage, holdsNoPlaceThatIsLeftOut) {
  TomoDocument line = pickedLine();
  line.map.edit().geoCoord_isSet = true;
  line.map.edit().geoCoord = {32632, 612345.0, 612445.0, 5000000.0, 5000050.0};
  EXPECT_THAT(pageOf(reportOn(line)), HasSubstr("612345"));
  ReportOptions options;
  options.sections.position = false;
  EXPECT_THAT(pageOf(reportOn(line, options)), Not(HasSubstr("612345")));
}

TEST(WebPage, isWrittenForASuffixOfAnyCase) {
  const TestFolder folder;
  const std::string path = folder.file("line.HTML");
  const TomoDocument line = pickedLine();
  ASSERT_TRUE(writeReport(reportOn(line), path).ok());
  EXPECT_EQ(TestFolder::get(path).substr(0, 15), "<!DOCTYPE html>");
  EXPECT_THAT(writeReport(reportOn(line), folder.file("line.htm")).message(), HasSubstr(".html"));
}

TEST(WebPicture, keepsAPictureInAFractionOfItsBytes) {
  std::minstd_rand random;
  QImage image(300, 200, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int noise = static_cast<int>(random() % 7);  // as smoothed edges are
      image.setPixel(x, y, qRgb(x * 200 / 300 + noise, y + noise, 128 - noise));
    }
  }
  image.setPixel(5, 5, qRgb(255, 0, 0));  // what few pixels have is not lost
  const auto bytesOf = [](const QImage& from) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    from.save(&buffer, "PNG");
    return bytes;
  };
  const QByteArray png = bytesOf(image);
  const QByteArray small = web::fewColors(png);
  EXPECT_LT(small.size(), png.size() / 2);
  const QImage read = QImage::fromData(small);
  ASSERT_EQ(read.size(), image.size());
  int furthest = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor a(image.pixel(x, y));
      const QColor b(read.pixel(x, y));
      furthest = std::max({furthest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                           std::abs(a.blue() - b.blue())});
    }
  }
  EXPECT_LT(furthest, 24);
  EXPECT_EQ(read.pixelColor(5, 5), QColor(255, 0, 0));
  EXPECT_EQ(web::fewColors("no picture"), QByteArray("no picture"));
}

TEST(WebText, leavesOutWhatNoPageCanHold) {
  EXPECT_EQ(web::escaped(QStringLiteral("a\u0001<b>\t") + QChar(0xd800)), "a&lt;b&gt;\t");
  EXPECT_EQ(web::escaped(QString::fromUtf8("\xf0\x9f\x98\x80")).toUtf8(), "\xf0\x9f\x98\x80");
}

TEST(WebText, writesNumbersAsTheLanguageDoes) {
  const struct {
    const char* language;
    const char* text;
    const char* written;
  } cases[] = {
      {"de", "1.5 ms, -0.25 %, 3.00 \u2013 4.10", "1,5 ms, -0,25 %, 3,00 \u2013 4,10"},
      {"it", "RMS 1.5.", "RMS 1,5."},
      {"fr", "22.11.2026, 1.2.3", "22.11.2026, 1.2.3"},
      {"es", "shot. 3", "shot. 3"},
      {"en", "1.5", "1.5"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(web::LocalNumbers(c.language).inText(QString::fromUtf8(c.text)).toStdString(),
              c.written);
  }
}

}  // namespace
}  // namespace talvesk
