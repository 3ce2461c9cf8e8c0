#include "base/Log.h"
#include "support/TestProjects.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(ProjectTest, tellsTheLogHowItIsSavedAndLoaded) {
  Log log(folder.file("run.log"));
  const RecordedConsole recorded(log);
  const auto told = [&log](const std::string& text) {
    EXPECT_THAT(TestFolder::get(log.path()), HasSubstr(text + "\n"));
  };
  ASSERT_EQ(save(), 0);
  for (const char* step :
       {"saveTomoDocument_XML", "saveTomoDocumentGrid_XML", "saveTomoDocumentTraces_XML",
        "savePalettes_XML", "saveRefraction_XML", "compress_project"}) {
    told(std::string("] ProjectWriter::") + step);
  }
  auto entries = entriesOf(archive());
  entries["tomodoc.xml"] = without(entries["tomodoc.xml"], "title");
  entries["grid.xml"] = without(entries["grid.xml"], "righe");
  LoadedProject back;
  EXPECT_EQ(load(pack("old.tvsk", entries), back), 1);
  EXPECT_THAT(TestFolder::get(log.path()), HasSubstr("] extract [ refraction.xml ] in [ "));
  told("] Variable [info_density] unknown. Set to  default.");
  told("] ERROR : [ERROR] Grid cannot be read from disk.");
  EXPECT_EQ(load(folder.put("none.tvsk", "no archive"), back), 1);
  told("] ERROR : [ERROR] While extracting " + folder.file("none.tvsk"));
  EXPECT_THAT(console.error(), Not(HasSubstr("] ERROR"))) << "as it is on the console";
}

}  // namespace
}  // namespace talvesk
