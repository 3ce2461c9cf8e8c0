#pragma once

#include "figures/report/ReportContent.h"

#include <QByteArray>
#include <QString>

class QXmlStreamWriter;

namespace talvesk::odt {

inline constexpr const char* kMimeType = "application/vnd.oasis.opendocument.text";

/// Opens the root element of a member: "document-content", "document-styles", "document-meta".
void startRoot(QXmlStreamWriter& xml, const QString& name);
/// A length as the format wants it.
QString mm(double value);
/// Text of a paragraph. Runs of blanks and line ends keep what they are; what XML cannot hold is
/// left out.
void writeText(QXmlStreamWriter& xml, const QString& text);

/// The styles of rows and cells, which belong beside those of tables and columns.
void writeCellStyles(QXmlStreamWriter& xml);

QByteArray stylesOf(const ReportContent& content);
QByteArray metaOf(const ReportContent& content);

}  // namespace talvesk::odt
