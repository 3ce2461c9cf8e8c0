// The pictures of the user guide, taken from the program at work on the demo line. See
// scripts/guide-pictures.
#include "app/Talvesk_MainWindows.h"
#include "app/doFilteringDialog.h"
#include "base/Settings.h"
#include "base/WorkingFolder.h"
#include "widgets/SectionSurface.h"
#include "widgets/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using namespace talvesk;

constexpr int kShot = 4;  ///< on the line, left of the valley

/// The colours that a picture is mostly made of.
QVector<QRgb> paletteOf(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y) | 0xff000000U];
  }
  std::vector<std::pair<int, QRgb>> order;
  for (const auto& [colour, count] : counts) order.emplace_back(count, colour);
  std::sort(order.rbegin(), order.rend());
  QVector<QRgb> palette;
  for (std::size_t i = 0; i < std::min<std::size_t>(order.size(), 256); ++i) {
    palette << order[i].second;
  }
  return palette;
}

/// 256 colours are enough for a window, and make a file a third as large.
void store(QWidget& widget, const QString& file) {
  QApplication::processEvents();
  const QImage window = widget.grab().toImage();
  const QImage image = window.convertToFormat(QImage::Format_Indexed8, paletteOf(window),
                                              Qt::AvoidDither | Qt::ThresholdDither);
  if (!image.save(file)) throw std::runtime_error("cannot write " + file.toStdString());
}

template <typename Widget>
Widget& child(const QObject& parent, const char* name) {
  auto* found = parent.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

void storeFilterDialog(Talvesk_MainWindows& window, const QString& file) {
  doFilteringDialog dialog(window.document(), kShot, {}, &window);
  dialog.resize(980, 560);
  child<QCheckBox>(dialog, "lowPassCBox").setChecked(true);
  child<QDoubleSpinBox>(dialog, "doubleFxLowpass").setValue(150.0);
  child<QSpinBox>(dialog, "lowPassOrder").setValue(2);
  dialog.show();
  if (!QTest::qWaitForWindowExposed(&dialog)) throw std::runtime_error("no filter dialog");
  child<QPushButton>(dialog, "button_apply_filter").click();
  store(dialog, file);
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
  // The records of the demo line start before their shots, and the window asks about that.
  QTimer yes;
  QObject::connect(&yes, &QTimer::timeout, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr && box->button(QMessageBox::Yes)) box->button(QMessageBox::Yes)->click();
  });
  yes.start(50);
  QStringList files;
  for (const QString& name : QDir(demo).entryList({QStringLiteral("shot*.sg2")}, QDir::Files)) {
    files << QDir(demo).filePath(name);
  }
  window.openFiles(files << QDir(demo).filePath(QStringLiteral("demo.otte")));
  yes.stop();
  if (window.document().ttArray.size() <= static_cast<std::size_t>(kShot)) {
    throw std::runtime_error("the demo line was not loaded");
  }
  window.showFile(kShot);
  auto& traces = child<editTravelTimesWidget>(window, "showTracesWidget");
  traces.setCurrentTrace(30);
  store(window, folder + QStringLiteral("/traces.png"));
  child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
  window.resize(1000, 600);
  store(window, folder + QStringLiteral("/curves.png"));
  storeFilterDialog(window, folder + QStringLiteral("/filter.png"));
  window.document().modified = false;
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
    storePictures(arguments[1], arguments[2], arguments[3]);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "guide_pictures: %s\n", failure.what());
    return 1;
  }
  return 0;
}
