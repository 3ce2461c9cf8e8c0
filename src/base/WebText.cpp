#include "base/WebText.h"

#include <QLocale>
#include <QRegularExpression>

namespace talvesk::web {

QString escaped(const QString& text) {
  QString clean;
  for (int i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    if (pair) {
      clean += c;
      clean += text[++i];
    } else if (!c.isSurrogate() && (c >= ' ' || c == '\t' || c == '\n') && c != QChar(0x7f)) {
      clean += c;
    }
  }
  return clean.toHtmlEscaped();
}

QByteArray scriptSafe(QByteArray json) {
  json.replace('<', "\\u003c");
  json.replace('>', "\\u003e");
  json.replace("\xe2\x80\xa8", "\\u2028");
  json.replace("\xe2\x80\xa9", "\\u2029");
  return json;
}

LocalNumbers::LocalNumbers(const QString& language) : mPoint(QLocale(language).decimalPoint()) {}

QString LocalNumbers::inText(QString text) const {
  static const QRegularExpression number(
      QStringLiteral("(?<![\\d.,])(\\d+)\\.(\\d+)(?![\\d.]*\\d)"));
  if (mPoint == QLatin1Char('.')) return text;
  return text.replace(number, QStringLiteral("\\1") + mPoint + QStringLiteral("\\2"));
}

}  // namespace talvesk::web
