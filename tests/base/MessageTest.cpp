#include "base/LengthUnit.h"
#include "base/Message.h"
#include "base/Status.h"

#include <algorithm>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

/// A language that turns words around and has a decimal comma.
class Backwards : public Message::Language {
 public:
  std::string text(const char* source) const override {
    const std::string english = source;
    if (english == "%1 m are missing of %2") return "di %2 mancano %1 m";
    if (english == "line %1") return "riga %1";
    return english;
  }
  std::string number(const std::string& c) const override {
    std::string text = c;
    const std::size_t point = text.find('.');
    if (point != std::string::npos) text[point] = ',';
    return text;
  }
};

struct MessageCase {
  const char* name;
  Message message;
  const char* english;
  const char* translated;
};

TEST(Message, speaksEnglishByItselfAndAnyLanguageWhenItIsShown) {
  const MessageCase cases[] = {
      {"nothing", {}, "", ""},
      {"plain", Message("line 7"), "line 7", "line 7"},
      {"order", Message::tr("%1 m are missing of %2").arg(1.5).arg("a"), "1.5 m are missing of a",
       "di a mancano 1,5 m"},
      {"nested", joined("a.su", Message::tr("line %1").arg(3)), "a.su: line 3", "a.su: riga 3"},
      {"percent in an argument", Message::tr("%1 m are missing of %2").arg("%2").arg("50 %1"),
       "%2 m are missing of 50 %1", "di 50 %1 mancano %2 m"},
      {"no argument", Message::tr("100 % of %1"), "100 % of %1", "100 % of %1"},
      {"digits", Message::tr("%1").arg(Message::number(1.23456, 3)), "1.23", "1,23"},
  };
  for (const MessageCase& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(c.message.english(), c.english);
    EXPECT_EQ(c.message.in(Backwards()), c.translated);
  }
}

TEST(Message, showsLengthsInTheUnitAskedForAndLogsMetres) {
  const Message message = Message::tr("line %1").arg(
      Message::tr("%1, %2").arg(Message::length(1.5)).arg(Message::velocity(1500.0)));
  EXPECT_EQ(message.in(Backwards()), "riga 1,5 m, 1500 m/s");
  setLengthUnit(LengthUnit::kFoot);
  EXPECT_EQ(message.in(Backwards()), "riga 4,92126 ft, 4921,26 ft/s");
  EXPECT_EQ(message.english(), "line 1.5 m, 1500 m/s");
  EXPECT_DOUBLE_EQ(metresOf(shownLength(0.1)), 0.1);
  setLengthUnit(LengthUnit::kMetre);
  EXPECT_EQ(shownLength(0.1), 0.1);
  EXPECT_EQ(metresOf(0.1), 0.1);
}

TEST(Message, writesMeasuresWithoutExponent) {
  const struct {
    Message measure;
    const char* inMetres;
    const char* inFeet;
  } cases[] = {{Message::velocity(3050.0, 3), "3050 m/s", "10007 ft/s"},
               {Message::velocity(1234.4, 3), "1234 m/s", "4050 ft/s"},
               {Message::velocity(999.96, 4), "1000 m/s", "3281 ft/s"},
               {Message::velocity(1500.0, 1), "1500 m/s", "4921 ft/s"},
               {Message::length(-400000.0), "-400000 m", "-1312336 ft"},
               {Message::length(12.34, 2), "12 m", "40 ft"},
               {Message::length(1e300), "1e+300 m", "3.28084e+300 ft"},
               {Message::length(2.5e-7), "2.5e-07 m", "8.2021e-07 ft"}};
  for (const auto& each : cases) {
    EXPECT_EQ(each.measure.english(), each.inMetres);
    setLengthUnit(LengthUnit::kFoot);
    std::string shown = each.measure.in(Backwards());
    setLengthUnit(LengthUnit::kMetre);
    std::replace(shown.begin(), shown.end(), ',', '.');
    EXPECT_EQ(shown, each.inFeet);
  }
}

TEST(Message, isAStringWhereOneIsWanted) {
  const Status status = Status::failure(std::string("no room left"));
  const std::string& english = status.text();
  EXPECT_EQ(english, status.message());
  EXPECT_THAT(status.text(), HasSubstr("room"));
  EXPECT_EQ(status.text(), "no room left");
}

}  // namespace
}  // namespace talvesk
