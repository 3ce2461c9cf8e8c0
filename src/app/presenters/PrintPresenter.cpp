#include "app/presenters/PrintPresenter.h"

#include "app/LayeredModel.h"
#include "app/PagePrinter.h"
#include "app/WaitCursor.h"
#include "app/presenters/DepthProfilePresenter.h"
#include "app/presenters/FileExport.h"
#include "figures/ProfileLines.h"
#include "figures/SectionFigure.h"
#include "figures/print/PrintFigures.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "view/RayLines.h"
#include "widgets/TravelTimePlot.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSettings>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// Places among the choices of what a tab shows.
enum Place { kSection, kCurves, kLayers, kTraces };

}  // namespace

SectionFigureOptions PrintPresenter::sectionLook() const {
  return sectionFigureOptions(mDesk.section(), mDesk.palettes().current(),
                              profileLines(mDesk.document(), mDesk.interpretation()));
}

PrintChoice PrintPresenter::section() const {
  PrintChoice choice;
  choice.name = tr("Section as it is shown");
  if (mDesk.document().model->grid == nullptr) choice.whyNot = tr("there is no section yet");
  choice.make = [this](double) { return printedSection(mDesk.document(), sectionLook()); };
  return choice;
}

PrintChoice PrintPresenter::curves() const {
  PrintChoice choice;
  choice.name = tr("Travel time curves");
  if (!hasPicks(mDesk.document())) choice.whyNot = tr("there are no picks yet");
  choice.make = [this](double) {
    TravelTimeFigureOptions options;
    options.computed = mDesk.ui.travelTimeCurves->showsComputed();
    options.errorBars = mDesk.ui.travelTimeCurves->showsErrorBars();
    if (mDesk.ui.travelTimeCurves->showsLayered()) {
      options.layered = mDesk.ui.travelTimeCurves->layered();
    }
    return printedCurves(mDesk.document(), options);
  };
  return choice;
}

PrintChoice PrintPresenter::layers() const {
  PrintChoice choice;
  choice.name = tr("Layered profile");
  if (mDesk.interpretation().refractData.cData.empty()) {
    choice.whyNot = tr("there is no layered profile yet");
  }
  choice.make = [this](double) {
    RefractionFigureOptions options;
    options.errors = mLayered.errors();
    return printedLayers(mDesk.document(), mDesk.interpretation(), options);
  };
  return choice;
}

PrintChoice PrintPresenter::traces() const {
  const auto& sets = mDesk.document().recordings->traceSets;
  const int shot = mDesk.shot.index();
  PrintChoice choice;
  choice.name = shot < 0 ? tr("Traces") : tr("Traces of shot %1").arg(shot + 1);
  if (shot < 0 || static_cast<std::size_t>(shot) >= sets.size() ||
      sets[static_cast<std::size_t>(shot)].empty()) {
    choice.whyNot = tr("no shot with traces is in view");
  }
  choice.make = [this, shot](double) {
    GatherFigureOptions options;
    options.filtered = mDesk.settings.showFiltered && mDesk.hasFilteredCopy(shot);
    options.errorBars = mDesk.settings.errorBars;
    options.manner = mDesk.ui.showTracesWidget->options().manner;
    return printedGather(mDesk.document(), static_cast<std::size_t>(shot), options);
  };
  return choice;
}

PrintChoice PrintPresenter::misfit() const {
  PrintChoice choice;
  choice.name = tr("Misfit of every iteration");
  const auto& run = mDesk.document().result->lastInversion;
  if (!run || run->history.empty()) choice.whyNot = tr("there is no inversion yet");
  choice.make = [this](double) {
    return printedMisfit(mDesk.document(), *mDesk.document().result->lastInversion);
  };
  return choice;
}

std::vector<PrintChoice> PrintPresenter::residuals(const ResidualTable& table) const {
  const std::pair<ResidualView, QString> views[] = {
      {ResidualView::kMap, tr("Residuals by shot and geophone")},
      {ResidualView::kOffset, tr("Residuals over the offset")},
      {ResidualView::kGroups, tr("Residuals of shots and of geophones")},
      {ResidualView::kSection, tr("Residuals along the rays")}};
  std::vector<PrintChoice> choices;
  for (const auto& [view, name] : views) {
    PrintChoice choice;
    choice.name = name;
    const bool rays = view != ResidualView::kSection || !rayOwners(mDesk.document()).empty();
    if (table.picks.empty() || !rays) choice.whyNot = tr("there is no inversion yet");
    choice.make = [this, &table, view = view](double) {
      return printedResiduals(mDesk.document(), table, view, sectionLook());
    };
    choices.push_back(std::move(choice));
  }
  return choices;
}

PrintChoice PrintPresenter::depthProfile(const DepthProfiles& section) const {
  PrintChoice choice;
  choice.name = tr("Depth profile");
  if (section.empty()) choice.whyNot = tr("there is no section yet");
  const double middle = 0.5 * (section.left() + section.right());
  const double at = mProfile.place().value_or(middle);
  const bool onIt = at >= section.left() && at <= section.right();
  choice.places = PrintChoice::Places{section.left(), section.right(), onIt ? at : middle};
  choice.make = [this, &section](double x) {
    return printedDepthProfile(mDesk.document(), section, x);
  };
  return choice;
}

std::vector<PrintChoice> PrintPresenter::choices(const Made& made) const {
  std::vector<PrintChoice> all = {section(), curves(), layers(), traces(), misfit()};
  for (PrintChoice& choice : residuals(made.residuals)) all.push_back(std::move(choice));
  all.push_back(depthProfile(made.section));
  PrintChoice elastic;
  elastic.name = tr("P and S");
  elastic.whyNot = tr("its own dialog prints it");
  all.push_back(std::move(elastic));
  return all;
}

std::size_t PrintPresenter::inView() const {
  const QWidget* tab = mDesk.ui.tabWidget->currentWidget();
  if (tab == mDesk.ui.tab_3) return kTraces;
  return tab == mDesk.ui.tab_2 ? kCurves : kSection;
}

void PrintPresenter::print() {
  const Made made = whileWaiting([this] {
    return Made{residualTableOf(mDesk.document()), DepthProfiles(mDesk.document())};
  });
  ask(choices(made), inView());
}

void PrintPresenter::printElastic(const ElasticLine& line, const ElasticFigureOptions& options) {
  PrintChoice choice;
  choice.name = tr("P and S");
  choice.make = [&line, &options](double) { return printedElastic(line, options); };
  ask({std::move(choice)}, 0);
}

void PrintPresenter::ask(std::vector<PrintChoice> choices, std::size_t first) {
  PrintDialog dialog(std::move(choices), first, &mDesk.window);
  QSettings remembered(mDesk.windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  if (mScale) dialog.setScale(*mScale);
  dialog.setPrinters(!QPrinterInfo::availablePrinterNames().isEmpty());
  dialog.printWanted = [this](const PrintPages& pages) { toPrinter(pages); };
  dialog.pdfWanted = [this](const PrintPages& pages) { toPdf(pages); };
  dialog.exec();
  dialog.remember(remembered);
  mScale = dialog.chosenScale();
}

void PrintPresenter::toPrinter(const PrintPages& pages) {
  QPrinter printer(QPrinter::HighResolution);
  setUpPrinter(printer, pages);
  QPrintDialog dialog(&printer, &mDesk.window);
  dialog.setMinMax(1, static_cast<int>(pages.count()));
  if (dialog.exec() != QDialog::Accepted) return;
  PrintedSheets sheets;
  const Status status = whileWaiting([&] { return printPages(printer, pages, &sheets); });
  if (!status.ok()) {
    return mDesk.tellFailure(
        sheets.sent == 0
            ? tr("Nothing has been printed.")
            : tr("The printer failed after %1 of %2 sheets.").arg(sheets.sent).arg(sheets.wanted),
        status);
  }
  mDesk.tell(tr("Sent to %1.").arg(printer.printerName()));
}

void PrintPresenter::toPdf(const PrintPages& pages) {
  const QString file =
      askForExport(mDesk, tr("Save sheets as PDF"), tr("PDF document (*.pdf)"), "pdf");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) { return writePrint({pages}, path); });
}

}  // namespace talvesk
