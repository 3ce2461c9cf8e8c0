#include "app/BackgroundCertainty.h"
#include "app/FileFolders.h"
#include "app/Languages.h"
#include "app/dialogs/CertaintyDialog.h"
#include "app/dialogs/DialogSetGeometry.h"
#include "app/dialogs/DrawingDialog.h"
#include "app/dialogs/ExportTomoVelData.h"
#include "app/dialogs/ImagesDialog.h"
#include "app/dialogs/MendDialog.h"
#include "app/dialogs/PaletteDialog.h"
#include "app/dialogs/ReadingsDialog.h"
#include "app/dialogs/RecordingDetailsDialog.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "app/dialogs/ReportDialog.h"
#include "app/dialogs/ResolutionDialog.h"
#include "app/dialogs/ScreenshotDialog.h"
#include "app/dialogs/SelectCSVDelimiterDialog.h"
#include "app/dialogs/SettingsDialog.h"
#include "app/dialogs/contourlines_dialog.h"
#include "app/dialogs/doFilteringDialog.h"
#include "app/dialogs/gridDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "app/dialogs/select_speed_Dialog.h"
#include "app/dialogs/setGeographyDialog.h"
#include "app/dialogs/smoothingDialog.h"
#include "gui/WindowTest.h"
#include "io/SegyFile.h"
#include "support/TestSurveys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <functional>

namespace talvesk {
namespace {

using testing::WindowTest;

/// What the keyboard finds in the dialogs.
class Dialogs : public WindowTest {
 protected:
  struct Case {
    const char* name;
    std::function<std::unique_ptr<QDialog>()> make;
  };

  template <typename Dialog, typename... Arguments>
  std::unique_ptr<QDialog> make(Arguments&&... arguments) {
    return std::make_unique<Dialog>(std::forward<Arguments>(arguments)..., window.get());
  }

  void openSurvey() {
    open();
    loadShots(2);
    for (TravelTime& record : writable().ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time = 0.01;
    }
    testing::putGrid(writable(), 10.0, 1.0);
  }

  std::vector<Case> cases() {
    TomoDocument& document = writable();
    const SurveyProfile profile = document.surveyProfile();
    return {
        {"geometry", [&] { return make<DialogSetGeometry>(document, mSegy, mFolders, mContext); }},
        {"shift", [&] { return make<ExportTomoVelData>(); }},
        {"drawing", [&] { return make<DrawingDialog>(DrawingDialog::Start()); }},
        {"images", [&] { return make<ImagesDialog>(document, mLayers, ImageSetOptions(), 0); }},
        {"palette",
         [&] {
           return make<PaletteDialog>(mPalettes, false, ValueRange{250.0, 900.0}, mFolders);
         }},
        {"mend", [&] { return make<MendDialog>(document, 0); }},
        {"recording", [&] { return make<RecordingDetailsDialog>(document, mFiles, 0); }},
        {"readings",
         [&] {
           return make<ReadingsDialog>(std::vector<ReadingsDialog::File>{{&mReading, &mFuller}});
         }},
        {"refraction", [&] { return make<RefractionProcessingDialog>(document, mLayers); }},
        {"report", [&] { return make<ReportDialog>(ReportOptions(), mBuild); }},
        {"screenshot", [&] { return make<ScreenshotDialog>(QSize(600, 400)); }},
        {"separator", [&] { return make<SelectCSVDelimiterDialog>(); }},
        {"settings", [&] { return make<SettingsDialog>(mLanguages.list(), 0, mSettings); }},
        {"contours",
         [&] {
           return make<contourlines_dialog>(mContours, SectionQuantity::kVelocity,
                                            ValueRange{250.0, 900.0}, mFolders);
         }},
        {"resolution", [&] { return make<ResolutionDialog>(document); }},
        {"certainty", [&] { return make<CertaintyDialog>(document, mCertainty); }},
        {"filters",
         [&] { return make<doFilteringDialog>(document, 0, std::vector<std::int32_t>{1}); }},
        {"grid",
         [&, profile] {
           return make<gridDialog>(document, profile, GridSettings{9.0, 0.5, 6}, 2U);
         }},
        {"progress", [&] { return make<progressTomographyDialog>(); }},
        {"run", [&] { return make<runTomography_Dialog>(250.0, 3500.0); }},
        {"layers", [&] { return make<select_speed_Dialog>(document); }},
        {"coordinates",
         [&] { return make<setGeographyDialog>(std::nullopt, std::optional<LineEnds>()); }},
        {"smoothing", [&] { return make<smoothingDialog>(SmoothingType::kUniform); }}};
  }

  static void show(QDialog& dialog) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  }

  /// Calls it for every page of the dialog, which may be only one.
  static void onEveryPage(QDialog& dialog, const std::function<void(int page)>& look) {
    const auto tabs = dialog.findChildren<QTabWidget*>();
    const int pages = tabs.isEmpty() ? 1 : tabs.front()->count();
    for (int page = 0; page < pages; ++page) {
      if (!tabs.isEmpty()) tabs.front()->setCurrentIndex(page);
      QCoreApplication::processEvents();
      look(page);
    }
  }

  SegyState mSegy;
  FileFolders mFolders{History(home.file("history.txt"))};
  DialogSetGeometry::Context mContext;
  refractionDataStructure::Interpretation mLayers;
  ColorPaletteList mPalettes;
  std::vector<RecordingInfo> mFiles;
  ReadShotFile mReading;
  FullerReading mFuller;
  ReportDialog::Build mBuild = [](const ReportOptions&, ReportContent&) { return Status(); };
  Languages mLanguages;
  Settings mSettings{home.file("settings.xml")};
  ContourSettings mContours;
  BackgroundCertainty mCertainty;
};

bool takesTab(const QWidget& widget) {
  const auto* radio = qobject_cast<const QRadioButton*>(&widget);
  return widget.isVisible() && widget.isEnabled() && !widget.isWindow() &&
         (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.focusProxy() == nullptr &&
         (radio == nullptr || radio->isChecked());
}

std::string nameOf(const QWidget* widget) {
  if (widget == nullptr) return "nothing";
  const QString name = widget->objectName();
  return (name.isEmpty() ? QLatin1String(widget->metaObject()->className()) : name).toStdString();
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// Whether the way from one widget to the next goes back: up within a column, left within a row.
bool goesBack(const QWidget& from, const QWidget& to) {
  if (from.isAncestorOf(&to) || to.isAncestorOf(&from)) return false;
  // The buttons that end a dialog come last, wherever they stand.
  if (qobject_cast<const QDialogButtonBox*>(to.parentWidget()) != nullptr) return false;
  const QRect a = placeOf(from);
  const QRect b = placeOf(to);
  const int across = std::min(a.right(), b.right()) - std::max(a.left(), b.left());
  const int down = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
  const bool up = across > 0 && b.bottom() < a.top() + 2;
  const bool left = 2 * down > std::min(a.height(), b.height()) && b.right() < a.left() + 2;
  return up || left;
}

/// The widgets that the Tab key visits, from the first one that it visits twice back to itself.
QList<QWidget*> tabRound(QDialog& dialog) {
  constexpr int kMost = 200;
  QList<QWidget*> visited;
  for (int i = 0; i < kMost; ++i) {
    QWidget* focus = QApplication::focusWidget();
    const int before = visited.indexOf(focus);
    if (before >= 0) return visited.mid(before);
    visited << focus;
    QTest::keyClick(focus != nullptr ? focus : &dialog, Qt::Key_Tab);
  }
  return visited;
}

TEST_F(Dialogs, areWalkedThroughByTheTabKeyInTheOrderThatOneReads) {
  openSurvey();
  for (const Case& each : cases()) {
    const auto dialog = each.make();
    show(*dialog);
    onEveryPage(*dialog, [&](int page) {
      SCOPED_TRACE(std::string(each.name) + " page " + std::to_string(page));
      const QList<QWidget*> round = tabRound(*dialog);
      for (QWidget* widget : dialog->findChildren<QWidget*>()) {
        EXPECT_TRUE(!takesTab(*widget) || round.contains(widget)) << nameOf(widget);
      }
      int back = 0;  // the way from the last to the first has to be one
      std::string way;
      for (int i = 0; i < round.size(); ++i) {
        const QWidget* next = round[(i + 1) % round.size()];
        if (round[i] == nullptr || next == nullptr || !goesBack(*round[i], *next)) continue;
        ++back;
        way += nameOf(round[i]) + " -> " + nameOf(next) + "; ";
      }
      EXPECT_LE(back, 1) << way;
    });
  }
}

/// The letter after the ampersand; none without one.
QString mnemonicOf(const QString& text) {
  const QKeySequence key = QKeySequence::mnemonic(text);
  return key.isEmpty() ? QString() : key.toString();
}

TEST_F(Dialogs, shareNoMnemonicInAnyLanguage) {
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    openSurvey();
    for (const Case& each : cases()) {
      const auto dialog = each.make();
      show(*dialog);
      onEveryPage(*dialog, [&](int page) {
        QMap<QString, QString> owners;
        const auto take = [&](const QWidget& widget, const QString& text) {
          const QString key = widget.isVisible() ? mnemonicOf(text) : QString();
          if (key.isEmpty()) return;
          EXPECT_FALSE(owners.contains(key))
              << language << " " << each.name << " page " << page << ": "
              << owners[key].toStdString() << " and " << text.toStdString();
          owners[key] = text;
        };
        for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
          take(*button, button->text());
        }
        for (const auto* label : dialog->findChildren<QLabel*>()) {
          if (label->buddy() != nullptr) take(*label, label->text());
        }
        for (const auto* box : dialog->findChildren<QGroupBox*>()) take(*box, box->title());
      });
    }
  }
}

}  // namespace
}  // namespace talvesk
