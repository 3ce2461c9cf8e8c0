#include "app/presenters/TravelTimesPresenter.h"

#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/presenters/FileExport.h"
#include "app/presenters/ProjectPresenter.h"
#include "io/FileFormats.h"
#include "io/Survey.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/SurveyFacts.h"
#include "refraction/ShotArrivals.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <utility>

namespace talvesk {

void TravelTimesPresenter::import() {
  const QString file =
      QFileDialog::getOpenFileName(&mDesk.window, tr("Import TravelTimes"), mDesk.folders.toOpen(),
                                   dialogFilter(travelTimeFileFilters()));
  if (file.isEmpty()) return;
  mDesk.folders.opened(file);
  importFile(file);
}

void TravelTimesPresenter::importFile(const QString& file) {
  TravelTimeData times;
  ImportCost cost;
  TravelTimeReading reading;
  if (asksForTimeUnit(file.toStdString())) {
    reading.timeUnit = askForTimeUnit(file);
    if (!reading.timeUnit) return;
  }
  Status status = whileWaiting([&] {
    Status read = readTravelTimes(file.toStdString(), times, reading);
    if (!read.ok()) return read;
    fitToRecords(times, mDesk.document());
    return checkImport(times, mDesk.document(), cost);
  });
  std::vector<Message> warnings = times.warnings;
  if (status.ok()) {
    // An import replaces the picks at least.
    if (hasPicks(mDesk.document()) && !mProjects.mayLoseChanges()) return;
    Losses losses;
    losses.model = cost.model;
    losses.startingModel =
        cost.survey && (cost.model == ModelLoss::kGrid || mDesk.document().model->grid == nullptr);
    losses.interpretation = isInterpreted(mDesk.interpretation()) ||
                            (cost.survey && hasMarks(mDesk.interpretation().ttLayer));
    if (!mayLose(&mDesk.window, mDesk.document(), losses)) return;
    status =
        mDesk.session.apply(cost.survey ? Edit::kImportSurvey : Edit::kImport, [&](Survey& survey) {
          if (cost.survey) {
            survey.document.title.clear();
            survey.own = {};
          }
          return importTravelTimes(times, survey.document);
        });
  }
  if (!status.ok()) {
    mDesk.tellFailure(tr("Error while loading %1.").arg(QFileInfo(file).fileName()), status);
    return;
  }
  // The project on the disk is that of another survey: saving asks where to.
  if (cost.survey) mProjects.leaveFile();
  mDesk.showFresh(mDesk.shot.index() < 0 ? 0 : mDesk.shot.index());
  mDesk.tell(tr("Travel times of %n shot(s) imported.", nullptr,
                static_cast<int>(mDesk.document().ttArray.size())));
  if (!warnings.empty()) {
    showNote(&mDesk.window, tr("Warning"),
             tr("%1 was loaded with warnings.").arg(QFileInfo(file).fileName()),
             shortList(linesOf(warnings)));
  }
}

std::optional<TimeUnit> TravelTimesPresenter::askForTimeUnit(const QString& file) {
  const QStringList units = {tr("milliseconds"), tr("seconds")};
  bool answered = false;
  const QString unit = QInputDialog::getItem(
      &mDesk.window, tr("Import TravelTimes"),
      tr("%1 does not say in which unit its times are.").arg(QFileInfo(file).fileName()), units, 0,
      false, &answered);
  if (!answered) return std::nullopt;
  return unit == units.front() ? TimeUnit::kMilliseconds : TimeUnit::kSeconds;
}

void TravelTimesPresenter::exportTimes() {
  const QString file = askForExport(mDesk, tr("Save TravelTimeExchange"),
                                    dialogFilter(writtenTravelTimeFilters()), "otte");
  if (file.isEmpty()) return;
  std::vector<Message> losses;
  const Status status =
      writeTravelTimes(file.toStdString(), travelTimesOf(mDesk.document()), losses);
  if (!status.ok()) {
    mDesk.tellFailure(tr("The travel times have not been saved."), status);
    return;
  }
  mDesk.tell(tr("Travel times saved in %1").arg(file));
  if (losses.empty()) return;
  showNote(&mDesk.window, tr("Warning"),
           tr("%1 does not hold all of the survey.").arg(QFileInfo(file).fileName()),
           shortList(linesOf(losses)));
}

}  // namespace talvesk
