#include "io/XmlRecords.inl"
#include "support/CommaLocale.h"

#include <limits>
#include <sstream>

#include <cereal/archives/xml.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

struct Inner {
  double a = 0.1;
  std::vector<std::vector<double>> lists = {{1e-300, -2.5, 1.0 / 3.0}, {}};
};
template <class V>
void describe(V& fields, Inner& inner) {
  fields("a", inner.a);
  fields("lists", inner.lists);
}
template <class A>
void serialize(A& archive, Inner& inner) {
  archive(cereal::make_nvp("a", inner.a), cereal::make_nvp("lists", inner.lists));
}

struct Outer {
  std::string text = " <&> \"'\n";
  bool yes = true;
  std::int32_t number = -7;
  std::uint32_t large = 4294967295U;
  std::vector<bool> flags = {true, false};
  std::vector<Inner> inner = {{}, {std::numeric_limits<double>::denorm_min(), {}}};
};
template <class V>
void describe(V& fields, Outer& outer) {
  fields("text", outer.text);
  fields("yes", outer.yes);
  fields("number", outer.number);
  fields("large", outer.large);
  fields("flags", outer.flags);
  fields.optional("inner", outer.inner);
}

std::string written(Outer& outer) {
  std::ostringstream stream;
  XmlWriter writer(stream);
  xml::Output output(writer);
  describe(output, outer);
  EXPECT_TRUE(writer.finish());
  return stream.str();
}

std::vector<std::string> read(const std::string& text, Outer& outer) {
  std::istringstream stream(text);
  XmlReader reader(stream, "cereal");
  return xml::readRecord(reader, outer);
}

TEST(Xml, isWrittenAsTheArchiveOfTheLibraryWritesIt) {
  Outer outer;
  std::ostringstream stream;
  {
    cereal::XMLOutputArchive archive(stream);
    archive(cereal::make_nvp("text", outer.text), cereal::make_nvp("yes", outer.yes),
            cereal::make_nvp("number", outer.number), cereal::make_nvp("large", outer.large),
            cereal::make_nvp("flags", outer.flags), cereal::make_nvp("inner", outer.inner));
  }
  EXPECT_EQ(written(outer), stream.str());
}

TEST(Xml, comesBackAsItWasInEveryLocale) {
  const testing::CommaStreams commas;
  Outer outer;
  outer.inner[0].a = std::numeric_limits<double>::max();
  Outer back;
  back.inner.clear();
  EXPECT_TRUE(read(written(outer), back).empty());
  EXPECT_EQ(back.text, outer.text);
  EXPECT_EQ(back.flags, outer.flags);
  ASSERT_EQ(back.inner.size(), 2U);
  EXPECT_EQ(back.inner[0].a, outer.inner[0].a);
  EXPECT_EQ(back.inner[0].lists, outer.inner[0].lists);
  EXPECT_EQ(back.inner[1].a, std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(written(back), written(outer));
}

TEST(Xml, findsElementsInAnyOrderAndPassesOverUnknownOnes) {
  Outer outer;
  const auto missing = read(
      "<?xml version='1.0'?><!-- by hand --><cereal>\n<number> 5 </number><new><deep a=\"1\"/>x"
      "</new><flags/><yes>0</yes><text>a&#x20AC;&amp;</text><large>1</large></cereal>\n",
      outer);
  EXPECT_EQ(outer.number, 5);
  EXPECT_FALSE(outer.yes);
  EXPECT_EQ(outer.text, "a\xE2\x82\xAC&");
  EXPECT_TRUE(outer.flags.empty());
  EXPECT_EQ(missing, std::vector<std::string>{"inner"});
}

class BrokenXml : public ::testing::TestWithParam<std::string> {};

TEST_P(BrokenXml, isRefused) {
  Outer outer;
  EXPECT_THROW(read(GetParam(), outer), XmlError);
}

std::string record(const std::string& number) {
  return "<cereal><text/><yes>1</yes><number>" + number +
         "</number><large>1</large><flags/></cereal>";
}

INSTANTIATE_TEST_SUITE_P(
    Documents, BrokenXml,
    ::testing::Values("", "<", "cereal", "<cereal>", "<cereal", "<cereal/>", "<other></other>",
                      "<cereal></other>", record("").insert(8, "<!DOCTYPE x>"),
                      record("<![CDATA[5]]>"), record("5 apples"), record("1e3"), record("-"),
                      record("2147483648"), record("&nbsp;"), record("&#0;"), record("&#xD800;"),
                      record("5</number><number>5"), record("<a/>"), record("5") + "<more/>",
                      record("5").insert(8, "text"), record("5").substr(0, 60),
                      record(std::string(2 * XmlReader::kLongestText, '5')),
                      record("5").insert(8, "<" + std::string(300, 'n') + "/>"),
                      record("5").insert(8, "<a b=\"c\">"), record("5").insert(8, "<a b=c/>"),
                      record("5").insert(8, std::string(10, '\0'))));

TEST(Xml, refusesNestingWithoutEnd) {
  std::string deep = "<cereal>";
  for (int i = 0; i < 1000000; ++i) deep += "<a>";
  Outer outer;
  EXPECT_THROW(read(deep, outer), XmlError);
}

TEST(Xml, acceptsTheRecordThatTheBrokenOnesAreMadeOf) {
  Outer outer;
  EXPECT_NO_THROW(read(record("5"), outer));
}

TEST(Xml, isRefusedWhenItWouldTakeManyTimesItsSizeInMemory) {
  std::string text = "<cereal><a>1</a><lists>";
  text.reserve(5 * XmlReader::kMostSequences);
  for (std::size_t i = 0; i < XmlReader::kMostSequences; ++i) text += "<b/>";
  std::istringstream stream(text + "</lists></cereal>");
  XmlReader reader(stream, "cereal");
  Inner inner;
  EXPECT_THROW(xml::readRecord(reader, inner), XmlError);
}

}  // namespace
}  // namespace talvesk
