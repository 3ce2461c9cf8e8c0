#include "figures/GatherSheet.h"

#include "figures/FigureItem.h"
#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/GatherScene.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

constexpr double kPageOfPoints = 120000.0;  ///< of a vector file, shared out among the panels

std::vector<std::size_t> shotsOf(const TomoDocument& document, const GatherSheetOptions& options) {
  if (!options.shots.empty()) return options.shots;
  std::vector<std::size_t> all(document.recordings->traceSets.size());
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
  return all;
}

std::vector<std::size_t> shotsOn(std::size_t sheet, const TomoDocument& document,
                                 const GatherSheetOptions& options) {
  const std::vector<std::size_t> all = shotsOf(document, options);
  const std::size_t each = options.rows * options.columns;
  const std::size_t first = std::min(sheet * each, all.size());
  const std::size_t end = std::min(first + each, all.size());
  return {all.begin() + static_cast<std::ptrdiff_t>(first),
          all.begin() + static_cast<std::ptrdiff_t>(end)};
}

Status check(const TomoDocument& document, const GatherSheetOptions& options) {
  if (document.recordings->traceSets.empty()) {
    return Status::failure(Message::tr("The document has no traces to draw."));
  }
  const bool cells = options.rows >= 1 && options.columns >= 1 &&
                     options.rows <= GatherSheetOptions::kMostRows &&
                     options.columns <= GatherSheetOptions::kMostColumns;
  if (cells) return {};
  return Status::failure(Message::tr("A sheet has 1 to %1 rows and 1 to %2 columns of shots.")
                             .arg(GatherSheetOptions::kMostRows)
                             .arg(GatherSheetOptions::kMostColumns));
}

using Scenes = std::vector<std::shared_ptr<const GatherScene>>;

Status buildScenes(const TomoDocument& document, const std::vector<std::size_t>& shots,
                   const GatherFigureOptions& options, Scenes& scenes) {
  scenes.clear();
  for (const std::size_t shot : shots) {
    auto scene = std::make_shared<GatherScene>();
    if (Status status = buildGatherScene(document, shot, options, *scene); !status.ok()) {
      return status;
    }
    scenes.push_back(std::move(scene));
  }
  return {};
}

/// From the first time of any to the last of any.
TimeWindow windowAround(const Scenes& scenes) {
  TimeWindow window = scenes.front()->window;
  for (const auto& scene : scenes) {
    window.beginMs = std::min(window.beginMs, scene->window.beginMs);
    window.endMs = std::max(window.endMs, scene->window.endMs);
  }
  return window;
}

QString captionOf(const Scenes& scenes, const std::vector<std::size_t>& shots, std::size_t sheet,
                  std::size_t sheets, const GatherSheetOptions& options) {
  const bool own = options.gather.scaling == GatherScaling::kEachTrace;
  QStringList parts;
  parts << (own ? FigureWords::tr("Each trace to its own maximum, gain %1")
                : FigureWords::tr("All traces of a shot to one maximum, gain %1"))
               .arg(options.locale.toString(options.gather.gain, 'g', 3));
  parts += gainWords(options.gather.manner);
  for (std::size_t i = 0; i < scenes.size(); ++i) {
    if (scenes[i]->remarks.empty()) continue;
    parts << FigureWords::tr("Shot %1: %2", "what is left out of it, or mended")
                 .arg(shots[i] + 1)
                 .arg(QString::fromStdString(scenes[i]->remarks));
  }
  if (sheets > 1) parts << FigureWords::tr("Sheet %1 of %2").arg(sheet + 1).arg(sheets);
  return FigureWords::joined(parts);
}

GatherPanel panelOf(std::shared_ptr<const GatherScene> scene, const GatherSheetOptions& options,
                    double panels) {
  const GatherFigureOptions& how = options.gather;
  GatherLayer layer;
  layer.style.gain = how.gain;
  layer.style.clip = how.clip;
  layer.style.fillPositive = how.fillPositive;
  layer.style.mostVectorPoints = kPageOfPoints / panels;
  layer.picks = toColor(how.pickColor);
  GatherPanel panel;
  panel.heading.push_back({QString::fromStdString(scene->title)});
  layer.scene = std::move(scene);
  panel.layers.push_back(std::move(layer));
  return panel;
}

/// "line.png" is "line_02.png" for the second of several sheets.
std::string numbered(const std::string& path, std::size_t sheet, std::size_t sheets) {
  constexpr std::size_t kSuffix = 4;  // of all three formats
  if (sheets == 1) return path;
  return path.substr(0, path.size() - kSuffix) + '_' + withZeros(sheet + 1, sheets) +
         path.substr(path.size() - kSuffix);
}

Status write(const std::string& path, const QByteArray& bytes, std::vector<std::string>& written) {
  Status status = writeBytes(path, bytes);
  if (status.ok()) written.push_back(path);
  return status;
}

}  // namespace

std::size_t gatherSheets(const TomoDocument& document, const GatherSheetOptions& options) {
  const std::size_t each = std::max<std::size_t>(options.rows * options.columns, 1);
  return (shotsOf(document, options).size() + each - 1) / each;
}

std::vector<std::string> gatherSheetFiles(const TomoDocument& document,
                                          const GatherSheetOptions& options,
                                          const std::string& path) {
  FigureFormat format{};
  if (!figureFormatOf(path, format).ok()) return {};
  if (format == FigureFormat::kPdf) return {path};
  const std::size_t sheets = gatherSheets(document, options);
  std::vector<std::string> files;
  for (std::size_t i = 0; i < sheets; ++i) files.push_back(numbered(path, i, sheets));
  return files;
}

Status prepareGatherSheet(const TomoDocument& document, const GatherSheetOptions& options,
                          std::size_t sheet, FigureDrawing& drawing,
                          std::vector<GatherPanelPlace>* places) {
  if (Status status = check(document, options); !status.ok()) return status;
  const std::vector<std::size_t> shots = shotsOn(sheet, document, options);
  if (shots.empty()) {
    return Status::failure(Message::tr("There is no sheet %1 to draw.").arg(sheet + 1));
  }
  GatherFigureOptions how = options.gather;
  how.title.clear();
  Scenes scenes;
  Status status = buildScenes(document, shots, how, scenes);
  if (!status.ok()) return status;
  if (!how.window) {
    how.window = windowAround(scenes);
    status = buildScenes(document, shots, how, scenes);
    if (!status.ok()) return status;
  }
  auto made = std::make_shared<GatherPanelSheet>();
  made->rows = options.rows;
  made->columns = options.columns;
  made->window = windowAround(scenes);
  made->locale = options.locale;
  made->title = QString::fromStdString(document.title);
  made->caption = captionOf(scenes, shots, sheet, gatherSheets(document, options), options);
  for (auto& scene : scenes) {
    made->panels.push_back(
        panelOf(std::move(scene), options, static_cast<double>(options.rows * options.columns)));
  }
  if (status = layOutPanels(*made, options.widthMm, options.heightMm, places); !status.ok()) {
    return status;
  }
  const QString name = made->title.isEmpty() ? FigureWords::tr("Shots") : made->title;
  drawing.sheet = {options.widthMm, options.heightMm, options.dpi, name.toStdString()};
  drawing.paint = [made](QPainter& painter, const QRectF& rect) {
    paintPanels(painter, rect, *made);
  };
  return {};
}

Status writeGatherSheets(const TomoDocument& document, const GatherSheetOptions& options,
                         const std::string& path, std::vector<std::string>& written,
                         const std::function<bool(std::size_t)>& progress) {
  written.clear();
  FigureFormat format{};
  if (Status status = figureFormatOf(path, format); !status.ok()) return status;
  if (Status status = check(document, options); !status.ok()) return status;
  const std::size_t sheets = gatherSheets(document, options);
  const auto prepare = [&](std::size_t sheet, FigureDrawing& drawing) {
    if (progress && !progress(sheet)) return Status::failure(Message::tr("it was stopped"));
    return prepareGatherSheet(document, options, sheet, drawing);
  };
  QByteArray bytes;
  FigureDrawing drawing;
  if (format == FigureFormat::kPdf) {
    Status status = prepareGatherSheet(document, options, 0, drawing);
    if (!status.ok()) return status;
    const auto paint = [&](std::size_t page, QPainter& painter, const QRectF& rect) {
      FigureDrawing one;
      Status made = prepare(page, one);
      if (made.ok()) one.paint(painter, rect);
      return made;
    };
    status = paintFigurePages(drawing.sheet, sheets, paint, bytes);
    return status.ok() ? write(path, bytes, written) : status;
  }
  for (std::size_t sheet = 0; sheet < sheets; ++sheet) {
    Status status = prepare(sheet, drawing);
    if (status.ok()) status = paintFigure(format, drawing.sheet, drawing.paint, bytes);
    if (status.ok()) status = write(numbered(path, sheet, sheets), bytes, written);
    if (!status.ok()) return status;
  }
  return {};
}

}  // namespace talvesk
