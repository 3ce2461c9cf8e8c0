#include "app/dialogs/PrintPreview.h"
#include "app/dialogs/TraceHeadersDialog.h"
#include "base/AtomicFile.h"
#include "gui/WindowTest.h"
#include "io/ShotLoader.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <iostream>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::shotDocument;
using testing::WindowTest;

/// The windows that stand beside the traces: headers, two shots, sheets of shots.
class ShotTables : public WindowTest {
 protected:
  void openShots(std::size_t shots, std::size_t traces, std::size_t samples = 200) {
    open();
    writable() = shotDocument(shots, traces, samples);
    showWritten();
    window->showFile(0);
  }
  QDialog* dialog(const char* name) {
    return window->findChild<QDialog*>(QString::fromLatin1(name));
  }
  QTableView& table() { return child<QTableView>("headersTable"); }
  std::string cell(int row, int column) {
    return table().model()->index(row, column).data().toString().toStdString();
  }
  int columnOf(const QString& title) {
    for (int column = 0; column < table().model()->columnCount(); ++column) {
      if (table().model()->headerData(column, Qt::Horizontal).toString() == title) return column;
    }
    ADD_FAILURE() << title.toStdString();
    return 0;
  }
  std::string inView() {
    const auto& traces = child<editTravelTimesWidget>("showTracesWidget");
    return std::to_string(traces.shot() + 1) + ", " + std::to_string(traces.currentTrace() + 1);
  }
};

TEST_F(ShotTables, headersGoToTheTraceOfTheCurrentRow) {
  openShots(3, 5);
  action("actionTrace_headers").trigger();
  ASSERT_NE(dialog("TraceHeadersDialog"), nullptr);
  EXPECT_EQ(table().model()->rowCount(), 15);
  EXPECT_EQ(inView().substr(0, 2), "1,");
  table().setCurrentIndex(table().model()->index(12, 0));
  EXPECT_EQ(inView(), "3, 3");
  QTest::keyClick(&table(), Qt::Key_Up);
  EXPECT_EQ(inView(), "3, 2");
  QTest::keyClick(&table(), Qt::Key_Return);  // neither closes the window nor opens the guide
  EXPECT_TRUE(dialog("TraceHeadersDialog")->isVisible());
}

TEST_F(ShotTables, headersAreSortedAndTheCurrentTraceStaysTheCurrentOne) {
  openShots(12, 4);
  for (TravelTime& record : writable().ttArray.edit()) record.ttMisurati.edit()[1] = kNoTime;
  showWritten();
  window->showFile(0);
  action("actionTrace_headers").trigger();
  table().setCurrentIndex(table().model()->index(6, 0));
  const int file = columnOf("File");
  table().sortByColumn(file, Qt::DescendingOrder);
  EXPECT_EQ(cell(0, file), "12.dat");
  EXPECT_EQ(cell(4, file), "11.dat");
  EXPECT_EQ(cell(47, file), "1.dat");
  const QModelIndex current = table().currentIndex();
  EXPECT_EQ(cell(current.row(), 0) + "/" + cell(current.row(), 1), "2/3");
  const int pick = columnOf("Pick [ms]");
  for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
    table().sortByColumn(pick, order);
    EXPECT_EQ(cell(0, pick), order == Qt::AscendingOrder ? "10" : "16");
    EXPECT_EQ(cell(47, pick), "");  // what is not known stands last
  }
}

TEST_F(ShotTables, headersFollowThePicks) {
  openShots(2, 3);
  action("actionTrace_headers").trigger();
  const int pick = columnOf("Pick [ms]");
  EXPECT_EQ(cell(1, pick), "12");
  writable().ttArray.edit()[0].ttMisurati.edit()[1] = 0.0155;
  showWritten();
  EXPECT_TRUE(QTest::qWaitFor([&] { return cell(1, pick) == "15.5"; }, 5000));
}

TEST_F(ShotTables, headersAreCopiedForSpreadsheets) {
  openShots(2, 3);
  action("actionTrace_headers").trigger();
  table().selectRow(4);
  QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
  QStringList lines = QGuiApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines[0].startsWith("Shot\tTrace\tFile\t"));
  EXPECT_TRUE(lines[1].startsWith("2\t2\t2.dat\t"));
  EXPECT_EQ(lines[0].count('\t'), lines[1].count('\t'));
  table().clearSelection();
  child<QPushButton>("copyButton").click();
  lines = QGuiApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
  EXPECT_EQ(lines.size(), 7);
}

TEST_F(ShotTables, headersSayWhichFieldsTheyHaveNoRoomFor) {
  openShots(1, 2);
  std::vector<testing::Seg2Channel> channels;
  for (int trace = 0; trace < 2; ++trace) {
    std::vector<std::string> strings = {"SAMPLE_INTERVAL 0.001"};
    for (int i = 0; i < 210; ++i) strings.push_back("F" + std::to_string(1000 * trace + i) + " 1");
    channels.push_back({4, {1, 2, 3}, testing::seg2Area(strings)});
  }
  writable().recordings.edit().filenames[0] = home.put("many.sg2", testing::seg2Bytes(channels));
  showWritten();
  action("actionTrace_headers").trigger();
  const auto& status = child<QLabel>("statusLabel");
  EXPECT_EQ(status.text().toStdString(), "Traces: 2");
  child<QCheckBox>("fieldsBox").click();
  EXPECT_TRUE(QTest::qWaitFor([&] { return status.text().contains("Not in the table"); }, 5000));
  EXPECT_THAT(status.text().toStdString(),
              HasSubstr("21 fields that there is no room for, among them F1189"));
  child<QPushButton>("copyButton").click();
  EXPECT_THAT(status.text().toStdString(), HasSubstr("Not in the table"))
      << "whatever else is said";
}

TEST_F(ShotTables, headersOfAHundredThousandTracesAreThereAtOnce) {
  openShots(1000, 96, 4);
  action("actionTrace_headers").trigger();
  dialog("TraceHeadersDialog")->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QElapsedTimer time;
  time.start();
  action("actionTrace_headers").trigger();
  QCoreApplication::processEvents();
  const qint64 opened = time.restart();
  EXPECT_EQ(table().model()->rowCount(), 96000);
  table().sortByColumn(columnOf("Offset [m]"), Qt::DescendingOrder);
  const qint64 byNumber = time.restart();
  table().sortByColumn(columnOf("File"), Qt::DescendingOrder);
  const qint64 byText = time.restart();
  qint64 slowest = 0;
  for (const char* sorted : {"Shot", "File", "Pick [ms]"}) {
    table().sortByColumn(columnOf(sorted), Qt::AscendingOrder);
    QCoreApplication::processEvents();
    time.restart();
    writable().ttArray.edit()[500].ttMisurati.edit()[7] += 0.001;
    TraceHeaders headers(window->document());
    dynamic_cast<TraceHeadersDialog*>(dialog("TraceHeadersDialog"))->showHeaders(headers);
    const qint64 shown = time.restart();
    QCoreApplication::processEvents();
    std::cout << "a pick, by " << sorted << ": " << shown << " + " << time.elapsed() << " ms\n";
    slowest = std::max(slowest, shown);
  }
  EXPECT_LT(slowest, 1000);
  std::cout << "opened in " << opened << " ms, sorted by a number in " << byNumber
            << " ms, by a text in " << byText << " ms\n";
  EXPECT_LT(opened, 2000);
  EXPECT_LT(byNumber, 2000);
}

TEST_F(ShotTables, twoShotsAreProposedAndTheirDifferenceIsAdded) {
  openShots(4, 6);
  writable().ttArray.edit()[3].shotPos2d = writable().ttArray[0].shotPos2d;
  showWritten();
  window->showFile(0);
  action("actionOverlay_shots").trigger();
  ASSERT_NE(dialog("BlowPairDialog"), nullptr);
  EXPECT_EQ(child<QComboBox>("firstCBox").currentIndex(), 0);
  EXPECT_EQ(child<QComboBox>("secondCBox").currentIndex(), 3);
  child<QPushButton>("addButton").click();
  ASSERT_EQ(window->document().ttArray.size(), 5U);
  EXPECT_EQ(inView().substr(0, 1), "5");
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Add difference of two shots\"");
  EXPECT_TRUE(child<QComboBox>("shotCBox").itemText(4).contains("difference of shots 1 and 4"));
  action("actionUndo").trigger();
  EXPECT_EQ(window->document().ttArray.size(), 4U);
  EXPECT_TRUE(QTest::qWaitFor([&] { return child<QComboBox>("firstCBox").count() == 4; }, 5000));
}

TEST_F(ShotTables, twoShotsSampledOtherwiseHaveNoDifference) {
  openShots(2, 6);
  for (Trace& trace : writable().recordings.edit().traceSets[1]) trace.sampleInterval = 0.001;
  showWritten();
  window->showFile(0);
  action("actionOverlay_shots").trigger();
  EXPECT_FALSE(child<QPushButton>("addButton").isEnabled());
  EXPECT_FALSE(child<QPushButton>("saveShotButton").isEnabled());
  EXPECT_TRUE(child<QPushButton>("savePictureButton").isEnabled());
}

TEST_F(ShotTables, twoShotsAreNamedWithTheirDistanceAndItIsDoubted) {
  openShots(2, 6);
  action("actionOverlay_shots").trigger();
  EXPECT_EQ(child<QLabel>("placesLabel").text().toStdString(),
            "The shots are 4 m apart: difference and sum are not of one place");
  EXPECT_FALSE(child<QLabel>("placesLabel").styleSheet().isEmpty());
  EXPECT_FALSE(child<QLabel>("reasonLabel").isVisible());
  writable().ttArray.edit()[1].shotPos2d = writable().ttArray[0].shotPos2d;
  showWritten();
  const auto& label = child<QLabel>("placesLabel");
  EXPECT_TRUE(QTest::qWaitFor([&] { return label.text() == "The shots are at one place"; }, 5000));
  EXPECT_TRUE(label.styleSheet().isEmpty());
}

TEST_F(ShotTables, aSurveyThatTakesNoShotsSaysSoBeforeOneIsAdded) {
  openShots(2, 6);
  writable().recordings.edit().waveType = WaveType::S;
  showWritten();
  window->showFile(0);
  action("actionOverlay_shots").trigger();
  EXPECT_FALSE(child<QPushButton>("addButton").isEnabled());
  EXPECT_TRUE(child<QPushButton>("saveShotButton").isEnabled());
  EXPECT_TRUE(child<QLabel>("reasonLabel").isVisible());
  EXPECT_THAT(child<QLabel>("reasonLabel").text().toStdString(), HasSubstr("S-wave pairs"));
}

TEST_F(ShotTables, theSumIsSavedAsAShotFileThatIsReadAgain) {
  openShots(2, 6);
  action("actionOverlay_shots").trigger();
  child<QComboBox>("resultCBox").setCurrentIndex(1);
  const std::string path = home.file("sum.sg2");
  dialogs.expectFiles(QStringLiteral("Save Shot File"), {QString::fromStdString(path)});
  child<QPushButton>("saveShotButton").click();
  TomoDocument read;
  ShotLoader loader;
  ASSERT_TRUE(loader.load({path}, read).front().status.ok());
  const auto& sets = window->document().recordings->traceSets;
  EXPECT_FLOAT_EQ(static_cast<float>(read.recordings->traceSets[0][2].samples[150]),
                  static_cast<float>(sets[0][2].samples[150] + sets[1][2].samples[150]));
}

TEST_F(ShotTables, sheetsAreWrittenAsThePreviewShowsThem) {
  openShots(5, 6);
  const std::string path = home.file("sheets.pdf");
  dialogs.expect([](QWidget& widget) {
    widget.findChild<QSpinBox*>("columnsSpin")->setValue(2);
    widget.findChild<QSpinBox*>("rowsSpin")->setValue(1);
    EXPECT_EQ(widget.findChild<QLabel*>("sheetsLabel")->text().toStdString(), "of 3");
    widget.findChild<QSpinBox*>("firstSpin")->setValue(2);
    EXPECT_EQ(widget.findChild<QLabel*>("sheetsLabel")->text().toStdString(), "of 2");
    dynamic_cast<QDialog&>(widget).accept();
  });
  dialogs.expectFiles(QStringLiteral("Save Sheets of Shots"), {QString::fromStdString(path)});
  action("actionShot_sheet").trigger();
  std::string bytes;
  ASSERT_TRUE(readWholeFile(path, bytes).ok());
  EXPECT_THAT(bytes, HasSubstr("/Count 2"));
}

TEST_F(ShotTables, sheetsAreDrawnAsTheTracesAreInView) {
  openShots(2, 6);
  action("actionBy_offset").trigger();
  action("actionTime_gain").trigger();
  const std::string path = home.file("sheet.svg");
  dialogs.expect([](QWidget& widget) {
    EXPECT_FALSE(widget.findChild<QCheckBox*>("channelsBox")->isEnabled());
    auto* preview = widget.findChild<PrintPreview*>("preview");
    for (int waited = 0; waited < 3000 && preview->sheets().empty(); waited += 20) QTest::qWait(20);
    ASSERT_EQ(preview->sheets().size(), 1U);
    EXPECT_LE(preview->widget()->width(), preview->width()) << "all of it is in view";
    EXPECT_LE(preview->widget()->height(), preview->height());
    QTest::keyClick(preview, Qt::Key_Plus);
    QTest::keyClick(preview, Qt::Key_Plus);
    EXPECT_GT(preview->widget()->width(), preview->width());
    QTest::keyClick(preview, Qt::Key_Minus);
    EXPECT_FALSE(preview->isWhole());
    QTest::keyClick(preview, Qt::Key_0);
    EXPECT_TRUE(preview->isWhole());
    dynamic_cast<QDialog&>(widget).accept();
  });
  dialogs.expectFiles(QStringLiteral("Save Sheets of Shots"), {QString::fromStdString(path)});
  action("actionShot_sheet").trigger();
  std::string bytes;
  ASSERT_TRUE(readWholeFile(path, bytes).ok());
  EXPECT_NE(bytes.find("Offset [m]"), std::string::npos);
  EXPECT_NE(bytes.find("gain with time t^1"), std::string::npos);
}

}  // namespace
}  // namespace talvesk
