#include "app/dialogs/CampaignDialog.h"
#include "gui/WindowTest.h"
#include "support/SectionDocument.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestFolder;
using testing::WindowTest;

template <typename Widget>
Widget& in(QWidget& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

QPushButton& button(QWidget& dialog, QDialogButtonBox::StandardButton which) {
  return *dialog.findChild<QDialogButtonBox*>()->button(which);
}

/// The window with a section of 6 rows of 20 cells under geophones, and a shot with picks.
class Reports : public WindowTest {
 protected:
  Reports() { open(); }

  void takeSection() {
    TomoDocument& document = writable();
    document = testing::sectionDocument(
        6, 20, 0.5, [](std::uint32_t row, std::uint32_t) { return 400.0 + 300.0 * row; });
    document.title = "Hill 7/b";
    showWritten();
    window->showFile(0);
    QMetaObject::invokeMethod(window.get(), "on_actionGrid_view_triggered");
  }
  /// The next dialog gets its values by `fill` and is left by a button.
  void expectDialog(std::function<void(QWidget&)> fill,
                    QDialogButtonBox::StandardButton leave = QDialogButtonBox::Save) {
    dialogs.expect([fill = std::move(fill), leave](QWidget& dialog) {
      fill(dialog);
      QPushButton& last = button(dialog, leave);
      EXPECT_TRUE(last.isEnabled());
      if (last.isEnabled()) last.click();
      if (dialog.isVisible()) dialog.close();
    });
  }
  QString path(const char* name) const { return QString::fromStdString(home.file(name)); }
  /// Two small pictures of the section in the home.
  void chooseTwoPictures(QWidget& dialog) const {
    in<QLineEdit>(dialog, "folderEdit").setText(QString::fromStdString(home.path()));
    in<QLineEdit>(dialog, "nameEdit").setText(QStringLiteral("a"));
    in<QCheckBox>(dialog, "smoothBox").setChecked(true);
    in<QComboBox>(dialog, "unitCBox").setCurrentIndex(1);
    in<QDoubleSpinBox>(dialog, "widthEdit").setValue(900.0);
    in<QCheckBox>(dialog, "ownHeightBox").setChecked(false);
    in<QDoubleSpinBox>(dialog, "heightEdit").setValue(500.0);
    in<QCheckBox>(dialog, "travelTimesBox").setChecked(false);
  }
};

TEST_F(Reports, needASurveyAndPicturesOfTheViewASection) {
  for (const char* name :
       {"actionImages", "actionScreenshot", "actionPDF", "actionODT", "actionWeb_page"}) {
    EXPECT_FALSE(action(name).isEnabled()) << name;
  }
  loadShots(1);
  for (const char* name : {"actionImages", "actionPDF", "actionODT", "actionWeb_page"}) {
    EXPECT_TRUE(action(name).isEnabled()) << name;
  }
  EXPECT_FALSE(action("actionScreenshot").isEnabled());
  takeSection();
  EXPECT_TRUE(action("actionScreenshot").isEnabled());
}

TEST_F(Reports, areShownBeforeTheyAreWrittenAndRememberWhomTheyAreFor) {
  takeSection();
  expectDialog([](QWidget& dialog) {
    EXPECT_EQ(in<QLineEdit>(dialog, "titleEdit").text(), QStringLiteral("Hill 7/b"));
    in<QLineEdit>(dialog, "clientEdit").setText(QStringLiteral("A client"));
    in<QCheckBox>(dialog, "methodBox").setChecked(false);
    in<QPushButton>(dialog, "previewButton").click();
    EXPECT_THAT(in<QLabel>(dialog, "pagesLabel").text().toStdString(), HasSubstr("pages"));
    QWidget* sheets = in<QScrollArea>(dialog, "previewArea").widget();
    ASSERT_NE(sheets, nullptr);
    EXPECT_GE(sheets->findChildren<QLabel*>().size(), 3);
    in<QCheckBox>(dialog, "surveyBox").click();  // what is shown is no longer what is asked for
    EXPECT_EQ(in<QScrollArea>(dialog, "previewArea").widget(), nullptr);
  });
  dialogs.expectFiles("Save PDF report", {path("report")});
  action("actionPDF").trigger();
  EXPECT_TRUE(dialogs.finished());
  EXPECT_THAT(TestFolder::get(home.file("report.pdf")), StartsWith("%PDF-"));
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::on_actionPDF_triggered"));

  window->session().markSaved();
  open();
  takeSection();
  expectDialog([](QWidget& dialog) {
    EXPECT_EQ(in<QLineEdit>(dialog, "clientEdit").text(), QStringLiteral("A client"));
    EXPECT_FALSE(in<QCheckBox>(dialog, "methodBox").isChecked());
    EXPECT_FALSE(in<QCheckBox>(dialog, "surveyBox").isChecked());
  });
  dialogs.expectFiles("Save ODT report", {path("report")});
  action("actionODT").trigger();
  EXPECT_THAT(TestFolder::get(home.file("report.odt")).substr(0, 80), HasSubstr("opendocument"));

  expectDialog([](QWidget&) {});
  dialogs.expectFiles("Save web page", {path("report")});
  action("actionWeb_page").trigger();
  EXPECT_THAT(TestFolder::get(home.file("report.html")), StartsWith("<!DOCTYPE html>"));
}

TEST_F(Reports, standOnThePageOfACampaignWhichNamesWhatFailed) {
  takeSection();
  dialogs.expectFiles("Save Project", {path("a.tvsk")});
  action("actionSave_Project_As").trigger();
  home.put("broken.tvsk", "no archive");
  home.put("other.tvsk", TestFolder::get(home.file("a.tvsk")));
  home.put("other.html", "somebody's");
  const auto ask = [this](const QStringList& more, const char* page) {
    dialogs.expect([=](QWidget& widget) {
      auto* dialog = qobject_cast<CampaignDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      EXPECT_EQ(dialog->projects(), QStringList{path("a.tvsk")}) << "that of the survey";
      in<QPushButton>(widget, "addButton").click();
      EXPECT_EQ(dialog->projects().size(), 3) << "each once";
      in<QLineEdit>(widget, "titleEdit").setText(QStringLiteral("Valley <2024>"));
      button(widget, QDialogButtonBox::Save).click();
    });
    dialogs.expectFiles("Add projects to the campaign page", more);
    dialogs.expectFiles("Save campaign page", {path(page)});
  };
  ask({path("broken.tvsk"), path("a.tvsk"), path("other.tvsk")}, "index.html");
  dialogs.expectBox("Warning", "1 file exists already.", "other.html", QMessageBox::Yes);
  dialogs.expectBox("Warning",
                    "Some values of the projects cannot be. They were put right or left out.",
                    "other.tvsk: its information density does not fit", QMessageBox::Ok);
  dialogs.expectBox("Error occured", "Projects that failed: 2. The campaign page names them.",
                    "no page of Talvesk", QMessageBox::Ok);
  action("actionCampaign_page").trigger();
  EXPECT_TRUE(dialogs.finished());
  const std::string page = TestFolder::get(home.file("index.html"));
  EXPECT_THAT(page, HasSubstr("Valley &lt;2024&gt;"));
  EXPECT_THAT(page, HasSubstr("a.html"));
  EXPECT_THAT(page, HasSubstr("broken"));
  EXPECT_THAT(page, Not(HasSubstr(home.path()))) << "nobody's folders";
  EXPECT_THAT(TestFolder::get(home.file("a.html")), StartsWith("<!DOCTYPE html>"));
  EXPECT_EQ(TestFolder::get(home.file("other.html")), "somebody's");
  EXPECT_FALSE(window->isWindowModified());

  ask({path("broken.tvsk"), path("other.tvsk")}, "all");
  dialogs.expectBox("Warning", "2 files exist already.", "a.html", QMessageBox::No);
  action("actionCampaign_page").trigger();
  EXPECT_FALSE(QFile::exists(path("all.html")));
}

TEST_F(Reports, onManyLinesStopWithinAProjectAndSayWhatIsThere) {
  takeSection();
  dialogs.expectFiles("Save Project", {path("a.tvsk")});
  action("actionSave_Project_As").trigger();
  home.put("b.tvsk", TestFolder::get(home.file("a.tvsk")));
  dialogs.expect([this](QWidget& widget) {
    dynamic_cast<CampaignDialog&>(widget).add({path("a.tvsk"), path("b.tvsk")});
    EXPECT_NE(widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help), nullptr);
    button(widget, QDialogButtonBox::Save).click();
  });
  dialogs.expectFiles("Save campaign page", {path("index.html")});
  bool stayed = false;
  QTimer soon;
  QObject::connect(&soon, &QTimer::timeout, [&] {
    auto* bar = window->findChild<QProgressDialog*>();
    if (bar == nullptr || !bar->isVisible()) return;
    soon.stop();
    QTest::keyClick(bar, Qt::Key_Escape);
    stayed = bar->isVisible() && bar->labelText().startsWith(QStringLiteral("Stopping: a.tvsk"));
    EXPECT_FALSE(bar->findChild<QPushButton*>()->isEnabled());
  });
  soon.start(0);
  action("actionCampaign_page").trigger();
  EXPECT_TRUE(stayed) << "who has stopped it sees what is still at work";
  EXPECT_FALSE(QFile::exists(path("index.html")));
  EXPECT_FALSE(QFile::exists(path("b.html")));
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              HasSubstr("Stopped; the campaign page has not been saved, pages of 0 of its 2"));
}

TEST_F(Reports, tellWhereTheyCouldNotBeWritten) {
  takeSection();
  expectDialog([](QWidget&) {});
  dialogs.expectFiles("Save PDF report", {path("no/report")});
  dialogs.expectBox("Error occured", "The file has not been saved.", path("no/report.pdf"),
                    QMessageBox::Ok);
  action("actionPDF").trigger();
  EXPECT_TRUE(dialogs.finished());
  EXPECT_THAT(log(), HasSubstr("ERROR : "));
}

TEST_F(Reports, picturesAreListedAndOnlyReplacedWhenTheUserSaysSo) {
  takeSection();
  home.put("a_velocity.png", "before");
  const auto fill = [this](QWidget& dialog) {
    chooseTwoPictures(dialog);
    const auto& list = in<QListWidget>(dialog, "filesList");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("a_velocity.png (exists)"));
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("a_velocity_smooth.png"));
  };
  expectDialog(fill);
  dialogs.expectBox("Warning", "1 file exists already.", "a_velocity.png", QMessageBox::No);
  action("actionImages").trigger();
  EXPECT_EQ(TestFolder::get(home.file("a_velocity.png")), "before");
  EXPECT_FALSE(QFile::exists(path("a_velocity_smooth.png")));

  expectDialog(fill);
  dialogs.expectBox("Warning", "1 file exists already.", "a_velocity.png", QMessageBox::Yes);
  action("actionImages").trigger();
  EXPECT_TRUE(dialogs.finished());
  for (const char* name : {"a_velocity.png", "a_velocity_smooth.png"}) {
    EXPECT_EQ(QImage(path(name)).size(), QSize(900, 500)) << name;
  }
}

TEST_F(Reports, picturesAreRefusedBeforeTheyAreMade) {
  takeSection();
  dialogs.expect([this](QWidget& dialog) {
    chooseTwoPictures(dialog);
    const QPushButton& save = button(dialog, QDialogButtonBox::Save);
    const auto& problem = in<QLabel>(dialog, "problemLabel");
    EXPECT_TRUE(save.isEnabled());
    in<QLineEdit>(dialog, "folderEdit").setText(path("nowhere"));
    EXPECT_FALSE(save.isEnabled());
    EXPECT_EQ(problem.text(), QStringLiteral("There is no such folder."));
    in<QLineEdit>(dialog, "folderEdit").setText(path("."));
    in<QDoubleSpinBox>(dialog, "widthEdit").setValue(60000.0);
    in<QDoubleSpinBox>(dialog, "heightEdit").setValue(60000.0);
    EXPECT_FALSE(save.isEnabled());
    EXPECT_THAT(problem.text().toStdString(), HasSubstr("choose"));
    in<QDoubleSpinBox>(dialog, "widthEdit").setValue(900.0);
    in<QDoubleSpinBox>(dialog, "heightEdit").setValue(500.0);
    for (const char* box : {"cellsBox", "smoothBox"}) in<QCheckBox>(dialog, box).setChecked(false);
    EXPECT_EQ(problem.text(), QStringLiteral("Nothing to write is chosen."));
    EXPECT_FALSE(in<QCheckBox>(dialog, "refractionBox").isEnabled());
    dialog.close();
  });
  action("actionImages").trigger();
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Reports, screenshotsAreTheViewOnceToFourTimesAsLarge) {
  takeSection();
  child<QTabWidget>("tabWidget").setCurrentIndex(0);  // the view was never seen
  window->show();
  QCoreApplication::processEvents();
  QSize sizes[2];
  for (const int scale : {1, 3}) {
    const QString file = path(scale == 1 ? "view.jpg" : "view.png");
    expectDialog(
        [scale](QWidget& dialog) { in<QComboBox>(dialog, "scaleCBox").setCurrentIndex(scale - 1); },
        QDialogButtonBox::Ok);
    dialogs.expectFiles("Save screenshot", {file});
    action("actionScreenshot").trigger();
    sizes[scale == 1 ? 0 : 1] = QImage(file).size();
  }
  EXPECT_GT(sizes[0].width(), 300);
  EXPECT_EQ(sizes[1], sizes[0] * 3);
  EXPECT_THAT(TestFolder::get(home.file("view.jpg")), StartsWith("\xFF\xD8"));
}

}  // namespace
}  // namespace talvesk
