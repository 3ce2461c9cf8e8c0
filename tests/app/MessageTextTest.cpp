#include "app/MessageText.h"
#include "base/Message.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// Knows one text of the rooms below, by the context that the tool for translations gives it.
class German : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char*, int) const override {
    const bool known = QLatin1String(context) == QLatin1String("talvesk::Message") &&
                       QLatin1String(source) == QLatin1String("cell %1 is %2 m wide");
    return known ? QStringLiteral("%2 m misst Zelle %1") : QString();
  }
};

TEST(MessageText, isInTheLanguageOfTheWindowAndEnglishWhereThatLacksIt) {
  German german;
  QCoreApplication::installTranslator(&german);
  QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
  const Message known = Message::tr("cell %1 is %2 m wide").arg(7).arg(2.5);
  EXPECT_EQ(textOf(known), "2,5 m misst Zelle 7");
  EXPECT_EQ(textOf(joined("line.tvsk", known)), "line.tvsk: 2,5 m misst Zelle 7");
  EXPECT_EQ(textOf(Message::tr("unknown %1").arg(1.5)), "unknown 1,5");
  EXPECT_EQ(linesOf({known, std::string("plain 1.5")}),
            QStringList({"2,5 m misst Zelle 7", "plain 1.5"}));
  EXPECT_EQ(known.english(), "cell 7 is 2.5 m wide");
  QLocale::setDefault(QLocale::c());
  QCoreApplication::removeTranslator(&german);
  EXPECT_EQ(textOf(known), "cell 7 is 2.5 m wide");
}

}  // namespace
}  // namespace talvesk
