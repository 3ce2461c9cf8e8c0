#include "app/HelpKey.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <string>
#include <string_view>
#include <utility>

namespace talvesk {
namespace {

struct Page {
  const char* dialog;  ///< class
  const char* file;
};

constexpr Page kPages[] = {
    {"DialogSetGeometry", "geometry.html"},
    {"SelectCSVDelimiterDialog", "geometry.html"},
    {"MendDialog", "load.html"},
    {"RecordingDetailsDialog", "load.html"},
    {"ReadingsDialog", "load.html"},
    {"CheckDialog", "load.html"},
    {"TraceHeadersDialog", "load.html"},
    {"BlowPairDialog", "load.html"},
    {"ShotFileDialog", "load.html"},
    {"SurveyedPositionsDialog", "geometry.html"},
    {"doFilteringDialog", "filter.html"},
    {"NotchDialog", "filter.html"},
    {"VelocityFilterDialog", "filter.html"},
    {"ReciprocityDialog", "curves.html"},
    {"gridDialog", "inversion.html"},
    {"select_speed_Dialog", "inversion.html"},
    {"runTomography_Dialog", "inversion.html"},
    {"ResidualsDialog", "fit.html"},
    {"SecondLookDialog", "fit.html"},
    {"RunsDialog", "inversion.html"},
    {"CompareRunsDialog", "inversion.html"},
    {"ResolutionDialog", "judge.html"},
    {"CertaintyDialog", "judge.html"},
    {"KnownGroundDialog", "fit.html"},
    {"AnnotationsDialog", "section.html"},
    {"MarkedIsolinesDialog", "section.html"},
    {"DepthProfileDialog", "section.html"},
    {"FenceDialog", "section.html"},
    {"progressTomographyDialog", "inversion.html"},
    {"smoothingDialog", "inversion.html"},
    {"RefractionProcessingDialog", "refraction.html"},
    {"LayerMethodsDialog", "refraction.html"},
    {"StartLayersDialog", "refraction.html"},
    {"CompareLayersDialog", "refraction.html"},
    {"ElasticDialog", "refraction.html"},
    {"PaletteDialog", "colours.html"},
    {"contourlines_dialog", "colours.html"},
    {"ExportTomoVelData", "export.html"},
    {"setGeographyDialog", "export.html"},
    {"DrawingDialog", "export.html"},
    {"ImagesDialog", "report.html"},
    {"PrintDialog", "report.html"},
    {"CampaignDialog", "report.html"},
    {"GatherSheetDialog", "report.html"},
    {"ScreenshotDialog", "report.html"},
    {"ReportDialog", "report.html"},
    {"progressDialog", "projects.html"},
    {"SettingsDialog", "settings.html"},
};

const QString kMessages = QStringLiteral("troubleshooting.html");

/// Not one of the message and file boxes, which belong to Qt.
bool isOwnDialog(const QWidget& widget) {
  return qobject_cast<const QDialog*>(&widget) != nullptr &&
         std::string_view(widget.metaObject()->className()).substr(0, 9) == "talvesk::";
}

}  // namespace

QString guidePageOf(const QWidget* widget) {
  const QWidget* top = widget->window();
  for (const QObject* at = widget; at != nullptr; at = at->parent()) {
    for (const Page& page : kPages) {
      if (at->inherits((std::string("talvesk::") + page.dialog).c_str())) {
        return QString::fromLatin1(page.file);
      }
    }
  }
  return qobject_cast<const QMessageBox*>(top) != nullptr ? kMessages : QString();
}

HelpKey::HelpKey(std::function<void(const QString&)> open, QObject* parent)
    : QObject(parent), mOpen(std::move(open)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::Polish) addHelpButton(*widget);
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return pressHelp(*widget);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  const QString page = guidePageOf(widget);
  if (page.isEmpty()) return false;
  mOpen(page);
  return true;
}

/// With the keyboard on it, Return is for the button of the guide and not for that of the dialog.
bool HelpKey::pressHelp(QWidget& focus) {
  auto* button = qobject_cast<QPushButton*>(&focus);
  auto* buttons = qobject_cast<QDialogButtonBox*>(focus.parentWidget());
  if (button == nullptr || buttons == nullptr ||
      buttons->button(QDialogButtonBox::Help) != button) {
    return false;
  }
  button->click();
  return true;
}

void HelpKey::addHelpButton(QWidget& dialog) {
  if (!isOwnDialog(dialog)) return;
  const QString page = guidePageOf(&dialog);
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  if (page.isEmpty() || buttons == nullptr || buttons->button(QDialogButtonBox::Help)) return;
  // Never the one that Return presses from elsewhere: it would be the first that may be.
  buttons->addButton(QDialogButtonBox::Help)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::helpRequested, this, [this, page] { mOpen(page); });
}

}  // namespace talvesk
