#include "io/GeometryFile.h"
#include "io/PaletteFile.h"
#include "io/project/ProjectMembers.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::Contains;
using testing::TestFolder;

/// Remembers the texts that it was asked for.
class Listener : public Message::Language {
 public:
  std::string text(const char* source) const override {
    mAsked.emplace_back(source);
    return source;
  }
  std::string number(const std::string& c) const override { return c; }
  const std::vector<std::string>& asked() const { return mAsked; }

 private:
  mutable std::vector<std::string> mAsked;
};

Message palettesIn(const std::string& list) {
  const TestFolder folder;
  ColorPaletteList palettes;
  std::vector<Message> repairs;
  Message why;
  const std::string bytes =
      "<cereal><n_palettes>0</n_palettes><curr_palette>0</curr_palette>" + list + "</cereal>";
  EXPECT_EQ(readPalettes(folder.put("p.xml", bytes), palettes, repairs, why), 1);
  return why;
}

Message gridIn(const std::string& elements) {
  const TestFolder folder;
  GridMember grid;
  Message why;
  EXPECT_EQ(readGrid(folder.put("g.xml", "<cereal>" + elements + "</cereal>"), grid, why), 1);
  return why;
}

Message paletteIn(const std::string& elements) {
  ColorPalette palette;
  return parsePalette("<cereal><name>a</name>" + elements + "</cereal>", "a.xml", palette).text();
}

Message positionsIn(const std::string& text) {
  PositionTable table;
  return parseRecords(text, "a.csv", ";", false, table).text();
}

TEST(TranslatedReasons, areOfferedForTranslationDownToTheValueThatIsWrong) {
  const struct {
    const char* source;
    Message reason;
  } facts[] = {
      {"a number is out of range or not finite", positionsIn("1e999;2\n")},
      {"the value of %1 is not a number it can hold", paletteIn("<n_colors>two</n_colors>")},
      {"there are no palettes in it", palettesIn("<palettes></palettes>")},
      {"\"%1\" is missing", gridIn("")},
      {"\"%1\" is there twice", gridIn("<col>1</col><col>1</col>")},
      {"\"%1\" is not a number that it can hold", gridIn("<col>one</col>")},
      {"\"%1\" is neither true nor false",
       gridIn("<to_be_draw><value0>perhaps</value0></to_be_draw>")},
  };
  for (const auto& fact : facts) {
    const Listener language;
    EXPECT_EQ(fact.reason.in(language), fact.reason.english());
    EXPECT_THAT(language.asked(), Contains(fact.source)) << fact.reason;
  }
}

}  // namespace
}  // namespace talvesk
