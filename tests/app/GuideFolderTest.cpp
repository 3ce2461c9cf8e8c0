#include "app/GuideBrowser.h"
#include "app/GuideFolder.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

constexpr char kSecret[] = "what nobody may see";

/// A guide in two languages, of which the second lacks a page, and a file beside it.
class GuideFiles : public ::testing::Test {
 protected:
  GuideFiles() {
    for (const char* language : {"guide/en", "guide/it"}) {
      QDir(QString::fromStdString(folder.path())).mkpath(QLatin1String(language));
    }
    folder.put("secret.html", kSecret);
    QImage(40, 20, QImage::Format_RGB32).save(QString::fromStdString(folder.file("secret.png")));
    QImage(900, 20, QImage::Format_RGB32).save(pathOf("guide/en/wide.png"));
    QFile::link(pathOf("secret.html"), pathOf("guide/en/link.html"));
    folder.put("guide/window.css", "p { margin: 0; }");
    folder.put("guide/en/index.html", page("Contents", "Filters, and how to filter"));
    folder.put("guide/en/filter.html", page("Filter", "A filter filters. <img src=\"wide.png\">"));
    folder.put("guide/it/index.html", page("Indice", "Filtri"));
  }
  static std::string page(const std::string& title, const std::string& text) {
    return "<html><body><nav><a href=\"index.html\">filter</a></nav><main><h1>" + title +
           "</h1><p>" + text + "</p></main></body></html>";
  }
  QString pathOf(const std::string& name) const {
    return QString::fromStdString(folder.file(name));
  }

  testing::TestFolder folder;
};

TEST_F(GuideFiles, areAllThatIsEverRead) {
  const std::string outside = folder.file("secret.html");
  const std::pair<std::string, const char*> cases[] = {
      {"index.html", "guide/it/index.html"},
      {"../en/filter.html", "guide/en/filter.html"},
      {"filter.html", "guide/en/filter.html"},  // not translated yet
      {"filter.html#agc", "guide/en/filter.html"},
      {"none.html", ""},
      {"../../secret.html", ""},
      {"../../guide/../secret.html", ""},
      {"../en/link.html", ""},
      {"file://" + outside, ""},
      {outside, ""},
      {"http://localhost/index.html", ""},
      {"data:text/html,hello", ""}};
  const GuideFolder guide(pathOf("guide/it/index.html"));
  const QUrl here = QUrl::fromLocalFile(pathOf("guide/it/index.html"));
  for (const auto& [link, file] : cases) {
    SCOPED_TRACE(link);
    const QString found = guide.fileOf(here.resolved(QUrl(QString::fromStdString(link))));
    EXPECT_EQ(found.toStdString(), *file == '\0' ? "" : folder.file(file));
  }
}

TEST_F(GuideFiles, keepPicturesAndLinksOfAPageFromTheRestOfTheDisk) {
  const std::string secret = folder.file("secret.png");
  folder.put("guide/en/hostile.html",
             page("Hostile", "<img src=\"../../secret.png\"><img src=\"" + secret +
                                 "\"><img src=\"file://" + secret + "\"><img src=\"wide.png\">"));
  GuideBrowser browser;
  browser.resize(400, 300);
  browser.open(pathOf("guide/en/hostile.html"));
  for (const char* link : {"../../secret.png", "SECRET", "file://SECRET"}) {
    const QString name =
        QString::fromLatin1(link).replace("SECRET", QString::fromStdString(secret));
    const QVariant read = browser.document()->resource(QTextDocument::ImageResource, QUrl(name));
    EXPECT_TRUE(read.toByteArray().isEmpty()) << link;
    EXPECT_FALSE(read.canConvert<QImage>() && !read.value<QImage>().isNull()) << link;
  }
  const QVariant own = browser.loadResource(QTextDocument::ImageResource, QUrl("wide.png"));
  EXPECT_FALSE(own.value<QImage>().isNull());

  browser.setSource(QUrl("../../secret.html"));
  EXPECT_EQ(browser.page(), pathOf("guide/en/hostile.html"));
  browser.setSource(QUrl::fromLocalFile(pathOf("secret.html")));
  EXPECT_EQ(browser.page(), pathOf("guide/en/hostile.html"));
  EXPECT_FALSE(browser.toPlainText().contains(kSecret));
}

TEST_F(GuideFiles, areSearchedWithoutTheirLinksToContents) {
  const std::vector<GuideHit> hits = searchGuide(pathOf("guide/en/index.html"), "FILTER");
  ASSERT_EQ(hits.size(), 2U);
  EXPECT_EQ(hits[0].title, "Filter");
  EXPECT_EQ(hits[0].count, 3);
  EXPECT_EQ(hits[1].title, "Contents");
  EXPECT_EQ(hits[1].count, 2);
  EXPECT_TRUE(searchGuide(pathOf("guide/en/index.html"), "nowhere").empty());
  EXPECT_TRUE(searchGuide(pathOf("guide/en/index.html"), "").empty());
}

TEST_F(GuideFiles, showPicturesAsWideAsTheWindowAndMarkWhatIsLookedFor) {
  GuideBrowser browser;
  browser.resize(400, 300);
  browser.show();
  browser.open(pathOf("guide/en/filter.html"));
  const auto width = [&browser] {
    const auto picture = browser.loadResource(QTextDocument::ImageResource, QUrl("wide.png"));
    return picture.value<QImage>().width() / browser.devicePixelRatioF();
  };
  EXPECT_LT(width(), 400);
  EXPECT_GT(width(), 300);

  EXPECT_EQ(browser.mark("filter"), 3);
  EXPECT_EQ(browser.extraSelections().size(), 3);
  const std::pair<int, int> steps[] = {{0, 1}, {1, 2}, {1, 3}, {1, 1}, {-1, 3}};
  for (const auto& [step, number] : steps) EXPECT_EQ(browser.goToMark(step), number);
  EXPECT_EQ(browser.mark("nowhere"), 0);
  EXPECT_EQ(browser.goToMark(1), 0);
}

}  // namespace
}  // namespace talvesk
