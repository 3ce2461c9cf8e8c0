#include "gui/ProjectsTest.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"

#include <QDialog>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <csignal>

// How old a recovery copy may be, and what becomes of a window that is ended from outside.

namespace talvesk::testing {
namespace {

constexpr int kMinute = 60 * 1000;  // milliseconds

class Recovery : public Projects {
 protected:
  void changeTitle(const QString& title) {
    dialogs.expect([title](QWidget& dialog) {
      dialog.findChild<QLineEdit*>()->setText(title);
      static_cast<QDialog&>(dialog).accept();
    });
    trigger("actionSet_title");
  }
  std::string titleInCopy() const {
    const QStringList copies =
        recoveryFiles().filter(QRegularExpression(QStringLiteral("\\.tvsk$")));
    LoadedProject copy;
    projectReader reader;
    EXPECT_EQ(copies.size(), 1);
    EXPECT_EQ(reader.load(home.file("Talvesk_TMP/" + copies.value(0).toStdString()),
                          home.file("Talvesk_TMP/"), copy),
              0)
        << reader.message();
    return copy.document.title;
  }
};

TEST_F(Recovery, copyIsDueWithinAMinuteOfTheFirstEditThatItLacks) {
  auto& timer = child<QTimer>("autosaveTimer");
  ASSERT_TRUE(timer.isActive()) << "loading shots is an edit";
  const int first = timer.remainingTime();
  EXPECT_LT(first, kMinute);
  QTest::qWait(50);
  changeTitle(QStringLiteral("Later"));
  EXPECT_LT(timer.remainingTime(), first) << "a later edit has put it off";
  saveAs(path("line.tvsk"));
  EXPECT_FALSE(timer.isActive());
  changeTitle(QStringLiteral("Changed"));
  EXPECT_TRUE(timer.isActive());
}

TEST_F(Recovery, copyDoesNotWaitForDialogs) {
  document().title = "Open";
  dialogs.expect([this](QWidget& dialog) {
    autosave();
    dialog.close();
  });
  trigger("actionGeometry");
  EXPECT_EQ(titleInCopy(), "Open");
}

TEST_F(Recovery, copyIsLeftByAWindowThatHasNoTimeToAsk) {
  autosave();
  document().title = "Just now";
  window->leaveRecoveryCopy();
  EXPECT_EQ(titleInCopy(), "Just now");
}

TEST_F(Recovery, copyIsLeftByAProgramThatASignalEnds) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    const TestFolder user;
    QDir(QString::fromStdString(user.path())).mkdir(QStringLiteral("Talvesk_TMP"));
    QFile::copy(path("Talvesk_TMP/Talvesk_settings.xml"),
                QString::fromStdString(user.file("Talvesk_TMP/Talvesk_settings.xml")));
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(user.path()));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(TALVESK_WINDOW), {path("shot1.dat"), path("shot2.dat")});
    // It hears the signal as soon as it has loaded them.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
          return TestFolder::get(user.file("Talvesk_TMP/Talvesk_log.log")).find("openFiles") !=
                 std::string::npos;
        },
        20000));
    ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), signal), 0);
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << signal;
    EXPECT_EQ(program.exitCode(), 128 + signal);
    const QDir work(QString::fromStdString(user.file("Talvesk_TMP")));
    const QStringList copies = work.entryList({QStringLiteral("Talvesk_recovery_*.tvsk")});
    ASSERT_EQ(copies.size(), 1) << signal;
    LoadedProject copy;
    projectReader reader;
    EXPECT_EQ(reader.load(work.filePath(copies[0]).toStdString(), user.file("Talvesk_TMP/"), copy),
              0)
        << reader.message();
    EXPECT_EQ(copy.document.recordings->traceSets.size(), 2U);
  }
}

}  // namespace
}  // namespace talvesk::testing
