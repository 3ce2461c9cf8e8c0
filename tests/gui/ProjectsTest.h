#pragma once

#include "gui/WindowTest.h"
#include "model/TomoDocument.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace talvesk::testing {

/// A window with a survey that was changed, and its project files.
class Projects : public WindowTest {
 protected:
  Projects() {
    open();
    loadShots(3);
    document().ttArray.edit()[1].ttMisurati.edit()[2] = 0.017;
  }

  TomoDocument& document() { return writable(); }
  QString path(const std::string& name) const { return QString::fromStdString(home.file(name)); }
  void trigger(const char* name) { action(name).trigger(); }
  void saveAs(const QString& typed) {
    dialogs.expectFiles(QStringLiteral("Save Project"), {typed});
    trigger("actionSave_Project_As");
  }
  void load(const QString& file) {
    dialogs.expectFiles(QStringLiteral("Load Project"), {file});
    trigger("actionLoad_Project");
  }
  QStringList recoveryFiles() const {
    return QDir(path("Talvesk_TMP")).entryList({QStringLiteral("Talvesk_recovery_*")}, QDir::Files);
  }
  /// What the timer does some time after an edit.
  void autosave(bool expected = true) {
    QMetaObject::invokeMethod(window.get(), "autosave");
    if (!expected) return;
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return !recoveryFiles().filter(QStringLiteral(".tvsk.txt")).isEmpty(); }));
  }
};

}  // namespace talvesk::testing
