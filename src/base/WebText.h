#pragma once

#include <QByteArray>
#include <QChar>
#include <QString>

// Text in a web page.

namespace talvesk::web {

/// For elements and for attributes between double quotes: whatever it says is shown as it is. What
/// no page can hold, control characters and halves of pairs, is left out.
QString escaped(const QString& text);

/// JSON that can stand in a script element: it cannot end it, nor begin a comment or another one.
QByteArray scriptSafe(QByteArray json);

/// Puts the decimal sign of a language into the numbers of a text.
class LocalNumbers {
 public:
  explicit LocalNumbers(const QString& language);  ///< ISO code
  /// "1.5 ms" becomes "1,5 ms"; what has two points, such as a date or a version, stays.
  QString inText(QString text) const;

 private:
  QChar mPoint;
};

}  // namespace talvesk::web
