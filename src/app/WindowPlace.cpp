#include "app/WindowPlace.h"

#include <QMainWindow>
#include <QScreen>
#include <QSettings>

namespace talvesk {
namespace {

/// Share of the screen, either way, that a window without a remembered place fills at most.
constexpr double kMostOfScreen = 0.95;

/// A window that was left on a larger screen must not reach beyond this one.
void bringIntoSight(QWidget& window) {
  const QRect room = window.screen()->availableVirtualGeometry();
  if (window.isMaximized() || window.isFullScreen()) return;
  if (window.width() <= room.width() && window.height() <= room.height()) return;
  window.resize(window.size().boundedTo(room.size() * kMostOfScreen));
  window.move(room.center() - window.rect().center());
}

}  // namespace

void restorePlace(QMainWindow& window, const QString& file) {
  const QSettings state(file, QSettings::IniFormat);
  if (!window.restoreGeometry(state.value(QStringLiteral("geometry")).toByteArray())) {
    // A laptop at twice the scale has fewer points than the form; the frame needs some too.
    window.resize(window.size().boundedTo(window.screen()->availableSize() * kMostOfScreen));
  } else {
    bringIntoSight(window);
  }
  window.restoreState(state.value(QStringLiteral("toolBars")).toByteArray());
}

void savePlace(const QMainWindow& window, const QString& file) {
  QSettings state(file, QSettings::IniFormat);
  state.setValue(QStringLiteral("geometry"), window.saveGeometry());
  state.setValue(QStringLiteral("toolBars"), window.saveState());
}

}  // namespace talvesk
