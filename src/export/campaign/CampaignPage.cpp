#include "export/campaign/CampaignPage.h"

#include "base/AtomicFile.h"
#include "base/LengthUnit.h"
#include "base/WebDocument.h"
#include "base/WebText.h"
#include "export/campaign/CampaignPictures.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QUrl>
#include <algorithm>
#include <cmath>

static void loadCampaignResources() {
  Q_INIT_RESOURCE(campaign);
}

namespace talvesk {
namespace {

using web::escaped;

constexpr QChar kDash(0x2013);  ///< in place of what is not known

struct CampaignWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::CampaignPage)
};

QByteArray resource(const char* name) {
  QFile file(QStringLiteral(":/campaign/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

/// The address of a file beside the page: no name can make another address of it.
QString linkTo(const std::string& file) {
  return QString::fromLatin1(QUrl::toPercentEncoding(qt(file)));
}

bool isPage(const std::string& file) {
  return qt(file).endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
}

/// What the table has beside number, name and picture of a line.
struct Column {
  QString title;
  double (*value)(const CampaignLine& line);  ///< to sort by
  int places = 0;
};

/// What is told of the section that is shown.
double known(const CampaignLine& line, double value) {
  return line.misfit.count > 0 ? value : CampaignLine::kUnknown;
}

std::vector<Column> numberColumns() {
  return {{CampaignWords::tr("RMS misfit [ms]"),
           [](const CampaignLine& line) { return known(line, 1e3 * line.misfit.rmse); }, 2},
          {CampaignWords::tr("RMS misfit [%]"),
           [](const CampaignLine& line) { return known(line, 1e2 * line.misfit.relativeRms); }, 1},
          {CampaignWords::tr("Chi-square"),
           [](const CampaignLine& line) {
             return line.fit.count > 0 ? line.fit.chi2 : CampaignLine::kUnknown;
           },
           2},
          {CampaignWords::tr("Length covered [%1]").arg(QLatin1String(lengthUnitName())),
           [](const CampaignLine& line) { return shownLength(line.length); }, 1},
          {CampaignWords::tr("Depth reached [%1]").arg(QLatin1String(lengthUnitName())),
           [](const CampaignLine& line) { return shownLength(line.depth); }, 1},
          {CampaignWords::tr("Cells with rays [%]"),
           [](const CampaignLine& line) { return 1e2 * line.covered; }, 0},
          {CampaignWords::tr("Shots"),
           [](const CampaignLine& line) { return static_cast<double>(line.shots); }, 0},
          {CampaignWords::tr("Geophones"),
           [](const CampaignLine& line) { return static_cast<double>(line.geophones); }, 0}};
}

QStringList remarksOn(const CampaignLine& line) {
  QStringList remarks;
  if (!line.hasSection) remarks << CampaignWords::tr("Not inverted yet");
  if (line.hasSection && line.misfit.count == 0) {
    remarks << CampaignWords::tr("The misfit of the section is not known");
  }
  if (line.picksChanged) remarks << CampaignWords::tr("Picks have changed since the inversion");
  if (line.smoothed) remarks << CampaignWords::tr("Smoothed after the inversion");
  for (const std::string& note : line.notes) remarks << qt(note);
  return remarks;
}

class PageBody {
 public:
  PageBody(const std::vector<CampaignLine>& lines, const CampaignTexts& texts, const QString& title)
      : mLines(lines),
        mTexts(texts),
        mTitle(title),
        mNumbers(texts.language),
        mColumns(numberColumns()) {
    for (const CampaignLine& line : lines) {
      if (!line.failure.empty()) continue;
      for (const std::string& file : line.files) mFiles = mFiles || !isPage(file);
    }
  }

  QString write() {
    mBody = QStringLiteral(
                "<main id=\"content\">\n<div id=\"tools\" class=\"tools\" "
                "data-dark=\"%1\" data-light=\"%2\"></div>\n<h1>%3</h1>\n")
                .arg(escaped(CampaignWords::tr("Dark")), escaped(CampaignWords::tr("Light")),
                     escaped(mTitle));
    addFacts();
    addSummary();
    addLines();
    addMap();
    return mBody + QStringLiteral("</main>\n");
  }

 private:
  void addFacts() {
    QString rows;
    for (const auto& [name, value] : {std::pair{CampaignWords::tr("Client"), mTexts.client},
                                      std::pair{CampaignWords::tr("Site"), mTexts.site},
                                      std::pair{CampaignWords::tr("Author"), mTexts.author},
                                      std::pair{CampaignWords::tr("Date"), mTexts.date}}) {
      if (value.empty()) continue;
      rows += QStringLiteral("<tr><th scope=\"row\">%1</th><td>%2</td></tr>\n")
                  .arg(escaped(name), escaped(qt(value)));
    }
    if (!rows.isEmpty()) {
      mBody += QStringLiteral("<table class=\"facts\"><tbody>\n") + rows +
               QStringLiteral("</tbody></table>\n");
    }
  }

  void addSummary() {
    const auto failed = std::count_if(mLines.begin(), mLines.end(), [](const CampaignLine& line) {
      return !line.failure.empty();
    });
    const auto inverted = std::count_if(mLines.begin(), mLines.end(),
                                        [](const CampaignLine& line) { return line.hasSection; });
    mBody += QStringLiteral("<p>%1</p>\n")
                 .arg(escaped(CampaignWords::tr("Lines: %1; with a section: %2; failed: %3")
                                  .arg(mLines.size())
                                  .arg(inverted)
                                  .arg(failed)));
  }

  void addLines() {
    const QString name = CampaignWords::tr("Lines");
    mBody += QStringLiteral("<section aria-labelledby=\"lines\">\n<h2 id=\"lines\">%1</h2>\n")
                 .arg(escaped(name));
    const auto range = web::velocitiesOf(mLines);
    mColors.emplace(ColorPaletteList().current(), range.value_or(ValueRange{0.0, 1.0}));
    if (range) {
      const QString bar = CampaignWords::tr("Velocity [%1]").arg(QLatin1String(velocityUnitName()));
      mBody += QStringLiteral("<p class=\"scale-of-colors\"><span>%1</span> %2</p>\n")
                   .arg(escaped(bar), web::colorBarSvg(*mColors, bar));
      addText(
          CampaignWords::tr("Small sections are stretched to fill their place; their colours "
                            "are the same for all lines. Misfits are those of the sections "
                            "shown, along fresh rays."));
    }
    mBody += QStringLiteral(
                 "<div class=\"table\" tabindex=\"0\" role=\"region\" "
                 "aria-label=\"%1\">\n<table id=\"campaign\">\n")
                 .arg(escaped(name));
    addHeadings();
    mBody += QStringLiteral("<tbody>\n");
    for (std::size_t i = 0; i < mLines.size(); ++i) addRow(i);
    mBody += QStringLiteral("</tbody>\n</table>\n</div>\n</section>\n");
  }

  void addText(const QString& text) { mBody += QStringLiteral("<p>%1</p>\n").arg(escaped(text)); }

  void addHeading(const QString& title, bool number, bool sorts = true) {
    mBody += QStringLiteral("<th scope=\"col\"%1%2>%3</th>")
                 .arg(number ? QStringLiteral(" class=\"number\"") : QString(),
                      sorts ? QStringLiteral(" data-sorts=\"%1\"")
                                  .arg(number ? QStringLiteral("number") : QStringLiteral("text"))
                            : QString(),
                      escaped(title));
  }

  void addHeadings() {
    mBody += QStringLiteral("<thead><tr>");
    addHeading(CampaignWords::tr("No."), true);
    addHeading(CampaignWords::tr("Line"), false);
    addHeading(CampaignWords::tr("Section"), false, false);
    for (const Column& column : mColumns) addHeading(column.title, true);
    addHeading(CampaignWords::tr("Picks used"), true);
    addHeading(CampaignWords::tr("Inverted"), false);
    if (mFiles) addHeading(CampaignWords::tr("Files"), false, false);
    mBody += QStringLiteral("</tr></thead>\n");
  }

  void addRow(std::size_t index) {
    const CampaignLine& line = mLines[index];
    mBody += QStringLiteral("<tr id=\"line-%1\"%2>")
                 .arg(index + 1)
                 .arg(line.failure.empty() ? "" : " class=\"failed\"");
    addNumber(static_cast<double>(index + 1), QString::number(index + 1));
    const auto page = std::find_if(line.files.begin(), line.files.end(), isPage);
    mBody += QStringLiteral("<th scope=\"row\">%1</th>")
                 .arg(page == line.files.end() ? escaped(qt(line.name))
                                               : QStringLiteral("<a href=\"%1\">%2</a>")
                                                     .arg(linkTo(*page), escaped(qt(line.name))));
    if (line.failure.empty()) {
      addCells(line);
    } else {
      const std::size_t columns = mColumns.size() + 3 + (mFiles ? 1 : 0);
      mBody += QStringLiteral("<td colspan=\"%1\"><strong>%2</strong> %3</td>")
                   .arg(columns)
                   .arg(escaped(CampaignWords::tr("Failed:")), escaped(qt(line.failure)));
    }
    mBody += QStringLiteral("</tr>\n");
  }

  void addNumber(double value, const QString& text) {
    const QString key =
        std::isfinite(value)
            ? QStringLiteral(" data-value=\"%1\"").arg(QString::number(value, 'g', 9))
            : QString();
    mBody += QStringLiteral("<td class=\"number\"%1>%2</td>").arg(key, text);
  }

  void addCells(const CampaignLine& line) {
    mBody += QStringLiteral("<td>%1%2</td>").arg(pictureOf(line), remarkElementsOf(line));
    for (const Column& column : mColumns) {
      const double value = column.value(line);
      addNumber(value, std::isfinite(value)
                           ? mNumbers.inText(QString::number(value, 'f', column.places))
                           : QString(kDash));
    }
    addPicks(line);
    mBody += QStringLiteral("<td class=\"when\">%1</td>")
                 .arg(escaped(line.inverted.empty() ? QString(kDash) : qt(line.inverted).left(10)));
    if (mFiles) addFiles(line);
  }

  QString pictureOf(const CampaignLine& line) const {
    if (line.section.velocities.empty()) return {};
    return web::smallSectionSvg(line.section, *mColors,
                                CampaignWords::tr("Velocity section of %1").arg(qt(line.name)));
  }

  static QString remarkElementsOf(const CampaignLine& line) {
    QString elements;
    for (const QString& remark : remarksOn(line)) {
      elements += QStringLiteral("<p class=\"remark\">%1</p>").arg(escaped(remark));
    }
    return elements;
  }

  void addPicks(const CampaignLine& line) {
    const bool known = line.misfit.count > 0 || !line.hasSection;
    addNumber(known ? line.misfit.count : CampaignLine::kUnknown,
              escaped(CampaignWords::tr("%1 of %2")
                          .arg(known ? QString::number(line.misfit.count) : QString(kDash))
                          .arg(line.picks)));
  }

  void addFiles(const CampaignLine& line) {
    QStringList links;
    for (const std::string& file : line.files) {
      if (isPage(file)) continue;
      const QString suffix = qt(file).section(QLatin1Char('.'), -1);
      links << QStringLiteral("<a href=\"%1\" aria-label=\"%2\" download>%3</a>")
                   .arg(linkTo(file), escaped(qt(file)), escaped(suffix));
    }
    mBody += QStringLiteral("<td>%1</td>").arg(links.join(QStringLiteral(", ")));
  }

  void addMap() {
    const QString name = CampaignWords::tr("Map of the lines");
    const QString map = web::campaignMapSvg(mLines, name);
    if (map.isEmpty()) return;
    mBody += QStringLiteral("<section aria-labelledby=\"map\">\n<h2 id=\"map\">%1</h2>\n")
                 .arg(escaped(name));
    const auto unplaced = std::count_if(mLines.begin(), mLines.end(),
                                        [](const CampaignLine& line) { return !line.ends; });
    addText(
        CampaignWords::tr("Numbers are those of the table; each stands at the first geophone "
                          "of its line."));
    if (unplaced > 0) {
      addText(CampaignWords::tr("Lines whose position is not known: %1").arg(unplaced));
    }
    mBody += map + QStringLiteral("\n</section>\n");
  }

  const std::vector<CampaignLine>& mLines;
  const CampaignTexts& mTexts;
  const QString& mTitle;
  const web::LocalNumbers mNumbers;
  const std::vector<Column> mColumns;
  std::optional<ColorTable> mColors;
  QString mBody;
  bool mFiles = false;  ///< there are some beside pages
};

}  // namespace

QByteArray campaignPage(const std::vector<CampaignLine>& lines, const CampaignTexts& texts) {
  loadCampaignResources();
  web::Document page;
  page.language = texts.language;
  page.title = texts.title.empty() ? CampaignWords::tr("Campaign") : qt(texts.title).simplified();
  page.author = qt(texts.author);
  page.style = resource("page.css") + resource("campaign.css");
  page.bodyClass = "campaign";
  page.skip = CampaignWords::tr("Skip to the content");
  page.body = PageBody(lines, texts, page.title).write().toUtf8();
  page.scripts = {"'use strict';\n(() => {\n" + resource("theme.js") + resource("campaign.js") +
                  "})();\n"};
  return web::documentBytes(page);
}

Status writeCampaignPage(const std::string& path, const std::vector<CampaignLine>& lines,
                         const CampaignTexts& texts) {
  const QByteArray bytes = campaignPage(lines, texts);
  return writeFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace talvesk
