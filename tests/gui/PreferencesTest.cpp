#include "app/Languages.h"
#include "app/LineIcon.h"
#include "base/Log.h"
#include "gui/WindowTest.h"
#include "model/TomoDocument.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTest>

#include <qwt_plot.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

class Preferences : public WindowTest {
 protected:
  void openForTheFirstTime() {
    QFile::remove(QString::fromStdString(home.file("Talvesk_TMP/Talvesk_settings.xml")));
    open();
    window->start({});
  }
  void inSettingsDialog(const std::function<void(QWidget&)>& change) {
    dialogs.expect([change](QWidget& dialog) {
      change(dialog);
      dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
  }
  static void choose(QWidget& dialog, const QString& language) {
    auto* box = dialog.findChild<QComboBox*>("languageCBox");
    ASSERT_GE(box->findText(language), 0);
    box->setCurrentIndex(box->findText(language));
  }
};

TEST_F(Preferences, areAskedForAtTheFirstRun) {
  inSettingsDialog([](QWidget& dialog) {
    ASSERT_NE(dialog.parentWidget(), nullptr);
    EXPECT_TRUE(dialog.parentWidget()->isVisible()) << "the window that the settings are for";
    choose(dialog, "Italiano");
  });
  openForTheFirstTime();
  EXPECT_EQ(window->settings().language, "it");
  EXPECT_EQ(child<QMenu>("menuTraces").title().toStdString(), "&Tracce");
  const std::string lines = log();
  EXPECT_THAT(lines, HasSubstr("Loading language talvesk_it.qm\n"));
  EXPECT_EQ(lines.find("Application Start"), lines.find("] ") + 2) << "the log starts anew";

  open();
  window->start({});
  EXPECT_EQ(child<QMenu>("menuTraces").title().toStdString(), "&Tracce") << "never asked again";
}

TEST_F(Preferences, keepTheProgramsOwnLanguageWhenTheFirstQuestionIsCancelled) {
  dialogs.expectAndCancel();
  openForTheFirstTime();
  EXPECT_EQ(window->settings().language, "en");
  EXPECT_TRUE(QFile::exists(QString::fromStdString(home.file("Talvesk_TMP/Talvesk_settings.xml"))));
  loadShots(1);
  EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage(), "1 shot file loaded.");
}

TEST_F(Preferences, haveTheNamesThatTheMenuHas) {
  for (const char* language : {"en", "it"}) {
    writeSettings(language);
    open();
    const std::pair<const char*, const char*> names[] = {
        {"fillWiggle", "actionFill_wiggle"},       {"twoColors", "actionTwo_colors"},
        {"cutHorizontal", "actionCut_horizontal"}, {"zoomIn", "actionZoom_in"},
        {"showFiltered", "actionShow_filtered"},   {"showAllTraces", "actionShow_all_traces"}};
    inSettingsDialog([&](QWidget& dialog) {
      for (const auto& [box, command] : names) {
        EXPECT_EQ(dialog.findChild<QCheckBox*>(box)->text(), action(command).text());
      }
    });
    action("actionSettings").trigger();
  }
}

TEST_F(Preferences, speakEnglishWhenTheLanguageIsNotThereAnyMore) {
  writeSettings("xx");
  open();
  loadShots(1);
  EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage(), "1 shot file loaded.");
  EXPECT_EQ(window->settings().language, "en");
}

TEST_F(Preferences, switchTheLanguageOfEverythingInTheWindow) {
  open();
  loadShots(1);
  const QString saveText = QApplication::translate("QPlatformTheme", "Discard");
  inSettingsDialog([](QWidget& dialog) { choose(dialog, "Italiano"); });
  action("actionSettings").trigger();
  QTest::qWait(20);
  EXPECT_EQ(action("actionNext_file").text().toStdString(), "Successivo");
  EXPECT_EQ(child<QCheckBox>("showAllPicksCB").text().toStdString(), "Mostra tutti i primi arrivi");
  EXPECT_EQ(child<QComboBox>("shotCBox").currentText().toStdString(), "1: shot1.dat a 9,0 m");
  EXPECT_NE(QApplication::translate("QPlatformTheme", "Discard"), saveText);

  inSettingsDialog([](QWidget& dialog) { choose(dialog, "English"); });
  action("actionSettings").trigger();
  QTest::qWait(20);
  EXPECT_EQ(action("actionNext_file").text().toStdString(), "Next");
}

TEST_F(Preferences, areOneStateWithTheMenuAndSurviveARestart) {
  open();
  inSettingsDialog([](QWidget& dialog) {
    dialog.findChild<QCheckBox*>("fillWiggle")->setChecked(false);
    dialog.findChild<QCheckBox*>("savePngHColorbar")->setChecked(true);
  });
  action("actionSettings").trigger();
  EXPECT_FALSE(action("actionFill_wiggle").isChecked());
  EXPECT_FALSE(child<editTravelTimesWidget>("showTracesWidget").options().fillWiggle);
  action("actionTwo_colors").trigger();

  open();
  EXPECT_FALSE(window->settings().fillWiggle);
  EXPECT_TRUE(window->settings().savePngHColorbar);
  EXPECT_TRUE(window->settings().twoColors);
  EXPECT_TRUE(child<editTravelTimesWidget>("showTracesWidget").options().twoColors);
}

TEST_F(Preferences, showLengthsInFeetAtOnceAndAfterARestart) {
  open();
  loadShots(1);
  const auto axis = [this] {
    return child<TravelTimePlot>("travelTimeCurves")
        .findChild<QwtPlot*>()
        ->axisTitle(QwtPlot::xBottom)
        .text()
        .toStdString();
  };
  const auto chooseUnit = [this](int index) {
    inSettingsDialog([index](QWidget& dialog) {
      dialog.findChild<QComboBox*>("lengthUnit")->setCurrentIndex(index);
    });
    action("actionSettings").trigger();
    QTest::qWait(20);
  };
  EXPECT_EQ(axis(), "Distance [m]");
  const double source = window->document().ttArray[0].shotPos2d.x;
  chooseUnit(1);
  EXPECT_EQ(axis(), "Distance [ft]");
  EXPECT_EQ(window->document().ttArray[0].shotPos2d.x, source) << "nothing is converted";
  open();
  QTest::qWait(20);
  EXPECT_TRUE(window->settings().feet);
  EXPECT_EQ(axis(), "Distance [ft]");
  chooseUnit(0);
  EXPECT_EQ(axis(), "Distance [m]");
}

TEST_F(Preferences, rememberWhetherErrorBarsAreShown) {
  const auto shown = [this] {
    return std::make_tuple(action("actionError_bars").isChecked(),
                           child<editTravelTimesWidget>("showTracesWidget").options().errorBars,
                           child<TravelTimePlot>("travelTimeCurves").showsErrorBars(),
                           child<TravelTimePlot>("travelTimePreview").showsErrorBars());
  };
  open();
  EXPECT_EQ(shown(), std::make_tuple(true, true, true, true));
  action("actionError_bars").trigger();
  EXPECT_EQ(shown(), std::make_tuple(false, false, false, false));
  open();
  EXPECT_EQ(shown(), std::make_tuple(false, false, false, false));
  action("actionError_bars").trigger();
  EXPECT_EQ(shown(), std::make_tuple(true, true, true, true));
}

TEST_F(Preferences, bringTheWindowBackInItsSize) {
  open();
  window->resize(900, 620);
  QTest::qWait(20);
  const QSize size = window->size();
  open();
  EXPECT_EQ(window->size(), size);
}

TEST_F(Preferences, bringAWindowFromALargerScreenIntoSight) {
  open();
  const QSize room = window->screen()->availableVirtualSize();
  window->resize(2 * room);
  ASSERT_GT(window->width(), room.width());
  open();
  EXPECT_LE(window->width(), room.width());
  EXPECT_LE(window->height(), room.height());
}

TEST_F(Preferences, startWithTheTracesWiderThanTheirTimes) {
  open();
  loadShots(1);
  const int traces = child<QWidget>("scrollArea").width();
  const int times = child<QWidget>("travelTimePreview").width();
  EXPECT_NEAR(static_cast<double>(traces) / (traces + times), 0.618, 0.02);
}

TEST_F(Preferences, keepTheOldLanguageWhenAFileIsNoTranslation) {
  Languages languages;
  Log nowhere;
  EXPECT_FALSE(languages.use(99, nowhere));
  EXPECT_EQ(languages.current(), -1);
  ASSERT_GE(languages.indexOf("it"), 0);
  EXPECT_TRUE(languages.use(languages.indexOf("it"), nowhere));
  EXPECT_TRUE(languages.use(languages.indexOf("en"), nowhere));
}

TEST_F(Preferences, drawIconsInTheColourOfTheText) {
  const QPalette before = QApplication::palette();
  const auto brightness = [](const QIcon& icon) {
    const QImage image = icon.pixmap(48, 48).toImage();
    double sum = 0.0;
    double weight = 0.0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, y);
        sum += colour.alphaF() * colour.lightnessF();
        weight += colour.alphaF();
      }
    }
    return weight > 0.0 ? sum / weight : -1.0;
  };
  const QIcon icon = lineIcon(":/icons/next.png");
  QPalette dark;
  dark.setColor(QPalette::WindowText, Qt::white);
  QApplication::setPalette(dark);
  EXPECT_GT(brightness(icon), 0.9);
  dark.setColor(QPalette::WindowText, Qt::black);
  QApplication::setPalette(dark);
  const double onLight = brightness(icon);
  EXPECT_GE(onLight, 0.0) << "there is something to see";
  EXPECT_LT(onLight, 0.1);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace talvesk
