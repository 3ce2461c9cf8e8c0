#include "figures/report/ReportOdt.h"

#include "figures/ZipBytes.h"
#include "figures/report/OdtStyles.h"
#include "figures/report/ReportPages.h"

#include <QBuffer>
#include <QByteArray>
#include <QDateTime>
#include <QXmlStreamWriter>
#include <numeric>

namespace talvesk {
namespace {

constexpr double kFigureDpi = 300.0;

QString pictureName(int number) {
  return QStringLiteral("Pictures/figure%1.png").arg(number);
}

/// The text of the document, block by block.
class ContentWriter {
 public:
  explicit ContentWriter(const ReportContent& content) : mContent(content) {}

  QByteArray write() {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    mXml = &xml;
    xml.writeStartDocument();
    odt::startRoot(xml, QStringLiteral("document-content"));
    writeColumnStyles();
    xml.writeStartElement(QStringLiteral("office:body"));
    xml.writeStartElement(QStringLiteral("office:text"));
    for (const ReportItem& item : mContent.items) writeItem(item);
    xml.writeEndDocument();
    return bytes;
  }

 private:
  /// Columns are as wide as their table says: a style each.
  void writeColumnStyles() {
    const double width = ReportSheet(mContent.paper).textWidthMm();
    mXml->writeStartElement(QStringLiteral("office:automatic-styles"));
    int table = 0;
    for (const ReportItem& item : mContent.items) {
      if (item.kind != ReportItem::Kind::kTable) continue;
      ++table;
      int column = 0;
      const std::vector<double> widths = item.table.columnWidthsMm(width);
      writeTableStyle(tableStyle(table), std::accumulate(widths.begin(), widths.end(), 0.0),
                      item.table.staysWhole());
      for (const double columnMm : widths) {
        mXml->writeStartElement(QStringLiteral("style:style"));
        mXml->writeAttribute(QStringLiteral("style:name"), columnStyle(table, ++column));
        mXml->writeAttribute(QStringLiteral("style:family"), QStringLiteral("table-column"));
        mXml->writeEmptyElement(QStringLiteral("style:table-column-properties"));
        mXml->writeAttribute(QStringLiteral("style:column-width"), odt::mm(columnMm));
        mXml->writeEndElement();
      }
    }
    odt::writeCellStyles(*mXml);
    mXml->writeEndElement();
  }

  void writeTableStyle(const QString& name, double widthMm, bool whole) {
    mXml->writeStartElement(QStringLiteral("style:style"));
    mXml->writeAttribute(QStringLiteral("style:name"), name);
    mXml->writeAttribute(QStringLiteral("style:family"), QStringLiteral("table"));
    mXml->writeEmptyElement(QStringLiteral("style:table-properties"));
    mXml->writeAttribute(QStringLiteral("style:width"), odt::mm(widthMm));
    mXml->writeAttribute(QStringLiteral("table:align"), QStringLiteral("left"));
    mXml->writeAttribute(QStringLiteral("table:border-model"), QStringLiteral("collapsing"));
    mXml->writeAttribute(QStringLiteral("style:may-break-between-rows"),
                         whole ? QStringLiteral("false") : QStringLiteral("true"));
    mXml->writeEndElement();
  }

  static QString tableStyle(int table) { return QStringLiteral("Table%1").arg(table); }
  static QString columnStyle(int table, int column) {
    return QStringLiteral("Table%1.%2").arg(table).arg(column);
  }

  void writeItem(const ReportItem& item) {
    switch (item.kind) {
      case ReportItem::Kind::kTitle:
        return writeParagraph(QStringLiteral("Title"), item.text);
      case ReportItem::Kind::kSubtitle:
        return writeParagraph(QStringLiteral("Subtitle"), item.text);
      case ReportItem::Kind::kHeading:
        return writeHeading(item.text, 1);
      case ReportItem::Kind::kSubheading:
        return writeHeading(item.text, 2);
      case ReportItem::Kind::kParagraph:
        return writeParagraph(QStringLiteral("Text_20_body"), item.text);
      case ReportItem::Kind::kTable:
        if (!item.text.isEmpty()) writeParagraph(QStringLiteral("Table_20_caption"), item.text);
        return writeTable(item.table);
      case ReportItem::Kind::kFigure:
        writePicture(item);
        return writeParagraph(QStringLiteral("Figure_20_caption"), item.text);
      case ReportItem::Kind::kBreak:
        mBreak = true;
    }
  }

  void writeParagraph(const QString& style, const QString& text) {
    mXml->writeStartElement(QStringLiteral("text:p"));
    mXml->writeAttribute(QStringLiteral("text:style-name"), style);
    odt::writeText(*mXml, text);
    mXml->writeEndElement();
  }

  void writeHeading(const QString& text, int level) {
    mXml->writeStartElement(QStringLiteral("text:h"));
    QString style = QStringLiteral("Heading_20_%1").arg(level);
    if (mBreak) style += QStringLiteral("_20_on_20_new_20_page");
    mBreak = false;
    mXml->writeAttribute(QStringLiteral("text:style-name"), style);
    mXml->writeAttribute(QStringLiteral("text:outline-level"), QString::number(level));
    odt::writeText(*mXml, text);
    mXml->writeEndElement();
  }

  void writeTable(const ReportTable& table) {
    if (table.rows.empty()) return;
    mXml->writeStartElement(QStringLiteral("table:table"));
    mXml->writeAttribute(QStringLiteral("table:name"), tableStyle(++mTables));
    mXml->writeAttribute(QStringLiteral("table:style-name"), tableStyle(mTables));
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      mXml->writeEmptyElement(QStringLiteral("table:table-column"));
      mXml->writeAttribute(QStringLiteral("table:style-name"),
                           columnStyle(mTables, static_cast<int>(i) + 1));
    }
    if (table.hasHeadings()) {
      QStringList titles;
      for (const ReportTable::Column& column : table.columns) titles += column.title;
      mXml->writeStartElement(QStringLiteral("table:table-header-rows"));
      writeRow(table, titles, QStringLiteral("ReportHeading"), true);
      mXml->writeEndElement();
    }
    bool shaded = !table.hasHeadings();
    for (const QStringList& row : table.rows) {
      writeRow(table, row, shaded ? QStringLiteral("ReportShaded") : QStringLiteral("ReportPlain"),
               false);
      shaded = !shaded;
    }
    mXml->writeEndElement();
    writeParagraph(QStringLiteral("After_20_table"), QString());
  }

  void writeRow(const ReportTable& table, const QStringList& texts, const QString& cellStyle,
                bool heading) {
    mXml->writeStartElement(QStringLiteral("table:table-row"));
    mXml->writeAttribute(QStringLiteral("table:style-name"), QStringLiteral("ReportRow"));
    for (int i = 0; i < texts.size(); ++i) {
      mXml->writeStartElement(QStringLiteral("table:table-cell"));
      mXml->writeAttribute(QStringLiteral("table:style-name"), cellStyle);
      mXml->writeAttribute(QStringLiteral("office:value-type"), QStringLiteral("string"));
      QString style =
          heading ? QStringLiteral("Table_20_heading") : QStringLiteral("Table_20_contents");
      if (table.columns[static_cast<std::size_t>(i)].number) style += QStringLiteral("_20_number");
      writeParagraph(style, texts[i]);
      mXml->writeEndElement();
    }
    mXml->writeEndElement();
  }

  void writePicture(const ReportItem& item) {
    mXml->writeStartElement(QStringLiteral("text:p"));
    mXml->writeAttribute(QStringLiteral("text:style-name"), QStringLiteral("Figure"));
    mXml->writeStartElement(QStringLiteral("draw:frame"));
    mXml->writeAttribute(QStringLiteral("draw:name"), QStringLiteral("Figure%1").arg(++mFigures));
    mXml->writeAttribute(QStringLiteral("text:anchor-type"), QStringLiteral("as-char"));
    mXml->writeAttribute(QStringLiteral("svg:width"), odt::mm(item.figure.sheet.widthMm));
    mXml->writeAttribute(QStringLiteral("svg:height"), odt::mm(item.figure.sheet.heightMm));
    mXml->writeEmptyElement(QStringLiteral("draw:image"));
    mXml->writeAttribute(QStringLiteral("xlink:href"), pictureName(mFigures));
    mXml->writeAttribute(QStringLiteral("xlink:type"), QStringLiteral("simple"));
    mXml->writeAttribute(QStringLiteral("xlink:show"), QStringLiteral("embed"));
    mXml->writeAttribute(QStringLiteral("xlink:actuate"), QStringLiteral("onLoad"));
    mXml->writeTextElement(QStringLiteral("svg:title"), item.text);  // for who cannot see it
    mXml->writeEndElement();
    mXml->writeEndElement();
  }

  const ReportContent& mContent;
  QXmlStreamWriter* mXml = nullptr;
  int mTables = 0;
  int mFigures = 0;
  bool mBreak = false;
};

QByteArray manifest(int figures) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  xml.writeStartDocument();
  xml.writeStartElement(QStringLiteral("manifest:manifest"));
  xml.writeAttribute(QStringLiteral("xmlns:manifest"),
                     QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"));
  xml.writeAttribute(QStringLiteral("manifest:version"), QStringLiteral("1.2"));
  const auto entry = [&xml](const QString& path, const char* type) {
    xml.writeEmptyElement(QStringLiteral("manifest:file-entry"));
    xml.writeAttribute(QStringLiteral("manifest:full-path"), path);
    xml.writeAttribute(QStringLiteral("manifest:media-type"), QLatin1String(type));
  };
  entry(QStringLiteral("/"), odt::kMimeType);
  for (const char* name : {"content.xml", "styles.xml", "meta.xml"}) {
    entry(QLatin1String(name), "text/xml");
  }
  for (int i = 1; i <= figures; ++i) entry(pictureName(i), "image/png");
  xml.writeEndDocument();
  return bytes;
}

}  // namespace

Status reportAsOdt(const ReportContent& content, const std::function<bool(int)>& goOn,
                   QByteArray& bytes) {
  // The type comes first and as it is, so that a look at the first bytes tells it.
  std::vector<ZipMember> members = {{"mimetype", odt::kMimeType, false},
                                    {"content.xml", ContentWriter(content).write()},
                                    {"styles.xml", odt::stylesOf(content)},
                                    {"meta.xml", odt::metaOf(content)}};
  int figures = 0;
  for (const ReportItem& item : content.items) {
    if (item.kind != ReportItem::Kind::kFigure) continue;
    FigureSheet sheet = item.figure.sheet;
    sheet.dpi = kFigureDpi;
    QByteArray picture;
    Status status = paintFigure(FigureFormat::kPng, sheet, item.figure.paint, picture);
    if (!status.ok()) return status;
    members.push_back({pictureName(++figures).toStdString(), picture, false});
    if (goOn && !goOn(figures)) {
      return Status::failure(Message::tr("The report was stopped."), kReportCancelled);
    }
  }
  members.push_back({"META-INF/manifest.xml", manifest(figures)});
  return zipBytes(members, bytes);
}

}  // namespace talvesk
