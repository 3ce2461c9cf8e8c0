#include "app/FileFolders.h"
#include "app/dialogs/PaletteDialog.h"
#include "gui/WindowTest.h"
#include "io/PaletteFile.h"
#include "support/SectionDocument.h"
#include "widgets/ColorPaletteWidget.h"
#include "widgets/section/SectionView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

/// The dialog on a list of its own, as the window opens it.
class Palettes : public WindowTest {
 protected:
  Palettes() {
    dialog.show();
    QObject::connect(&dialog, &PaletteDialog::modified, [this] { ++modified; });
    QObject::connect(&dialog, &PaletteDialog::changed_max_value,
                     [this](int value) { maximum = value; });
  }

  template <typename Child>
  Child& part(const char* name) {
    return *dialog.findChild<Child*>(QLatin1String(name));
  }
  void click(const char* button) { part<QAbstractButton>(button).click(); }
  QString chosen() { return part<QComboBox>("paletteCBox").currentText(); }
  QString file(const std::string& name, const std::string& palette) const {
    ColorPalette saved = ColorPaletteList().current();
    saved.name = palette;
    return QString::fromStdString(home.put(name, formatPalette(saved)));
  }

  ColorPaletteList list;
  FileFolders folders{History(home.file("history.txt"))};
  PaletteDialog dialog{list, false, ValueRange{312.0, 2873.0}, folders};
  int modified = 0;
  int maximum = 0;
};

TEST_F(Palettes, areChosenByNameAndTellTheirRange) {
  EXPECT_EQ(dialog.windowTitle().toStdString(), "Palette Settings");
  EXPECT_EQ(part<QComboBox>("paletteCBox").count(), 8);
  part<QComboBox>("paletteCBox").setCurrentIndex(3);
  EXPECT_EQ(list.current().name, "White to Black");
  EXPECT_EQ(modified, 1);
  EXPECT_EQ(part<QLabel>("infoLabel").text().toStdString(), "MIN: 250, MAX: 3500");
  part<QSpinBox>("maximum").setValue(4000);
  EXPECT_EQ(part<QLabel>("infoLabel").text().toStdString(), "MIN: 250, MAX: 4000");
  EXPECT_EQ(maximum, 4000);
  EXPECT_EQ(list.current().max_db, 4000.0);
  part<QSpinBox>("colorsSpinBox").setValue(10);
  EXPECT_EQ(list.current().n_colors, 10);
}

TEST_F(Palettes, takeTheirRangeFromTheDataAndKeepItLocked) {
  click("dataRangeButton");
  EXPECT_EQ(part<QLabel>("infoLabel").text().toStdString(), "MIN: 300, MAX: 2900");
  part<QComboBox>("paletteCBox").setCurrentIndex(1);
  EXPECT_EQ(list.current().max_db, 3500.0);
  part<QComboBox>("paletteCBox").setCurrentIndex(0);
  click("lockRangeCB");
  part<QComboBox>("paletteCBox").setCurrentIndex(2);
  EXPECT_EQ(list.current().min_db, 300.0);
  EXPECT_EQ(list.current().max_db, 2900.0);
  EXPECT_TRUE(dialog.lockRange());
}

TEST_F(Palettes, thatAreBuiltInAreEditedAsACopyOnly) {
  EXPECT_FALSE(part<QPushButton>("renameButton").isEnabled());
  EXPECT_FALSE(part<QPushButton>("deleteButton").isEnabled());
  click("editButton");
  EXPECT_EQ(chosen().toStdString(), "Silva viridis - copy");
  auto& editor = part<ColorPaletteWidget>("paletteEditor");
  editor.selectHandle(1);
  editor.deleteHandle();
  EXPECT_EQ(list.current().color_gradient.points().size(), 4U);
  EXPECT_EQ(list[0].color_gradient.points().size(), 5U);
  click("editButton");
  EXPECT_EQ(list.size(), 9U) << "one's own palette is edited itself";
}

TEST_F(Palettes, areCreatedRenamedAndDeleted) {
  click("createButton");
  click("createButton");
  EXPECT_EQ(chosen().toStdString(), "New palette (2)");
  EXPECT_EQ(list.current().color_gradient.points().size(), 2U);
  dialogs.expect([](QWidget& widget) {
    auto& input = dynamic_cast<QInputDialog&>(widget);
    EXPECT_EQ(input.windowTitle().toStdString(), "Rename Palette");
    EXPECT_EQ(input.labelText().toStdString(), "Save new palette as : ");
    input.setTextValue("Clay");
    input.accept();
  });
  click("renameButton");
  EXPECT_EQ(chosen().toStdString(), "Clay");
  dialogs.expect([](QWidget& widget) {
    auto& input = dynamic_cast<QInputDialog&>(widget);
    input.setTextValue("Early winter");
    input.accept();
  });
  dialogs.expectBox("Rename Palette", "There is a palette of this name already.", "Early winter",
                    QMessageBox::Ok);
  click("renameButton");
  EXPECT_EQ(chosen().toStdString(), "Clay");
  click("deleteButton");
  EXPECT_EQ(chosen().toStdString(), "New palette");
  EXPECT_EQ(list.size(), 9U);
}

TEST_F(Palettes, areLoadedFromAllFilesThatCanBeRead) {
  const QString bad = QString::fromStdString(home.put("bad.xml", "<cereal><name>no"));
  dialogs.expectFiles("Open Palette", {file("a.xml", "Sand"), bad, file("b.xml", "Early winter")});
  dialogs.expectBox("Open Palette", "Error while loading palette.", "bad.xml", QMessageBox::Ok);
  click("loadButton");
  ASSERT_EQ(list.size(), 10U);
  EXPECT_EQ(list[8].name, "Sand");
  EXPECT_EQ(list[9].name, "Early winter (2)");
  EXPECT_TRUE(list[9].is_editable);
  EXPECT_EQ(list.currentIndex(), 9U);
  EXPECT_THAT(console.error(), HasSubstr("[ERROR] Error in loading palette" + bad.toStdString() +
                                         ".\n[ERROR] TomoDocument cannot be read from disk.\n"));
}

TEST_F(Palettes, areSavedUnderANameThatEndsInXml) {
  const struct {
    const char *typed, *file;
  } facts[] = {{"one", "one.xml"}, {"two.XML", "two.XML"}, {"three.txt", "three.txt.xml"}};
  for (const auto& fact : facts) {
    dialogs.expectFiles("Save Palette", {QString::fromStdString(home.file(fact.typed))});
    click("saveButton");
    ColorPalette read;
    EXPECT_TRUE(loadPalette(home.file(fact.file), read).ok()) << fact.file;
    EXPECT_EQ(read.name, "Silva viridis");
  }
  home.put("kept.xml", "mine");
  dialogs.expectFiles("Save Palette", {QString::fromStdString(home.file("kept"))});
  dialogs.expectBox("Save Palette", "Replace the file?", "kept.xml", QMessageBox::No);
  click("saveButton");
  EXPECT_EQ(testing::TestFolder::get(home.file("kept.xml")), "mine");
}

TEST_F(Palettes, areAsBeforeWhenTheDialogIsCancelled) {
  click("createButton");
  click("editButton");
  part<QSpinBox>("minimum").setValue(700);
  part<QComboBox>("paletteCBox").setCurrentIndex(4);
  part<QSpinBox>("minimum").setValue(800);
  modified = 0;
  part<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Cancel)->click();
  EXPECT_EQ(list.size(), 8U);
  EXPECT_EQ(list.currentIndex(), 0U);
  EXPECT_EQ(list[4].min_db, 250.0);
  EXPECT_EQ(modified, 1) << "the section shows the old palette again";
}

TEST_F(Palettes, areKeptByTheWindowAfterOk) {
  dialog.close();
  open();
  const auto inDialog = [this](const std::function<void(QWidget&)>& act) {
    dialogs.expect([act](QWidget& widget) {
      act(widget);
      widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    action("actionPalette").trigger();
  };
  inDialog([](QWidget& widget) {
    EXPECT_FALSE(widget.findChild<QPushButton*>("dataRangeButton")->isEnabled()) << "no data";
    widget.findChild<QComboBox*>("paletteCBox")->setCurrentIndex(5);
    widget.findChild<QSpinBox*>("minimum")->setValue(900);
    widget.findChild<QCheckBox*>("lockRangeCB")->click();
  });
  inDialog([](QWidget& widget) {
    EXPECT_EQ(widget.findChild<QComboBox*>("paletteCBox")->currentText(), "Tropical parula");
    EXPECT_EQ(widget.findChild<QSpinBox*>("minimum")->value(), 900);
    EXPECT_TRUE(widget.findChild<QCheckBox*>("lockRangeCB")->isChecked());
  });
}

TEST_F(Palettes, areFollowedByTheSectionWhileTheDialogIsOpen) {
  dialog.close();
  open();
  writable() = testing::sectionDocument(
      6, 20, 0.0, [](std::uint32_t row, std::uint32_t) { return 600.0 + 200.0 * row; });
  const auto shown = [this] { return child<SectionView>("vtk_widget").scene()->range; };
  dialogs.expect([&](QWidget& widget) {
    const auto button = [&widget](QDialogButtonBox::StandardButton which) {
      return widget.findChild<QDialogButtonBox*>()->button(which);
    };
    widget.findChild<QSpinBox*>("maximum")->setValue(4000);
    EXPECT_EQ(shown().max, 4000.0);
    widget.findChild<QPushButton*>("dataRangeButton")->click();
    EXPECT_EQ(shown().min, 600.0);
    EXPECT_EQ(shown().max, 1600.0);
    button(QDialogButtonBox::Cancel)->click();
  });
  action("actionPalette").trigger();
  EXPECT_EQ(shown().min, 250.0);
  EXPECT_EQ(shown().max, 3500.0);
  EXPECT_FALSE(window->session().modified());
}

}  // namespace
}  // namespace talvesk
