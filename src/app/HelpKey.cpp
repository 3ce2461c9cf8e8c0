#include "app/HelpKey.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <string>
#include <utility>

namespace talvesk {
namespace {

struct Page {
  const char* dialog;  ///< class
  const char* file;
};

constexpr Page kPages[] = {
    {"DialogSetGeometry", "geometry.html"},
    {"RecordingDetailsDialog", "load.html"},
    {"doFilteringDialog", "filter.html"},
    {"gridDialog", "inversion.html"},
    {"select_speed_Dialog", "inversion.html"},
    {"runTomography_Dialog", "inversion.html"},
    {"progressTomographyDialog", "inversion.html"},
    {"smoothingDialog", "inversion.html"},
    {"RefractionProcessingDialog", "refraction.html"},
    {"PaletteDialog", "colours.html"},
    {"contourlines_dialog", "colours.html"},
    {"ExportTomoVelData", "export.html"},
    {"setGeographyDialog", "export.html"},
    {"ImagesDialog", "report.html"},
    {"ScreenshotDialog", "report.html"},
    {"ReportDialog", "report.html"},
    {"SettingsDialog", "settings.html"},
};

}  // namespace

QString guidePageOf(const QObject* widget) {
  for (const QObject* at = widget; at != nullptr; at = at->parent()) {
    for (const Page& page : kPages) {
      if (at->inherits((std::string("talvesk::") + page.dialog).c_str())) {
        return QString::fromLatin1(page.file);
      }
    }
  }
  return {};
}

HelpKey::HelpKey(std::function<void(const QString&)> open, QObject* parent)
    : QObject(parent), mOpen(std::move(open)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  const QString page = guidePageOf(watched);
  if (page.isEmpty()) return false;
  mOpen(page);
  return true;
}

}  // namespace talvesk
