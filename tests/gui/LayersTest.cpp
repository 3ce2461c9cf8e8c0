#include "gui/WindowTest.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/RefractionLines.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

template <typename Widget>
Widget& part(QWidget& dialog, const char* name) {
  return *dialog.findChild<Widget*>(QLatin1String(name));
}

void close(QWidget& dialog, QDialogButtonBox::StandardButton button) {
  dialog.findChild<QDialogButtonBox*>()->button(button)->click();
}

/// From the layered profile of a line over two layers to the section and back.
class LayersCommand : public testing::WindowTest {
 protected:
  LayersCommand() {
    open();
    std::vector<refractionDataStructure::layerStruct> truth;
    writable() = testing::standardDippingLine(testing::twoDippingLayers(), truth);
    testing::putGrid(writable(), 30.0, 1.0);
    window->showFile(0);
    dialogs.expect([](QWidget& dialog) {
      part<QPushButton>(dialog, "proposeButton").click();
      part<QPushButton>(dialog, "buildButton").click();
      close(dialog, QDialogButtonBox::Ok);
    });
    action("actionRefraction").trigger();
    window->session().markSaved();
  }
  ~LayersCommand() override { window->session().markSaved(); }
  const Grid& grid() { return *window->document().model->grid; }
  double velocityAt(std::uint32_t row) {
    return grid().velocity(grid().cellIndex(row, grid().col() / 2));
  }
};

TEST_F(LayersCommand, startsFromTheProfileInOneStepThatCanBeUndone) {
  const std::vector<double> before = grid().slownesses();
  ASSERT_TRUE(action("actionStart_from_layers").isEnabled());
  dialogs.expect([](QWidget& dialog) { close(dialog, QDialogButtonBox::Cancel); });
  action("actionStart_from_layers").trigger();
  EXPECT_EQ(grid().slownesses(), before);
  dialogs.expect([](QWidget& dialog) {
    EXPECT_FALSE(part<QDoubleSpinBox>(dialog, "thicknessEdit").isEnabled());
    EXPECT_THAT(part<QLabel>(dialog, "notesLabel").text().toStdString(),
                HasSubstr("stay as they are there to the ends of the grid"));
    close(dialog, QDialogButtonBox::Ok);
  });
  action("actionStart_from_layers").trigger();
  EXPECT_NEAR(velocityAt(0), 500.0, 15.0);
  EXPECT_NEAR(velocityAt(6), 500.0, 15.0);
  EXPECT_NEAR(velocityAt(20), 1800.0, 60.0);
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Start from layers\"");
  action("actionUndo").trigger();
  EXPECT_EQ(grid().slownesses(), before);
}

TEST_F(LayersCommand, gradesTheJumpOverTheThicknessThatIsAskedFor) {
  dialogs.expect([](QWidget& dialog) {
    part<QRadioButton>(dialog, "gradedRadio").click();
    part<QDoubleSpinBox>(dialog, "thicknessEdit").setValue(6.0);
    close(dialog, QDialogButtonBox::Ok);
  });
  action("actionStart_from_layers").trigger();
  int between = 0;
  for (std::uint32_t row = 0; row < grid().righe(); ++row) {
    const double v = velocityAt(row);
    if (v > 550.0 && v < 1700.0) ++between;
  }
  EXPECT_GE(between, 4);
  EXPECT_LE(between, 6);
}

TEST_F(LayersCommand, asksForAGridWhereThereIsNone) {
  writable().model.edit().grid.reset();
  showWritten();
  ASSERT_TRUE(action("actionStart_from_layers").isEnabled());
  EXPECT_FALSE(action("actionCompare_layers").isEnabled());
  dialogs.expect([](QWidget& dialog) { close(dialog, QDialogButtonBox::Ok); });
  dialogs.expect([](QWidget& dialog) { close(dialog, QDialogButtonBox::Ok); });
  action("actionStart_from_layers").trigger();
  ASSERT_NE(window->document().model->grid, nullptr);
  EXPECT_NEAR(velocityAt(0), 500.0, 15.0);
}

TEST_F(LayersCommand, comparesTheProfileWithTheSection) {
  dialogs.expect([](QWidget& dialog) { close(dialog, QDialogButtonBox::Ok); });
  action("actionStart_from_layers").trigger();
  dialogs.expect([this](QWidget& dialog) {
    auto& table = part<QTableWidget>(dialog, "table");
    const auto figures = [&dialog] {
      return part<QLabel>(dialog, "figuresLabel").text().toStdString();
    };
    EXPECT_EQ(table.rowCount(), int(window->document().line->goephonesStringSet[0].size()));
    EXPECT_EQ(part<QSpinBox>(dialog, "velocityEdit").value(), 1150);
    EXPECT_NEAR(table.item(table.rowCount() / 2, 3)->text().toDouble(), 0.0, 1.01);
    EXPECT_THAT(figures(), HasSubstr("Section less layers: "));
    part<QComboBox>(dialog, "signCombo").setCurrentIndex(1);
    EXPECT_FALSE(part<QSpinBox>(dialog, "velocityEdit").isEnabled());
    EXPECT_NEAR(table.item(table.rowCount() / 2, 3)->text().toDouble(), 0.0, 1.01);
    part<QComboBox>(dialog, "signCombo").setCurrentIndex(0);
    part<QSpinBox>(dialog, "velocityEdit").setValue(90000);
    EXPECT_THAT(figures(), HasSubstr("No geophone has both depths."));
    EXPECT_EQ(table.item(0, 2)->text().toStdString(), "not known");
    close(dialog, QDialogButtonBox::Close);
  });
  action("actionCompare_layers").trigger();
  EXPECT_TRUE(dialogs.finished());
}

}  // namespace
}  // namespace talvesk
