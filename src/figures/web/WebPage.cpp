#include "figures/web/WebPage.h"

#include "base/WebDocument.h"
#include "base/WebText.h"
#include "figures/report/ReportPages.h"
#include "figures/web/WebPicture.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QLocale>

static void loadWebResources() {
  Q_INIT_RESOURCE(web);
}

namespace talvesk {
namespace {

struct WebPageWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::WebPage)
};

constexpr const char* kChartLibrary = "chart-library.js";
/// In the order in which they stand in the page.
constexpr const char* kScripts[] = {
    "theme.js", "text.js",   "palettes.js", "mesh.js", "charts.js", "paint.js", "section.js",
    "times.js", "gather.js", "misfit.js",   "map.js",  "files.js",  "page.js"};

/// A picture with more bytes of shapes than this is smaller as pixels.
constexpr int kMostShapes = 120000;
constexpr double kFigureDpi = 150.0;

QByteArray resource(const char* name) {
  QFile file(QStringLiteral(":/web/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ownScript() {
  QByteArray script("'use strict';\n(() => {\n");
  for (const char* name : kScripts) script += resource(name) + '\n';
  return script + "})();\n";
}

QString nameOf(LiveFigure live) {
  switch (live) {
    case LiveFigure::kSection:
      return QStringLiteral("section");
    case LiveFigure::kTravelTimes:
      return QStringLiteral("times");
    case LiveFigure::kResiduals:
      return QStringLiteral("residuals");
    case LiveFigure::kHistory:
      return QStringLiteral("history");
    case LiveFigure::kReciprocity:
      return QStringLiteral("reciprocity");
    case LiveFigure::kMap:
      return QStringLiteral("map");
    case LiveFigure::kNone:
      break;
  }
  return {};
}

/// The body of the page, part by part.
class BodyWriter {
 public:
  BodyWriter(const ReportContent& content, const std::function<bool(int)>& goOn)
      : mContent(content), mGoOn(goOn), mNumbers(content.language) {}

  Status write(QString& body) {
    addContents();
    mBody += QStringLiteral("<main id=\"content\">\n<header class=\"title-page\">\n");
    for (const ReportItem& item : mContent.items) {
      if (Status status = add(item); !status.ok()) return status;
    }
    endChapter();
    mBody += QStringLiteral("</main>\n");
    body = mBody;
    return {};
  }

 private:
  void addContents() {
    mBody += QStringLiteral("<nav id=\"contents\" aria-label=\"%1\">\n<ul>\n")
                 .arg(web::escaped(WebPageWords::tr("Contents")));
    int chapter = 0;
    for (const ReportItem& item : mContent.items) {
      if (item.kind != ReportItem::Kind::kHeading) continue;
      mBody += QStringLiteral("<li><a href=\"#chapter-%1\">%2</a></li>\n")
                   .arg(++chapter)
                   .arg(web::escaped(item.text));
    }
    mBody += QStringLiteral("</ul>\n</nav>\n");
  }

  Status add(const ReportItem& item) {
    switch (item.kind) {
      case ReportItem::Kind::kTitle:
        addText(QStringLiteral("h1"), item.text);
        return {};
      case ReportItem::Kind::kSubtitle:
        mBody += QStringLiteral("<p class=\"subtitle\">%1</p>\n").arg(web::escaped(item.text));
        return {};
      case ReportItem::Kind::kHeading:
        beginChapter(item.text);
        return {};
      case ReportItem::Kind::kSubheading:
        addText(mChapters > 0 ? QStringLiteral("h3") : QStringLiteral("h2"), item.text);
        return {};
      case ReportItem::Kind::kParagraph:
        addText(QStringLiteral("p"), mChapters > 0 ? mNumbers.inText(item.text) : item.text);
        return {};
      case ReportItem::Kind::kTable:
        addTable(item);
        return {};
      case ReportItem::Kind::kFigure:
        return addFigure(item);
      case ReportItem::Kind::kBreak:
        return {};  // of pages; a style sees to it
    }
    return {};
  }

  void addText(const QString& element, const QString& text) {
    mBody += QStringLiteral("<%1>%2</%1>\n").arg(element, web::escaped(text));
  }

  void endChapter() {
    mBody += mChapters > 0 ? QStringLiteral("</section>\n") : QStringLiteral("</header>\n");
  }

  void beginChapter(const QString& text) {
    endChapter();
    ++mChapters;
    mBody +=
        QStringLiteral("<section aria-labelledby=\"chapter-%1\">\n<h2 id=\"chapter-%1\">%2</h2>\n")
            .arg(mChapters)
            .arg(web::escaped(text));
  }

  void addTable(const ReportItem& item) {
    const ReportTable& table = item.table;
    // A wide one scrolls in a place of its own, which keys reach.
    const QString name = item.text.isEmpty() ? WebPageWords::tr("About the report") : item.text;
    mBody += QStringLiteral(
                 "<div class=\"table%3\" tabindex=\"0\" role=\"region\" aria-label=\"%1\">"
                 "\n<table%2>\n")
                 .arg(web::escaped(name),
                      table.hasHeadings() ? QString() : QStringLiteral(" class=\"facts\""),
                      table.staysWhole() ? QStringLiteral(" whole") : QString());
    if (!item.text.isEmpty()) addText(QStringLiteral("caption"), item.text);
    if (table.hasHeadings()) addHeadings(table);
    mBody += QStringLiteral("<tbody>\n");
    for (const QStringList& row : table.rows) addRow(table, row, !item.text.isEmpty());
    mBody += QStringLiteral("</tbody>\n</table>\n</div>\n");
    if (item.live != LiveFigure::kNone) addLive(item.live, true);
  }

  void addHeadings(const ReportTable& table) {
    mBody += QStringLiteral("<thead><tr>");
    for (const ReportTable::Column& column : table.columns) {
      mBody += QStringLiteral("<th scope=\"col\"%1>%2</th>")
                   .arg(classOf(column), web::escaped(column.title));
    }
    mBody += QStringLiteral("</tr></thead>\n");
  }

  /// \param own whether the program wrote it: what a user typed keeps its points
  void addRow(const ReportTable& table, const QStringList& row, bool own) {
    mBody += QStringLiteral("<tr>");
    for (int i = 0; i < row.size(); ++i) {
      const ReportTable::Column& column = table.columns[static_cast<std::size_t>(i)];
      const bool name = i == 0;
      const bool numbers = own && (column.number || (!table.hasHeadings() && !name));
      mBody += QStringLiteral("<%1%2>%3</%4>")
                   .arg(name ? QStringLiteral("th scope=\"row\"") : QStringLiteral("td"),
                        classOf(column), web::escaped(numbers ? mNumbers.inText(row[i]) : row[i]),
                        name ? QStringLiteral("th") : QStringLiteral("td"));
    }
    mBody += QStringLiteral("</tr>\n");
  }

  static QString classOf(const ReportTable::Column& column) {
    return column.number ? QStringLiteral(" class=\"number\"") : QString();
  }

  /// The place of a live figure; a script fills it. One without a still figure is printed, too.
  void addLive(LiveFigure live, bool printed) {
    mBody += QStringLiteral("<div class=\"live%1\" data-figure=\"%2\" hidden></div>\n")
                 .arg(printed ? QStringLiteral(" printed") : QString(), nameOf(live));
  }

  Status addFigure(const ReportItem& item) {
    QByteArray picture;
    QString type = QStringLiteral("svg+xml");
    Status status = paintFigure(FigureFormat::kSvg, item.figure.sheet, item.figure.paint, picture);
    if (status.ok() && picture.size() > kMostShapes) {
      FigureSheet sheet = item.figure.sheet;
      sheet.dpi = kFigureDpi;
      type = QStringLiteral("png");
      status = paintFigure(FigureFormat::kPng, sheet, item.figure.paint, picture);
      if (status.ok()) picture = web::fewColors(picture);
    }
    if (!status.ok()) return status;
    // Of residuals the live figures show other sides than the still one, which stays.
    const bool beside = item.live == LiveFigure::kResiduals;
    mBody += QStringLiteral("<figure>\n");
    if (item.live != LiveFigure::kNone && !beside) addLive(item.live, false);
    mBody +=
        QStringLiteral("<img class=\"still\" width=\"%1\" alt=\"%2\" src=\"data:image/%3;base64,")
            .arg(qRound(item.figure.sheet.widthMm / kMmPerInch * 96.0))
            .arg(web::escaped(item.text), type);
    mBody += QString::fromLatin1(picture.toBase64());
    mBody += QStringLiteral("\">\n<figcaption>%1</figcaption>\n</figure>\n")
                 .arg(web::escaped(item.text));
    if (beside) addLive(item.live, true);
    if (mGoOn && !mGoOn(++mFigures)) {
      return Status::failure(Message::tr("The report was stopped."), kReportCancelled);
    }
    return {};
  }

  const ReportContent& mContent;
  const std::function<bool(int)>& mGoOn;
  const web::LocalNumbers mNumbers;
  QString mBody;
  int mChapters = 0;
  int mFigures = 0;
};

QByteArray pageSizeOf(const ReportContent& content) {
  return content.paper == ReportPaper::kA4 ? "a4" : "letter";
}

}  // namespace

Status reportAsHtml(const ReportContent& content, const std::function<bool(int)>& goOn,
                    QByteArray& bytes) {
  loadWebResources();
  const QByteArray library = resource(kChartLibrary);
  if (library.isEmpty()) {
    return Status::failure(
        Message::tr("This Talvesk cannot write web pages: it was built without the chart library. "
                    "Run scripts/bootstrap and build it again, or write a PDF or ODT report."));
  }
  QString body;
  if (Status status = BodyWriter(content, goOn).write(body); !status.ok()) return status;
  web::Document page;
  page.language = content.language;
  page.title = content.title;
  page.author = content.author;
  page.style = resource("page.css");
  page.bodyClass = pageSizeOf(content);
  page.skip = WebPageWords::tr("Skip to the content");
  page.body = body.toUtf8();
  page.data = QJsonDocument(content.liveData ? content.liveData() : QJsonObject())
                  .toJson(QJsonDocument::Compact);
  page.scripts = {library, ownScript()};
  bytes = web::documentBytes(page);
  return {};
}

}  // namespace talvesk
