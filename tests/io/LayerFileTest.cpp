#include "io/LayerFile.h"
#include "support/TestSurveys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

TEST(LayerFile, readsALinePerShot) {
  const TomoDocument line = testing::testLine(3, 5.0, {0, 10});
  LayerMarks marks;
  ASSERT_TRUE(parseLayerMarks("1;2;3;\r\n\n 0;0;1", "a.csv", line, marks).ok());
  EXPECT_EQ(marks, (LayerMarks{{1, 2, 3}, {0, 0, 1}}));
  ASSERT_TRUE(parseLayerMarks("\xEF\xBB\xBF"
                              "1;1;3\n2;0;1",
                              "a.csv", line, marks)
                  .ok());
  EXPECT_EQ(marks, (LayerMarks{{1, 1, 3}, {2, 0, 1}}));
}

TEST(LayerFile, refusesWhatIsNotTheSurveys) {
  const TomoDocument line = testing::testLine(3, 5.0, {0, 10});
  struct Case {
    std::string text;
    const char* message;
  };
  const Case cases[] = {{"", "0 shots, and there are 2"},
                        {"1;2;3", "1 shots, and there are 2"},
                        {"1;2;3\n1;2;3\n1;2;3", "line 3: there are only 2 shots"},
                        {"1;2;3\n1;2", "line 2: shot 2 has 3 traces"},
                        {"1;2;3;1\n1;2;3", "line 1: shot 1 has 3 traces"},
                        {"1;2;4\n1;2;3", "line 1: '4' is not a layer number"},
                        {"1;;3\n1;2;3", "line 1: '' is not a layer number"},
                        {"1;-1;3\n1;2;3", "'-1' is not a layer number"},
                        {std::string("1;\0;3", 5), "is not a layer number"}};
  for (const Case& c : cases) {
    LayerMarks marks = {{9}};
    const Status status = parseLayerMarks(c.text, "a.csv", line, marks);
    EXPECT_FALSE(status.ok()) << c.text;
    EXPECT_THAT(status.message(), HasSubstr(c.message));
    EXPECT_THAT(status.message(), HasSubstr("a.csv"));
    EXPECT_EQ(marks, LayerMarks{{9}});
  }
}

}  // namespace
}  // namespace talvesk
