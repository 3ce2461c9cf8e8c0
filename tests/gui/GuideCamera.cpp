#include "gui/GuideCamera.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <exception>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace talvesk::testing {
namespace {

constexpr int kLook = 50;  ///< milliseconds between two looks for a dialog

constexpr int kColours = 256;

/// Half of the palette are the most frequent colours as they are: those of the window. The other
/// half stands for families of colours that are nearly alike, or shades of grey would leave no room
/// for what is small and coloured.
QVector<QRgb> paletteOf(const QImage& image) {
  constexpr QRgb kFamily = 0xfff0f0f0U;
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y) | 0xff000000U];
  }
  std::vector<std::pair<int, QRgb>> order;
  for (const auto& [colour, count] : counts) order.emplace_back(count, colour);
  std::sort(order.rbegin(), order.rend());
  QVector<QRgb> palette;
  std::set<QRgb> families;
  for (const auto& [count, colour] : order) {
    if (palette.size() == kColours) break;
    const bool fresh = families.insert(colour & kFamily).second;
    if (fresh || palette.size() < kColours / 2) palette << colour;
  }
  return palette;
}

}  // namespace

void store(QWidget& widget, const QString& file) {
  QApplication::processEvents();
  const QImage window = widget.grab().toImage();
  const QImage image = window.convertToFormat(QImage::Format_Indexed8, paletteOf(window),
                                              Qt::AvoidDither | Qt::ThresholdDither);
  if (!image.save(file)) throw std::runtime_error("cannot write " + file.toStdString());
}

BoxAnswers::BoxAnswers() {
  startTimer(kLook);
}

void BoxAnswers::timerEvent(QTimerEvent*) {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  for (const auto answer : {QMessageBox::Yes, QMessageBox::Ok}) {
    if (box->button(answer) != nullptr) return box->button(answer)->click();
  }
}

void withDialog(QAction& command, const std::function<void(QWidget& dialog)>& act) {
  if (!command.isEnabled()) {
    throw std::runtime_error("grey: " + command.objectName().toStdString());
  }
  std::exception_ptr failure;
  bool seen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (seen || dialog == nullptr || qobject_cast<QMessageBox*>(dialog) != nullptr) return;
    seen = true;
    try {
      act(*dialog);
    } catch (...) {
      failure = std::current_exception();
    }
    if (dialog->isVisible()) dialog->reject();
  });
  look.start(kLook);
  command.trigger();
  if (failure) std::rethrow_exception(failure);
  if (!seen) throw std::runtime_error("no dialog: " + command.objectName().toStdString());
}

}  // namespace talvesk::testing
