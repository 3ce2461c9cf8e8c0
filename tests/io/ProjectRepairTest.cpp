#include "model/GroundModel.h"
#include "support/TestProjects.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A project with a grid and a layered profile, one value of which is changed from outside.
class Repairs : public ProjectTest {
 protected:
  Repairs() {
    TomoDocument& document = project.document;
    document.title = "Line 7";
    document.model.edit().layers.push_back({0.0, 500.0, 10.0, 1500.0});
    document.proposedCellSizes = std::vector<double>{1.25};
    putGrid(document, 6, 2);
    refractionDataStructure::computedData refractor;
    refractor.x = {0, 5};
    refractor.elevation = {100, 101};
    refractor.depth = {3.25, std::nan("")};  // not known at the second receiver
    refractor.velocity = {1750, 1800};
    project.interpretation.edit().refractData.cData.push_back(refractor);
    project.interpretation.edit().ttLayer.push_back(
        {0, {1, 1, 1, 1, 1, 1}, {0, 0.375, 0, 0, 0, 0}, true});
    EXPECT_EQ(save(), 0);
    entries = entriesOf(archive());
  }

  LoadedProject loaded(const char* member, const std::string& before, const std::string& after) {
    auto changed = entries;
    changed[member] = with(changed[member], before, after);
    LoadedProject back;
    EXPECT_EQ(load(pack("odd.tvsk", changed), back), 0) << after << ": " << reader.message();
    return back;
  }

  std::map<std::string, std::string> entries;
};

TEST_F(Repairs, areNoneOfASoundProject) {
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0);
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_EQ(back.interpretation->refractData.cData.size(), 1U);
  EXPECT_EQ(back.interpretation->ttLayer[0].trasla[1], 0.375);
}

struct Repair {
  const char* member;
  const char* before;
  const char* after;
  const char* told;
};

TEST_F(Repairs, areToldOneByOne) {
  const std::vector<Repair> table = {
      {"tomodoc.xml", ">Line 7<", ">Line\x1b[31m 7<", "it reads \"Line [31m 7\" now"},
      {"tomodoc.xml", "<RMSE_tomography>-1<", "<RMSE_tomography>inf<", "RMS misfit"},
      {"tomodoc.xml", "<max_velocity>3500<", "<max_velocity>1e308<", "limits of velocity"},
      {"tomodoc.xml", "<finalDepth>10<", "<finalDepth>1e308<", "starting model"},
      {"tomodoc.xml", ">1.25<", ">-1.25<", "cell size"},
      {"tomodoc.xml", "<mEastFstGeoph>0<", "<mEastFstGeoph>nan<", "geographic coordinates"},
      {"tomodoc.xml", "<quantity>0<", "<quantity>9<", "a quantity that does not exist"},
      {"tomodoc.xml", "<geophones>2<", "<geophones>-1<", "geophone markers"},
      {"tomodoc.xml", "<labelSize>12<", "<labelSize>99999<", "contours"},
      {"grid.xml", "<value3>", "<value3>0.0000", "velocities of 1 cell cannot be"},
      {"refraction.xml", ">5<", ">1e308<", "layered profile"},
      {"refraction.xml", ">101<", ">nan<", "layered profile"},
      {"refraction.xml", ">0.375<", ">nan<", "time shift"},
      {"palettes.xml", "<max_db>3500<", "<max_db>1e308<", "palette \"Silva viridis\": "},
      {"palettes.xml", ">Vulcanic magma<", ">Vulcanic\tmagma<", "the name of palette \"Vulcanic"}};
  for (const Repair& repair : table) {
    loaded(repair.member, repair.before, repair.after);
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr(repair.told))) << repair.after;
  }
}

TEST_F(Repairs, holdTheExaggerationWithinWhatCanBeDrawn) {
  const std::vector<std::pair<const char*, double>> table = {
      {"200", 100}, {"1e308", 100}, {"0.001", 0.01}, {"0", 1}, {"-3", 1}, {"nan", 1}};
  for (const auto& [before, after] : table) {
    const LoadedProject back = loaded("tomodoc.xml", "<verticalExaggeration>1<",
                                      "<verticalExaggeration>" + std::string(before) + "<");
    EXPECT_EQ(back.section.verticalExaggeration, after) << before;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("vertical exaggeration"))) << before;
  }
  loaded("tomodoc.xml", "<verticalExaggeration>1<", "<verticalExaggeration>100<");
  EXPECT_THAT(reader.repairs(), IsEmpty());
}

TEST_F(Repairs, leaveOutAPaletteThatCannotBeAndKeepTheChosenOne) {
  entries["palettes.xml"] = with(entries["palettes.xml"], "<curr_palette>0", "<curr_palette>2");
  const LoadedProject back = loaded("palettes.xml", "<max_db>3500<", "<max_db>1e308<");
  EXPECT_EQ(back.palettes->size(), 7U);
  EXPECT_EQ(back.palettes->current().name, "Black to White");
}

TEST_F(Repairs, ofATitleCutItBetweenTwoCharacters) {
  std::string endless;
  for (int i = 0; i < 1000; ++i) endless += "\u00e9";
  const LoadedProject back = loaded("tomodoc.xml", ">Line 7<", ">x" + endless + "<");
  EXPECT_EQ(back.document.title.size(), 999U);
  EXPECT_EQ(back.document.title, ("x" + endless).substr(0, 999));
}

}  // namespace
}  // namespace talvesk
