#include "app/MessageText.h"

#include "base/Message.h"
#include "figures/FigureWords.h"

#include <QLocale>

namespace talvesk {

QString textOf(const Message& message) {
  return FigureWords::message(message, QLocale());
}

QStringList linesOf(const std::vector<Message>& messages) {
  QStringList lines;
  for (const Message& message : messages) lines << textOf(message);
  return lines;
}

QString dialogFilter(const std::vector<Message>& lines) {
  return linesOf(lines).join(QLatin1String(";;"));
}

}  // namespace talvesk
