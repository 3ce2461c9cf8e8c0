#include "app/dialogs/KnownGroundDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "base/AtomicFile.h"
#include "gui/WindowTest.h"
#include "io/KnownGroundFile.h"
#include "io/TravelTimeFile.h"
#include "model/KnownGround.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "view/SectionScene.h"
#include "widgets/SpreadsheetView.h"
#include "widgets/section/SectionView.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

class KnownGroundCommand : public WindowTest {
 protected:
  void openLine() {
    TomoDocument line = testLine(24, 2.0, {-2.0, 9.0, 23.0, 37.0, 48.0}, 1.0);
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    putGrid(writable(), 12.0, 1.0);
    showWritten();
  }
  using Act = std::function<void(KnownGroundDialog&)>;
  void withDialog(Act act) {
    dialogs.expect([act = std::move(act)](QWidget& widget) {
      auto* dialog = qobject_cast<KnownGroundDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      act(*dialog);
    });
    action("actionKnown_ground").trigger();
  }
  template <class Widget>
  static Widget& part(const QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  static void press(const QWidget& dialog, const char* name) {
    part<QPushButton>(dialog, name).click();
  }
  static void pressOk(const QWidget& dialog) {
    part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
  }
  /// Types as a user does: into the cell that has the cursor, and on with Enter.
  static void type(SpreadsheetView& table, int row, int column, const char* text) {
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClicks(&table, QLatin1String(text).left(1));
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(editor, &table);
    QTest::keyClicks(editor, QString::fromLatin1(text).mid(1));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
  }
  static void paste(SpreadsheetView& table, const QString& block) {
    QApplication::clipboard()->setText(block);
    table.setFocus();
    table.setCurrentIndex(table.model()->index(0, 0));
    QTest::keySequence(&table, QKeySequence::Paste);
  }
  static std::string message(const QWidget& dialog) {
    return part<QLabel>(dialog, "messageLabel").text().toStdString();
  }
  const KnownGround& known() { return *window->document().known; }
  const KnownMarks& drawn() { return child<SectionView>("vtk_widget").scene()->known; }
};

TEST_F(KnownGroundCommand, takesABoreholeThatIsTypedIn) {
  openLine();
  EXPECT_FALSE(action("actionShow_known").isEnabled());
  withDialog([](KnownGroundDialog& dialog) {
    dialog.activateWindow();
    auto& table = part<SpreadsheetView>(dialog, "boreholesTable");
    const char* const first[] = {"B1", "20", "0", "3", "450"};
    for (int column = 0; column < 5; ++column) type(table, 0, column, first[column]);
    EXPECT_THAT(message(dialog), HasSubstr("Boreholes: 1"));
    // The next layer goes on where this one ends.
    type(table, 1, 3, "8");
    EXPECT_THAT(message(dialog), HasSubstr("Boreholes, row 2: there is no velocity"));
    pressOk(dialog);
    ASSERT_TRUE(dialog.isVisible()) << "what cannot be is not taken";
    type(table, 1, 4, "180");
    press(dialog, "undoButton");
    EXPECT_THAT(message(dialog), HasSubstr("there is no velocity"));
    press(dialog, "redoButton");
    type(table, 1, 4, "1800");
    pressOk(dialog);
  });
  ASSERT_EQ(known().boreholes.size(), 1U);
  const KnownBorehole expected{"B1", 20, 0, {{0, 3, 450, 0}, {3, 8, 1800, 0}}};
  EXPECT_EQ(known().boreholes[0], expected);
  ASSERT_EQ(drawn().boreholes.size(), 1U);
  EXPECT_TRUE(window->isWindowModified());

  EXPECT_TRUE(action("actionShow_known").isChecked());
  action("actionShow_known").trigger();
  EXPECT_TRUE(drawn().empty());
  action("actionUndo").trigger();
  EXPECT_TRUE(known().empty());
}

TEST_F(KnownGroundCommand, saysWhatIsWrongWithABlockThatIsPasted) {
  openLine();
  withDialog([](KnownGroundDialog& dialog) {
    part<QTabWidget>(dialog, "tabs").setCurrentIndex(2);
    auto& table = part<SpreadsheetView>(dialog, "bodiesTable");
    paste(table, "wall\t10\t0\t3200\nwall\t11\t0\nwall\televen\t2\n");
    EXPECT_THAT(message(dialog), HasSubstr("Row 3: \"eleven\" is not a number"));
    EXPECT_EQ(table.model()->rowCount(), 1) << "all or nothing";
    paste(table, "wall\t10\t0\t3200\nwall\t11\t0\n");
    EXPECT_THAT(message(dialog), HasSubstr("three corners"));
    paste(table, "wall\t10\t0\t3200\nwall\t11\t0\nwall\t11\t2\nwall\t10\t2\n");
    EXPECT_THAT(message(dialog), HasSubstr("bodies: 1"));
    table.selectionModel()->select(table.model()->index(3, 0), QItemSelectionModel::ClearAndSelect);
    press(dialog, "removeButton");
    EXPECT_EQ(table.model()->rowCount(), 4);
    pressOk(dialog);
  });
  ASSERT_EQ(known().bodies.size(), 1U);
  EXPECT_EQ(known().bodies[0].outline.size(), 3U);
}

TEST_F(KnownGroundCommand, importsAndExportsTables) {
  openLine();
  KnownGround wanted;
  wanted.depths = {{"P1", 8, 4.1, 0.4, 1, 1200}, {"P2", 40, 5.6, 0, 1, 1200}};
  ASSERT_TRUE(writeKnownGround(home.file("known.csv"), wanted).ok());
  ASSERT_TRUE(writeFileAtomically(home.file("bad.csv"), "kind,x,depth\ndepth,1,-2\n").ok());
  const auto file = [this](const char* name) {
    return QStringList{QString::fromStdString(home.file(name))};
  };
  withDialog([&](KnownGroundDialog& dialog) {
    dialogs.expectFiles(QStringLiteral("Import known ground"), file("bad.csv"));
    dialogs.expect([](QWidget& box) {
      EXPECT_THAT(dynamic_cast<QMessageBox&>(box).text().toStdString() +
                      dynamic_cast<QMessageBox&>(box).informativeText().toStdString() +
                      dynamic_cast<QMessageBox&>(box).detailedText().toStdString(),
                  HasSubstr("line 2"));
      box.close();
    });
    press(dialog, "importButton");
    EXPECT_THAT(message(dialog), HasSubstr("known depths: 0"));
    dialogs.expectFiles(QStringLiteral("Import known ground"), file("known.csv"));
    press(dialog, "importButton");
    EXPECT_THAT(message(dialog), HasSubstr("known depths: 2"));
    dialogs.expectFiles(QStringLiteral("Export known ground"), file("again.csv"));
    press(dialog, "exportButton");
    pressOk(dialog);
  });
  EXPECT_EQ(known(), wanted);
  KnownGround again;
  ASSERT_TRUE(readKnownGround(home.file("again.csv"), again).ok());
  EXPECT_EQ(again, wanted);
}

TEST_F(KnownGroundCommand, holdsAFitToIt) {
  openLine();
  writable().known.edit().boreholes = {{"B1", 20, 0, {{0, 3, 450, 20}, {3, 8, 1800, 90}}}};
  showWritten();
  dialogs.expect([](QWidget& widget) {
    auto& dialog = dynamic_cast<runTomography_Dialog&>(widget);
    part<QComboBox>(dialog, "methodBox").setCurrentIndex(1);
    auto& box = part<QCheckBox>(dialog, "knownBox");
    EXPECT_TRUE(box.isEnabled());
    EXPECT_TRUE(box.isChecked());
    pressOk(dialog);
  });
  std::string results;
  dialogs.expect([&results](QWidget& widget) {
    auto& box = dynamic_cast<QMessageBox&>(widget);
    results = box.text().toStdString();
    box.button(QMessageBox::Ok)->click();
  });
  action("actionRun_tomography_inversion").trigger();
  EXPECT_THAT(results, HasSubstr("Known ground: 2 conditions"));
  const auto& run = window->document().result->lastInversion;
  ASSERT_TRUE(run && run->fit);
  EXPECT_EQ(run->fit->known, fingerprintOf(known()));
  withDialog([](KnownGroundDialog& dialog) {
    EXPECT_THAT(part<QLabel>(dialog, "remarkLabel").text().toStdString(),
                HasSubstr("is held to this"));
    dialog.reject();
  });
}

}  // namespace
}  // namespace talvesk::testing
