// The pictures of the user guide, taken from the program at work on the demo line. See
// scripts/guide-pictures.
#include "app/Talvesk_MainWindows.h"
#include "app/dialogs/doFilteringDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/setVelocityWidget.h"
#include "base/Settings.h"
#include "base/WorkingFolder.h"
#include "gui/GuideCamera.h"
#include "io/Survey.h"
#include "widgets/section/SectionSurface.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QSurfaceFormat>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using namespace talvesk;
using namespace talvesk::testing;

constexpr int kShot = 4;  ///< on the line, left of the valley

void storeFilterDialog(Talvesk_MainWindows& window, const QString& file) {
  TomoDocument document = window.document();
  doFilteringDialog dialog(document, kShot, {}, &window);
  dialog.resize(980, 560);
  child<QCheckBox>(dialog, "lowPassCBox").setChecked(true);
  child<QDoubleSpinBox>(dialog, "doubleFxLowpass").setValue(150.0);
  child<QSpinBox>(dialog, "lowPassOrder").setValue(2);
  dialog.show();
  if (!QTest::qWaitForWindowExposed(&dialog)) throw std::runtime_error("no filter dialog");
  child<QPushButton>(dialog, "button_apply_filter").click();
  store(dialog, file);
}

void loadDemo(Talvesk_MainWindows& window, const QString& demo) {
  QStringList files;
  for (const QString& name : QDir(demo).entryList({QStringLiteral("shot*.sg2")}, QDir::Files)) {
    files << QDir(demo).filePath(name);
  }
  // The records of the demo line start before their shots, and the window asks about that.
  window.openFiles(files << QDir(demo).filePath(QStringLiteral("demo.otte")));
  if (window.document().ttArray.size() <= static_cast<std::size_t>(kShot)) {
    throw std::runtime_error("the demo line was not loaded");
  }
}

void storeTraces(Talvesk_MainWindows& window, const QString& folder) {
  window.showFile(kShot);
  child<editTravelTimesWidget>(window, "showTracesWidget").setCurrentTrace(30);
  store(window, folder + QStringLiteral("/traces.png"));
  storeFilterDialog(window, folder + QStringLiteral("/filter.png"));
  child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
  window.resize(1000, 600);
  store(window, folder + QStringLiteral("/curves.png"));
}

/// A geophone whose position lacks a digit, as the dialog sees it.
void storeGeometry(Talvesk_MainWindows& window, const QString& folder) {
  withDialog(child<QAction>(window, "actionGeometry"), [&](QWidget& dialog) {
    dialog.resize(980, 560);
    auto& table = child<QTableView>(dialog, "geophonesTable");
    const QModelIndex place = table.model()->index(12, 0);
    table.model()->setData(place, QStringLiteral("2"));
    table.setCurrentIndex(place);
    store(dialog, folder + QStringLiteral("/geometry.png"));
  });
}

void storeModel(Talvesk_MainWindows& window, const QString& folder) {
  withDialog(child<QAction>(window, "actionGrid"), [&](QWidget& dialog) {
    child<QDoubleSpinBox>(dialog, "maxDepthEdit").setValue(35.0);
    store(dialog, folder + QStringLiteral("/grid.png"));
    static_cast<QDialog&>(dialog).accept();
  });
  withDialog(child<QAction>(window, "actionDefine_model_velocity"), [&](QWidget& dialog) {
    child<QPushButton>(dialog, "addButton").click();
    child<QPushButton>(dialog, "addButton").click();
    const VelocityLayer layers[] = {
        {0.0, 400.0, 3.0, 900.0}, {3.0, 900.0, 12.0, 2000.0}, {12.0, 2000.0, 35.0, 3000.0}};
    const auto rows = dialog.findChildren<setVelocityWidget*>();
    for (int i = 0; i < std::min<int>(rows.size(), std::size(layers)); ++i) {
      rows[i]->setLayer(layers[i]);
    }
    store(dialog, folder + QStringLiteral("/model.png"));
    static_cast<QDialog&>(dialog).accept();
  });
}

void storeInversion(Talvesk_MainWindows& window, const QString& folder) {
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* progress = window.findChild<progressTomographyDialog*>();
    if (progress == nullptr || child<QProgressBar>(*progress, "progressBar").value() < 60) return;
    look.stop();
    store(*progress, folder + QStringLiteral("/progress.png"));
  });
  look.start(20);
  withDialog(child<QAction>(window, "actionRun_tomography_inversion"), [&](QWidget& dialog) {
    store(dialog, folder + QStringLiteral("/run.png"));
    static_cast<QDialog&>(dialog).accept();
  });
  if (look.isActive()) throw std::runtime_error("the inversion was not seen at work");
}

void storeSection(Talvesk_MainWindows& window, const QString& folder) {
  window.resize(1120, 700);
  withDialog(child<QAction>(window, "actionPalette"), [&](QWidget& dialog) {
    child<QSpinBox>(dialog, "minimum").setValue(500);
    child<QSpinBox>(dialog, "maximum").setValue(3500);
    store(dialog, folder + QStringLiteral("/palette.png"));
    static_cast<QDialog&>(dialog).accept();
  });
  child<QAction>(window, "actionShow_rays").trigger();
  store(window, folder + QStringLiteral("/rays.png"));
  child<QAction>(window, "actionShow_rays").trigger();
  child<QAction>(window, "actionShow_Information_Density_Layer").trigger();
  store(window, folder + QStringLiteral("/density.png"));
  child<QAction>(window, "actionShow_Information_Density_Layer").trigger();
  withDialog(child<QAction>(window, "actionShow_Contour_Lines"), [&](QWidget& dialog) {
    store(dialog, folder + QStringLiteral("/contours.png"));
    static_cast<QDialog&>(dialog).accept();
  });
  child<QAction>(window, "actionSmooth_view").trigger();
  store(window, folder + QStringLiteral("/section.png"));
}

void storeRefraction(Talvesk_MainWindows& window, const QString& folder) {
  withDialog(child<QAction>(window, "actionRefraction"), [&](QWidget& dialog) {
    dialog.resize(980, 640);
    child<QPushButton>(dialog, "proposeButton").click();
    store(dialog, folder + QStringLiteral("/layers.png"));
    child<QPushButton>(dialog, "buildButton").click();
    store(dialog, folder + QStringLiteral("/profile.png"));
    static_cast<QDialog&>(dialog).accept();
  });
}

void storeCoordinates(Talvesk_MainWindows& window, const QString& folder) {
  withDialog(child<QAction>(window, "actionSet_geography_coordinates"), [&](QWidget& dialog) {
    const std::pair<const char*, const char*> fields[] = {{"estFstGeoph", "687400"},
                                                          {"northFstGeoph", "4928210"},
                                                          {"estLstGeoph", "687481.4"},
                                                          {"northLstGeoph", "4928257"},
                                                          {"epsgEdit", "32632"}};
    for (const auto& [name, text] : fields) {
      child<QLineEdit>(dialog, name).setText(QLatin1String(text));
    }
    store(dialog, folder + QStringLiteral("/coordinates.png"));
  });
}

void storeImagesAndReport(Talvesk_MainWindows& window, const QString& line, const QString& folder) {
  withDialog(child<QAction>(window, "actionImages"), [&](QWidget& dialog) {
    for (const char* box : {"travelTimesBox", "velocityBox", "densityBox", "refractionBox"}) {
      child<QCheckBox>(dialog, box).setChecked(true);
    }
    child<QLineEdit>(dialog, "folderEdit").setText(line);
    store(dialog, folder + QStringLiteral("/images.png"));
  });
  withDialog(child<QAction>(window, "actionPDF"), [&](QWidget& dialog) {
    dialog.resize(1000, 700);
    child<QLineEdit>(dialog, "dateEdit").setText(QStringLiteral("2024-05-12"));
    child<QPushButton>(dialog, "previewButton").click();
    QApplication::processEvents();
    QScrollBar& pages = *child<QScrollArea>(dialog, "previewArea").verticalScrollBar();
    pages.setValue(pages.maximum() / 2);
    store(dialog, folder + QStringLiteral("/report.png"));
  });
}

/// The title of the survey on the pictures, in the language of the guide.
std::string titleOfLine(const QString& language) {
  static const std::map<QString, const char*> kTitles = {{QStringLiteral("de"), "Messlinie 1"},
                                                         {QStringLiteral("es"), "L\u00ednea 1"},
                                                         {QStringLiteral("fr"), "Ligne 1"},
                                                         {QStringLiteral("it"), "Linea 1"}};
  const auto title = kTitles.find(language);
  return title == kTitles.end() ? "Line 1" : title->second;
}

void storePictures(const QString& demo, const QString& language, const QString& folder) {
  const WorkingFolder working = WorkingFolder::ofUser();
  working.create();
  Settings settings(working.settings);
  settings.language = language.toStdString();
  if (!settings.save().ok()) throw std::runtime_error("cannot write the settings");

  Talvesk_MainWindows window;
  window.resize(1120, 700);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) throw std::runtime_error("no window");
  const BoxAnswers boxes;
  window.session().amend([&](Survey& survey) { survey.document.title = titleOfLine(language); });
  loadDemo(window, demo);
  storeTraces(window, folder);
  storeGeometry(window, folder);
  storeModel(window, folder);
  storeInversion(window, folder);
  storeSection(window, folder);
  storeRefraction(window, folder);
  storeCoordinates(window, folder);
  // Pictures tell of no folder of whoever takes them.
  QDir::setCurrent(QFileInfo(demo).absolutePath());
  storeImagesAndReport(window, QFileInfo(demo).fileName(), folder);
  window.session().markSaved();
}

}  // namespace

/// guide_pictures DEMO_LINE LANGUAGE FOLDER: HOME should be a folder of its own, whose settings are
/// replaced.
int main(int argc, char** argv) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  QSurfaceFormat::setDefaultFormat(talvesk::sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Talvesk"));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fputs("Usage: guide_pictures DEMO_LINE LANGUAGE FOLDER\n", stderr);
    return 2;
  }
  try {
    storePictures(arguments[1], arguments[2], QDir(arguments[3]).absolutePath());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "guide_pictures: %s\n", failure.what());
    return 1;
  }
  return 0;
}
