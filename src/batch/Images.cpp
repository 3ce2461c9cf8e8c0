#include "batch/Images.h"

#include "batch/Failure.h"
#include "figures/GatherFigure.h"
#include "figures/GatherScene.h"
#include "figures/GatherSheet.h"
#include "figures/SectionFigure.h"

#include <QApplication>
#include <QLocale>
#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>

namespace talvesk {
namespace {

/// Qt remarks on many an environment that draws well. What it cannot live with ends the program.
void hearQt(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtCriticalMsg && type != QtFatalMsg) return;
  failed(message.toStdString());
  if (type == QtFatalMsg) std::_Exit(kFailed);
}

}  // namespace

void prepareDrawing() {
  static int argc = 1;
  static char name[] = "talvesk-batch";
  static char* argv[] = {name, nullptr};
  // No display is needed, and an environment that names one is not asked.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(hearQt);
  // It is never ended: its end cleans up caches of Qt, such as that of hatched brushes, which as
  // younger objects would be gone by then.
  static const auto* const application = new QApplication(argc, argv);
  Q_UNUSED(application)
  // Qt has taken over the user's locale.
  std::setlocale(LC_NUMERIC, "C");
  // All texts are English here, and documents must not call them anything else.
  QLocale::setDefault(QLocale::c());
}

SectionFigureOptions sectionFigure(const InvertOptions& options) {
  SectionFigureOptions figure;
  figure.scene.rays = options.rays;
  figure.scene.equallySpacedContours = options.contours;
  return figure;
}

Status drawGathers(const TomoDocument& document, bool filtered, const GatherManner& manner,
                   const std::string& path) {
  GatherFigureOptions figure;
  figure.manner = manner;
  figure.filtered = filtered;
  std::vector<std::string> written;
  return writeGatherFigures(document, figure, path, written);
}

Status drawGatherSheets(const TomoDocument& document, bool filtered, const GatherManner& manner,
                        std::size_t rows, std::size_t columns, const std::string& path) {
  GatherSheetOptions sheets;
  // Each doubling of the shots beyond what A4 holds takes the next larger paper.
  constexpr double kShotsOfA4 = 9.0;
  constexpr double kMostTimes = 16.0;  // A0
  const double times = static_cast<double>(rows * columns) / kShotsOfA4;
  for (double held = 1.0; held < std::min(times, kMostTimes); held *= 2.0) {
    sheets.widthMm *= std::sqrt(2.0);
    sheets.heightMm *= std::sqrt(2.0);
  }
  sheets.rows = rows;
  sheets.columns = columns;
  sheets.gather.filtered = filtered;
  sheets.gather.manner = manner;
  std::vector<std::string> written;
  return writeGatherSheets(document, sheets, path, written);
}

void warnOfOffsets(const TomoDocument& document, const GatherManner& manner) {
  GatherFigureOptions figure;
  figure.manner = manner;
  const std::size_t shots = shotsLackingOffsets(document, figure);
  if (shots == 0) return;
  warn("the offsets of " + std::to_string(shots) + (shots == 1 ? " shot" : " shots") +
       " are not known; the pictures are drawn neither by offset nor in reduced time there");
}

}  // namespace talvesk
