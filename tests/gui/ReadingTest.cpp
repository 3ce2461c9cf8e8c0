#include "app/dialogs/ReadingsDialog.h"
#include "app/dialogs/ShotFileDialog.h"
#include "base/SampleStore.h"
#include "gui/WindowTest.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "support/ShotFiles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using testing::WindowTest;

class Reading : public WindowTest {
 protected:
  Reading() { open(); }

  /// Shots at 3 and 22 m into six geophones each, in one file.
  QString twoShots(const std::string& name) const {
    std::vector<testing::Seg2Channel> channels;
    for (int i = 0; i < 12; ++i) {
      std::vector<float> samples;
      for (int s = 0; s < 60; ++s) samples.push_back(static_cast<float>((s * 7 + i) % 11 - 5));
      channels.push_back(
          {4, samples,
           testing::seg2Area({"RECEIVER_LOCATION " + std::to_string(5 * (i % 6)),
                              "SAMPLE_INTERVAL 0.001",
                              "SOURCE_LOCATION " + std::to_string(i < 6 ? 3 : 22)})});
    }
    return QString::fromStdString(home.put(name, testing::seg2Bytes(channels)));
  }
  std::size_t sets() { return writable().recordings->traceSets.size(); }
  /// Answers the next dialog, both readings side by side, by one of its buttons.
  void expectReadings(const char* button) {
    dialogs.expect([button](QWidget& widget) {
      auto* dialog = qobject_cast<ReadingsDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      dialog->findChild<QAbstractButton*>(QLatin1String(button))->click();
    });
  }
};

TEST_F(Reading, byTheStandardIsChosenInTheDialogEveryTime) {
  const QString file = twoShots("line.measured");
  for (int time = 0; time < 2; ++time) {
    dialogs.expect([&](QWidget& widget) {
      auto& dialog = dynamic_cast<ShotFileDialog&>(widget);
      EXPECT_EQ(dialog.reader(), ShotReader::kRules);
      auto& reader = *dialog.findChild<QComboBox*>("readerCBox");
      EXPECT_TRUE(reader.isVisible());
      const QString before = dialog.selectedNameFilter();
      reader.setCurrentIndex(1);
      EXPECT_EQ(dialog.selectedNameFilter(), "All Files (*)");
      reader.setCurrentIndex(0);
      EXPECT_EQ(dialog.selectedNameFilter(), before);
      reader.setCurrentIndex(1);
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    action("actionOpen_shot_files").trigger();
    EXPECT_EQ(sets(), static_cast<std::size_t>(2 * time + 2));
  }
  EXPECT_EQ(writable().recordings->notes.at(1).reader, ShotReader::kStandard);
  EXPECT_THAT(
      child<QComboBox>("shotCBox").itemText(1).toStdString(),
      HasSubstr("line.measured (" + writable().recordings->notes[1].nameInFile + ") at 22"));
}

TEST_F(Reading, ofBothKindsIsShownWhereTheStandardReadsMore) {
  const QStringList files = {shotFile("sound.dat"), twoShots("a.dat"), twoShots("b.measured")};
  dialogs.expect([&](QWidget& widget) {
    auto& dialog = dynamic_cast<ReadingsDialog&>(widget);
    EXPECT_EQ(dialog.windowTitle(), "The standard reads more");
    auto& table = *dialog.findChild<QTableWidget*>("filesTable");
    ASSERT_EQ(table.rowCount(), 2) << "the sound one is none of them";
    EXPECT_EQ(table.item(0, 0)->text(), "a.dat");
    EXPECT_EQ(table.item(0, 1)->text(), "the program's rules make one shot of its 2");
    EXPECT_EQ(table.item(1, 1)->text(), "the program's rules cannot read it");
    const auto text = [&](const char* panel, const char* label) {
      return dialog.findChild<QWidget*>(panel)->findChild<QLabel*>(label)->text().toStdString();
    };
    EXPECT_EQ(text("rulesPanel", "shotsValue"), "1");
    EXPECT_EQ(text("rulesPanel", "tracesValue"), "12");
    EXPECT_EQ(text("standardPanel", "shotsValue"), "2");
    EXPECT_EQ(text("standardPanel", "sourceValue"), "3 ... 22 m");
    EXPECT_EQ(text("standardPanel", "receiversValue"), "0 ... 25 m");
    EXPECT_EQ(text("standardPanel", "intervalValue"), "1 ms");
    EXPECT_EQ(dialog.findChild<QWidget*>("standardPanel")->findChild<QComboBox*>()->count(), 2);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(text("rulesPanel", "formatValue"), "not read");
    EXPECT_THAT(dialog.findChild<QWidget*>("rulesPanel")
                    ->findChild<QPlainTextEdit*>("warningsText")
                    ->toPlainText()
                    .toStdString(),
                HasSubstr("its suffix is none of"));
    const auto shown = [&](const char* panel) {
      return dialog.findChild<QWidget*>(panel)->findChild<QWidget*>("gather")->grab().toImage();
    };
    EXPECT_NE(shown("rulesPanel"), shown("standardPanel")) << "nothing, and traces";
    dialog.findChild<QAbstractButton*>("standardButton")->setFocus();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  window->openFiles(files);
  ASSERT_EQ(sets(), 5U);
  std::vector<ShotReader> readers;
  for (const RecordingNote& note : writable().recordings->notes) readers.push_back(note.reader);
  EXPECT_THAT(readers, ElementsAre(ShotReader::kRules, ShotReader::kStandard, ShotReader::kStandard,
                                   ShotReader::kStandard, ShotReader::kStandard));
}

TEST_F(Reading, staysWithTheRulesOrIsGivenUpAsTheUserWants) {
  const QString file = twoShots("a.dat");
  expectReadings("rulesButton");
  window->openFiles({file});
  ASSERT_EQ(sets(), 1U);
  EXPECT_THAT(writable().recordings->traceSets[0], SizeIs(12));
  EXPECT_EQ(writable().recordings->notes.at(0).reader, ShotReader::kRules);

  dialogs.expectAndCancel();
  window->openFiles({file});
  EXPECT_EQ(sets(), 1U);
  EXPECT_EQ(window->statusBar()->currentMessage(), "No shot file was loaded.");
}

TEST_F(Reading, byTheStandardComesBackWithTheProject) {
  expectReadings("standardButton");
  window->openFiles({twoShots("line.dat")});
  const QString project = QString::fromStdString(home.file("line.tvsk"));
  dialogs.expectFiles("Save Project", {project});
  action("actionSave_Project_As").trigger();
  open();
  window->openFiles({project});
  ASSERT_EQ(sets(), 2U);
  EXPECT_EQ(writable().recordings->notes.at(1).reader, ShotReader::kStandard);
  EXPECT_EQ(writable().recordings->notes.at(1).format, "seg2");

  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>("formatValue")->text(), "SEG-2");
    dialog.findChild<QComboBox*>("fileCBox")->setCurrentIndex(1);
    EXPECT_THAT(dialog.findChild<QLabel*>("readerValue")->text().toStdString(),
                HasSubstr("the standard of its format; record 2 of the file"));
    EXPECT_EQ(dialog.findChild<QLabel*>("placeValue")->text(), "in memory");
    dialog.close();
  });
  action("actionRecording_details").trigger();
}

TEST_F(Reading, keepsSamplesWhereTheSettingsSay) {
  dialogs.expect([](QWidget& dialog) {
    dialog.findChild<QComboBox*>("samplesOnDisk")->setCurrentText("Always");
    dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
  });
  action("actionSettings").trigger();
  window->openFiles({shotFile("line.dat")});
  ASSERT_EQ(sets(), 1U);
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>("placeValue")->text(), "on the disk");
    dialog.close();
  });
  action("actionRecording_details").trigger();
  SampleStore::instance().setWhen(SamplesOnDisk::kWhenLarge);
}

}  // namespace
}  // namespace talvesk
