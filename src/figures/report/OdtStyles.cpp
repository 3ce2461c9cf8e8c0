#include "figures/report/OdtStyles.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>
#include <QXmlStreamWriter>

namespace talvesk::odt {
namespace {

using Attributes = QXmlStreamAttributes;

void element(QXmlStreamWriter& xml, const char* name, const Attributes& attributes) {
  xml.writeEmptyElement(QLatin1String(name));
  xml.writeAttributes(attributes);
}

struct Attribute {
  const char* name;
  const char* value;
};

Attributes of(std::initializer_list<Attribute> list) {
  Attributes attributes;
  for (const Attribute& each : list) {
    attributes.append(QLatin1String(each.name), QLatin1String(each.value));
  }
  return attributes;
}

void startStyle(QXmlStreamWriter& xml, const char* name, const char* family,
                const char* parent = nullptr) {
  xml.writeStartElement(QStringLiteral("style:style"));
  xml.writeAttribute(QStringLiteral("style:name"), QLatin1String(name));
  xml.writeAttribute(QStringLiteral("style:family"), QLatin1String(family));
  if (parent != nullptr) {
    xml.writeAttribute(QStringLiteral("style:parent-style-name"), QLatin1String(parent));
  }
}

void paragraphStyle(QXmlStreamWriter& xml, const char* name, const char* parent,
                    std::initializer_list<Attribute> paragraph,
                    std::initializer_list<Attribute> letters) {
  startStyle(xml, name, "paragraph", parent);
  element(xml, "style:paragraph-properties", of(paragraph));
  element(xml, "style:text-properties", of(letters));
  xml.writeEndElement();
}

void writeDefaults(QXmlStreamWriter& xml, const QString& language) {
  xml.writeStartElement(QStringLiteral("style:default-style"));
  xml.writeAttribute(QStringLiteral("style:family"), QStringLiteral("paragraph"));
  element(xml, "style:paragraph-properties", of({{"fo:orphans", "2"}, {"fo:widows", "2"}}));
  Attributes letters = of({{"fo:font-family", "'DejaVu Sans', 'Liberation Sans', sans-serif"},
                           {"style:font-family-generic", "swiss"},
                           {"fo:font-size", "10pt"}});
  letters.append(QStringLiteral("fo:language"), language);
  letters.append(QStringLiteral("fo:country"), QStringLiteral("none"));
  element(xml, "style:text-properties", letters);
  xml.writeEndElement();
}

void writeParagraphStyles(QXmlStreamWriter& xml) {
  const char* const text = "Text_20_body";
  const char* const cell = "Table_20_contents";
  paragraphStyle(xml, text, nullptr, {{"fo:margin-bottom", "2.5mm"}}, {});
  paragraphStyle(xml, "Title", nullptr, {{"fo:margin-top", "70mm"}, {"fo:margin-bottom", "4mm"}},
                 {{"fo:font-size", "24pt"}, {"fo:font-weight", "bold"}});
  paragraphStyle(xml, "Subtitle", nullptr, {{"fo:margin-bottom", "18mm"}},
                 {{"fo:font-size", "14pt"}});
  paragraphStyle(
      xml, "Heading_20_1", nullptr,
      {{"fo:margin-top", "9mm"}, {"fo:margin-bottom", "3mm"}, {"fo:keep-with-next", "always"}},
      {{"fo:font-size", "15pt"}, {"fo:font-weight", "bold"}});
  paragraphStyle(
      xml, "Heading_20_2", nullptr,
      {{"fo:margin-top", "5mm"}, {"fo:margin-bottom", "2mm"}, {"fo:keep-with-next", "always"}},
      {{"fo:font-size", "11.5pt"}, {"fo:font-weight", "bold"}});
  paragraphStyle(xml, "Heading_20_1_20_on_20_new_20_page", "Heading_20_1",
                 {{"fo:break-before", "page"}}, {});
  paragraphStyle(
      xml, "Table_20_caption", nullptr,
      {{"fo:margin-top", "4mm"}, {"fo:margin-bottom", "1.5mm"}, {"fo:keep-with-next", "always"}},
      {{"fo:font-size", "9pt"}, {"fo:font-weight", "bold"}});
  paragraphStyle(xml, "Figure", nullptr,
                 {{"fo:margin-top", "2mm"}, {"fo:keep-with-next", "always"}}, {});
  paragraphStyle(xml, "Figure_20_caption", nullptr, {{"fo:margin-bottom", "5mm"}},
                 {{"fo:font-size", "9pt"}});
  paragraphStyle(xml, cell, nullptr, {}, {{"fo:font-size", "8.5pt"}});
  paragraphStyle(xml, "Table_20_contents_20_number", cell, {{"fo:text-align", "end"}}, {});
  paragraphStyle(xml, "Table_20_heading", cell, {{"fo:keep-with-next", "always"}},
                 {{"fo:font-weight", "bold"}});
  paragraphStyle(xml, "Table_20_heading_20_number", "Table_20_heading", {{"fo:text-align", "end"}},
                 {});
  paragraphStyle(xml, "After_20_table", nullptr, {}, {{"fo:font-size", "6pt"}});
  paragraphStyle(xml, "Footer", nullptr, {{"fo:text-align", "end"}},
                 {{"fo:font-size", "8pt"}, {"fo:color", "#606060"}});
}

void writePageLayout(QXmlStreamWriter& xml, const ReportSheet& sheet) {
  xml.writeStartElement(QStringLiteral("style:page-layout"));
  xml.writeAttribute(QStringLiteral("style:name"), QStringLiteral("ReportPage"));
  xml.writeStartElement(QStringLiteral("style:page-layout-properties"));
  xml.writeAttribute(QStringLiteral("fo:page-width"), mm(sheet.widthMm));
  xml.writeAttribute(QStringLiteral("fo:page-height"), mm(sheet.heightMm));
  for (const char* side : {"fo:margin-left", "fo:margin-right", "fo:margin-top"}) {
    xml.writeAttribute(QLatin1String(side), mm(ReportSheet::kMarginMm));
  }
  xml.writeAttribute(QStringLiteral("fo:margin-bottom"), mm(0.5 * ReportSheet::kMarginMm));
  xml.writeEndElement();
  xml.writeStartElement(QStringLiteral("style:footer-style"));
  element(xml, "style:header-footer-properties",
          of({{"fo:min-height", "8mm"}, {"fo:margin-top", "4mm"}}));
  xml.writeEndElement();
  xml.writeEndElement();
}

/// "Page %1 of %2" with fields in place of the numbers.
void writePageNumber(QXmlStreamWriter& xml) {
  const QString words = QCoreApplication::translate("talvesk::Report", "Page %1 of %2");
  xml.writeStartElement(QStringLiteral("text:p"));
  xml.writeAttribute(QStringLiteral("text:style-name"), QStringLiteral("Footer"));
  const int page = words.indexOf(QLatin1String("%1"));
  const int count = words.indexOf(QLatin1String("%2"));
  writeText(xml, words.left(page));
  xml.writeEmptyElement(QStringLiteral("text:page-number"));
  xml.writeAttribute(QStringLiteral("text:select-page"), QStringLiteral("current"));
  writeText(xml, words.mid(page + 2, count - page - 2));
  xml.writeEmptyElement(QStringLiteral("text:page-count"));
  writeText(xml, words.mid(count + 2));
  xml.writeEndElement();
}

}  // namespace

void startRoot(QXmlStreamWriter& xml, const QString& name) {
  static const struct {
    const char* prefix;
    const char* uri;
  } kSpaces[] = {{"office", "urn:oasis:names:tc:opendocument:xmlns:office:1.0"},
                 {"style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
                 {"text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"},
                 {"table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
                 {"draw", "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"},
                 {"fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
                 {"svg", "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"},
                 {"meta", "urn:oasis:names:tc:opendocument:xmlns:meta:1.0"},
                 {"xlink", "http://www.w3.org/1999/xlink"},
                 {"dc", "http://purl.org/dc/elements/1.1/"}};
  xml.writeStartElement(QStringLiteral("office:") + name);
  for (const auto& space : kSpaces) {
    xml.writeAttribute(QStringLiteral("xmlns:") + QLatin1String(space.prefix),
                       QLatin1String(space.uri));
  }
  xml.writeAttribute(QStringLiteral("office:version"), QStringLiteral("1.2"));
}

QString mm(double value) {
  return QString::number(value, 'f', 2) + QStringLiteral("mm");
}

void writeText(QXmlStreamWriter& xml, const QString& text) {
  QString run;
  const auto flush = [&] {
    if (!run.isEmpty()) xml.writeCharacters(run);
    run.clear();
  };
  bool blank = true;  // leading blanks, too, count for nothing unless they are told
  for (const QChar letter : text) {
    if (letter == QLatin1Char('\n') || letter == QChar::LineSeparator) {
      flush();
      xml.writeEmptyElement(QStringLiteral("text:line-break"));
      blank = true;
    } else if (letter == QLatin1Char(' ') && blank) {
      flush();
      xml.writeEmptyElement(QStringLiteral("text:s"));
    } else if (letter == QLatin1Char('\t')) {
      run += QLatin1Char(' ');
      blank = true;
    } else if (letter.unicode() >= 0x20 && letter.unicode() < 0xFFFE) {
      run += letter;
      blank = letter == QLatin1Char(' ');
    }
  }
  flush();
}

void writeCellStyles(QXmlStreamWriter& xml) {
  startStyle(xml, "ReportRow", "table-row");
  element(xml, "style:table-row-properties", of({{"fo:keep-together", "always"}}));
  xml.writeEndElement();
  const auto cell = [&xml](const char* name, const char* color, const char* align) {
    startStyle(xml, name, "table-cell");
    element(xml, "style:table-cell-properties",
            of({{"fo:padding", "0.8mm"},
                {"fo:border", "none"},
                {"fo:background-color", color},
                {"style:vertical-align", align}}));
    xml.writeEndElement();
  };
  cell("ReportHeading", "#d6dde5", "bottom");
  cell("ReportShaded", "#f3f5f7", "top");
  cell("ReportPlain", "transparent", "top");
}

QByteArray stylesOf(const ReportContent& content) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  xml.writeStartDocument();
  startRoot(xml, QStringLiteral("document-styles"));
  xml.writeStartElement(QStringLiteral("office:styles"));
  writeDefaults(xml, content.language);
  writeParagraphStyles(xml);
  xml.writeEndElement();
  xml.writeStartElement(QStringLiteral("office:automatic-styles"));
  writePageLayout(xml, ReportSheet(content.paper));
  xml.writeEndElement();
  xml.writeStartElement(QStringLiteral("office:master-styles"));
  xml.writeStartElement(QStringLiteral("style:master-page"));
  xml.writeAttribute(QStringLiteral("style:name"), QStringLiteral("Standard"));
  xml.writeAttribute(QStringLiteral("style:page-layout-name"), QStringLiteral("ReportPage"));
  xml.writeStartElement(QStringLiteral("style:footer"));
  writePageNumber(xml);
  xml.writeEndDocument();
  return bytes;
}

QByteArray metaOf(const ReportContent& content) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  xml.writeStartDocument();
  startRoot(xml, QStringLiteral("document-meta"));
  xml.writeStartElement(QStringLiteral("office:meta"));
  xml.writeTextElement(QStringLiteral("meta:generator"), QStringLiteral("Talvesk"));
  const auto text = [&xml](const char* name, const QString& value) {
    if (value.isEmpty()) return;
    xml.writeStartElement(QLatin1String(name));
    writeText(xml, value.simplified());
    xml.writeEndElement();
  };
  text("dc:title", content.title);
  text("meta:initial-creator", content.author);
  text("dc:creator", content.author);
  text("dc:language", content.language);
  const QString now = QDateTime::currentDateTime().toString(Qt::ISODate);
  text("meta:creation-date", now);
  text("dc:date", now);
  xml.writeEndDocument();
  return bytes;
}

}  // namespace talvesk::odt
