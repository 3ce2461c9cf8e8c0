#pragma once

#include "app/dialogs/DialogSetGeometry.h"
#include "app/dialogs/GeometryTables.h"
#include "app/dialogs/SelectCSVDelimiterDialog.h"
#include "gui/WindowTest.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "widgets/SpreadsheetView.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <functional>

namespace talvesk::testing {

/// The geometry dialog as a user has it before him.
struct GeometryDriver {
  explicit GeometryDriver(QWidget& widget) : dialog(widget) {}

  template <typename Widget>
  Widget& child(const char* name) {
    auto* found = dialog.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  void click(const char* button) { child<QPushButton>(button).click(); }
  SpreadsheetView& geophones() { return child<SpreadsheetView>("geophonesTable"); }
  SpreadsheetView& shots() {
    child<QTabWidget>("pages").setCurrentIndex(1);
    return child<SpreadsheetView>("shotsTable");
  }
  void type(SpreadsheetView& table, int row, int column, const QString& text) {
    table.setCurrentIndex(table.model()->index(row, column));
    table.setFocus();
    QTest::keyClicks(&table, text.left(1));
    // Behind another dialog the window manager may have left the focus anywhere.
    auto* editor = table.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, text.mid(1));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void paste(SpreadsheetView& table, int row, int column, const QString& text) {
    QApplication::clipboard()->setText(text);
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
  }
  static QString cell(SpreadsheetView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
  }
  QString notice() { return child<QLabel>("noticeLabel").text(); }
  QStringList mistakes() {
    QStringList texts;
    auto& list = child<QListWidget>("mistakesList");
    for (int i = 0; i < list.count(); ++i) texts << list.item(i)->text();
    return texts;
  }
  void ok() { child<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Ok)->click(); }
  void cancel() { child<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Cancel)->click(); }

  QWidget& dialog;
};

class Geometry : public WindowTest {
 protected:
  Geometry() { open(); }

  /// What to do with the geometry dialog once it is there; it must end with ok() or cancel().
  /// \param leaves it ends with cancel() after an edit
  void edit(std::function<void(GeometryDriver&)> work, bool leaves = false) {
    dialogs.expect([work = std::move(work)](QWidget& widget) {
      if (qobject_cast<DialogSetGeometry*>(&widget) == nullptr) {
        ADD_FAILURE() << widget.windowTitle().toStdString();
        widget.close();
        return;
      }
      GeometryDriver driver(widget);
      work(driver);
    });
    if (leaves) expectToLeave();
    action("actionGeometry").trigger();
  }
  void expectToLeave() {
    dialogs.expectBox("Set survey geometry - Dialog", "The geometry has been edited.", "",
                      QMessageBox::Yes);
  }
  void expectSeparator(int entry) {
    dialogs.expect([entry](QWidget& widget) {
      auto* dialog = qobject_cast<SelectCSVDelimiterDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      auto* box = dialog->findChild<QComboBox*>();
      EXPECT_EQ(dialog->windowTitle(), "Select CSV Separator");
      ASSERT_EQ(box->count(), 3);
      EXPECT_EQ(box->itemText(0) + box->itemText(1) + box->itemText(2), "(blank space);,");
      box->setCurrentIndex(entry);
      dialog->accept();
    });
  }
  void expectRefused(const QString& details) {
    dialogs.expect([details](QWidget& widget) {
      auto* box = qobject_cast<QMessageBox*>(&widget);
      ASSERT_NE(box, nullptr) << widget.windowTitle().toStdString();
      EXPECT_EQ(box->text(), "Error Message");
      EXPECT_EQ(box->informativeText().toStdString(), details.toStdString());
      box->button(QMessageBox::Ok)->click();
    });
  }
  const std::vector<Point2D>& string(std::size_t index = 0) const {
    return window->document().line->goephonesStringSet.at(index);
  }
};

}  // namespace talvesk::testing
