#include "app/MessageText.h"

#include "base/Message.h"

#include <QCoreApplication>
#include <QLocale>

namespace talvesk {
namespace {

/// The context that the texts of Message::tr() have in the translations.
constexpr char kContext[] = "talvesk::Message";

class WindowLanguage : public Message::Language {
 public:
  std::string text(const char* source) const override {
    return QCoreApplication::translate(kContext, source).toStdString();
  }
  std::string number(const std::string& c) const override {
    return QString::fromStdString(c)
        .replace(QLatin1Char('.'), QLocale().decimalPoint())
        .toStdString();
  }
};

}  // namespace

QString textOf(const Message& message) {
  return QString::fromStdString(message.in(WindowLanguage()));
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
