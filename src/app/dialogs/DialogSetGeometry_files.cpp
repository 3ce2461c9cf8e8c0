#include "app/FileFolders.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/TableTexts.h"
#include "app/WaitCursor.h"
#include "app/dialogs/DialogSetGeometry.h"
#include "app/dialogs/GeometrySession.h"
#include "app/dialogs/GeometryTables.h"
#include "app/dialogs/GeometryTexts.h"
#include "app/dialogs/SelectCSVDelimiterDialog.h"
#include "base/Console.h"
#include "figures/ShownLength.h"
#include "io/ElevationTable.h"
#include "io/FileFormats.h"
#include "io/NamedPositions.h"
#include "io/SWavePairFile.h"
#include "model/GeometryCheck.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "ui_DialogSetGeometry.h"

#include <QCollator>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>
#include <ostream>

// The files of the geometry dialog: positions as delimited text, and the recordings of S-wave
// pairs.

namespace talvesk {

/// A file of positions that was read.
struct DialogSetGeometry::PositionsFile {
  QString name;
  PositionTable table;
  std::vector<Point2D> positions;
  bool cut = false;     ///< numbers ended at their decimal commas
  bool byName = false;  ///< its columns were told apart by their names
};

/// The positions of a file that has exactly one for each of `count` places; else why it has not.
QString DialogSetGeometry::takePositions(std::size_t count, const Status& read,
                                         PositionsFile& file) {
  if (!read.ok()) return textOf(read.text());
  if (file.table.records.size() != count) {
    const QString why =
        tr("Read with this separator the file has %1 lines of numbers; %2 are needed.")
            .arg(file.table.records.size())
            .arg(count);
    return (why + QLatin1Char(' ') + headingText(file.table.remarks)).trimmed();
  }
  return textOf(positionsOf(file.table, file.positions).text());
}

QString DialogSetGeometry::askForFile(bool save, const QString& filter) {
  if (!save) {
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open Geometry"), mFolders.toOpen(), filter);
    if (!file.isEmpty()) mFolders.opened(file);
    return file;
  }
  const QString chosen =
      QFileDialog::getSaveFileName(this, tr("Save Geometry"), mFolders.toSave(), filter);
  if (chosen.isEmpty()) return {};
  mFolders.saved(chosen);
  const QString file = QString::fromStdString(withCsvSuffix(chosen.toStdString()));
  // The dialog has asked about the name as it was chosen only.
  if (file != chosen && QFileInfo::exists(file) &&
      !askYesNo(this, tr("Save Geometry"), tr("%1 exists.").arg(QFileInfo(file).fileName()),
                tr("Do you want to replace it?"), false)) {
    return {};
  }
  return file;
}

/// A file with gaps could not be loaded again.
bool DialogSetGeometry::tellsOfGaps(bool shots) {
  for (const GeometryMistake& mistake : mSession->mistakes()) {
    const bool about = shots ? !mistake.shots.empty() : mistake.string == mSession->currentString();
    if (mistake.fault != GeometryFault::NoPosition || !about) continue;
    show(mistake);
    notice(mistakeText(mistake, geometry()), true);
    return true;
  }
  return false;
}

/// What was loaded, and what of it is not as the file has it.
void DialogSetGeometry::tellLoaded(const QString& text, const PositionsFile& file) {
  QStringList sentences;
  if (file.cut) {
    sentences << tr("Its numbers were cut at their decimal commas: they need points.");
  }
  if (file.byName) sentences << tr("It was read by the names of its columns.");
  if (file.table.remarks.skippedHeading) sentences << headingText(file.table.remarks);
  const QString rest = sentences.join(QLatin1Char(' '));
  notice(rest.isEmpty() ? text : text + QStringLiteral(". ") + rest, file.cut);
  warnOfZeros(this, file.name, file.table.remarks);
}

void DialogSetGeometry::saveGeophones() {
  if (tellsOfGaps(false)) return;
  const QString file = askForFile(true, tr("Geophones Geometry (*csv)"));
  if (file.isEmpty()) return;
  GeometryRecords records;
  for (const GeometryPlace& place : mSession->string()) records.push_back({place.x, place.z});
  const auto separator = SelectCSVDelimiterDialog::ask(this);
  if (!separator) return;
  if (!writeRecords(file.toStdString(), *separator, records).ok()) {
    showError(this, windowTitle(), tr("Error Message"), tr("Invalid geometry file."));
    return;
  }
  notice(tr("Geophones saved in %1").arg(QFileInfo(file).fileName()));
}

/// Asks for a file with one position for each place. False when the user gave up or the
/// file has others, which he is told.
bool DialogSetGeometry::askForPositions(const WantedPositions& wanted, const QString& invalid,
                                        PositionsFile& chosen) {
  const QString file = askForFile(false, tr("CSV format (*.csv)"));
  if (file.isEmpty()) return false;
  const GeometryFileLook look = lookAtGeometryFile(file.toStdString());
  const auto separator = SelectCSVDelimiterDialog::ask(this, look.separator);
  if (!separator) return false;
  chosen.name = QFileInfo(file).fileName();
  const Status status =
      readPositions(file.toStdString(), *separator, wanted, chosen.table, chosen.byName);
  chosen.cut = !chosen.byName && cutsNumbers(look, *separator);
  const QString why = takePositions(wanted.count, status, chosen);
  if (why.isEmpty()) return true;
  notice(why, true);
  showError(this, windowTitle(), tr("Error Message"),
            invalid + QString::number(chosen.table.records.size()));
  return false;
}

void DialogSetGeometry::loadGeophones() {
  PositionsFile file;
  const WantedPositions wanted = {PositionsOf::kGeophones, mSession->string().size(),
                                  static_cast<std::size_t>(mSession->currentString())};
  if (!askForPositions(wanted, tr("Invalid geometry file. "), file)) return;
  mSession->edit([&](SurveyGeometry& next) {
    GeophoneString& string = next.strings[static_cast<std::size_t>(mSession->currentString())];
    for (std::size_t i = 0; i < file.positions.size(); ++i) {
      string[i] = {file.positions[i].x, file.positions[i].z, true};
    }
  });
  tellLoaded(tr("Geophones loaded from %1").arg(file.name), file);
}

void DialogSetGeometry::saveShots() {
  if (tellsOfGaps(true)) return;
  const QString file = askForFile(true, tr("Geophones Geometry (*csv)"));
  if (file.isEmpty()) return;
  GeometryRecords records;
  std::vector<std::string> labels;
  for (const GeometryShot& shot : geometry().shots) {
    labels.push_back(kShotLabel + std::to_string(labels.size() + 1));
    records.push_back({shot.place.x, shot.place.z});
  }
  const auto separator = SelectCSVDelimiterDialog::ask(this);
  if (!separator) return;
  if (!writeLabelledRecords(file.toStdString(), *separator, labels, records).ok()) {
    showError(this, windowTitle(), tr("Error Message"),
              tr("Invalid shot file. ") + QString::number(0));
    return;
  }
  notice(tr("Shots saved in %1").arg(QFileInfo(file).fileName()));
}

void DialogSetGeometry::loadShots() {
  PositionsFile file;
  const WantedPositions wanted = {PositionsOf::kShots, geometry().shots.size(), 0};
  if (!askForPositions(wanted, tr("Invalid shot file. "), file)) return;
  console::out() << "LOADED\nTo be updated: " << file.positions.size() << '\n';
  mSession->edit([&](SurveyGeometry& next) {
    for (std::size_t i = 0; i < file.positions.size(); ++i) {
      console::out() << "Setting " << i + 1 << '\n';
      next.shots[i].place = {file.positions[i].x, file.positions[i].z, true};
    }
  });
  console::out().flush();
  tellLoaded(tr("Shots loaded from %1").arg(file.name), file);
}

void DialogSetGeometry::loadElevations(ElevationProfile::Course course) {
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Open Elevations"), mFolders.toOpen(),
      tr("Tables of distances and elevations (*.csv *.txt *.dat *.xyz *.tsv);;All Files (*)"));
  if (file.isEmpty()) return;
  mFolders.opened(file);
  std::vector<Point2D> points;
  const Status status =
      whileWaiting([&] { return readElevationTable(file.toStdString(), points); });
  if (!status.ok()) {
    showError(this, windowTitle(), tr("The elevations have not been taken."),
              textOf(status.text()));
    return;
  }
  const ElevationProfile profile(std::move(points), course);
  ElevationOutcome outcome;
  mSession->edit([&](SurveyGeometry& next) { outcome = layOnto(profile, next); });
  QString text = tr("%n elevation(s) taken from the table.", nullptr,
                    static_cast<int>(outcome.geophones + outcome.shots));
  if (outcome.beyond > 0) {
    text += QLatin1Char(' ') + tr("%n position(s) lie beyond its ends, %1 to %2, and got the "
                                  "elevation there.",
                                  nullptr, static_cast<int>(outcome.beyond))
                                   .arg(geometryLength(profile.firstX()))
                                   .arg(withLengthUnit(geometryLength(profile.lastX())));
  }
  notice(text, outcome.beyond > 0);
}

/// Picks without traces stay what they are: every record of a survey has traces, or none has.
bool DialogSetGeometry::takesPairs() const {
  return mDocument.ttArray.size() == mDocument.recordings->traceSets.size();
}

QStringList DialogSetGeometry::askForRecordings(const QString& title, bool several) {
  const QString filter = dialogFilter(shotFileFilters());
  QStringList files;
  if (several) {
    files = QFileDialog::getOpenFileNames(this, title, mFolders.toOpen(), filter);
  } else if (const QString file =
                 QFileDialog::getOpenFileName(this, title, mFolders.toOpen(), filter);
             !file.isEmpty()) {
    files << file;
  }
  // Shot 10 comes after shot 9.
  QCollator order;
  order.setNumericMode(true);
  std::sort(files.begin(), files.end(), order);
  if (!files.isEmpty()) mFolders.opened(files.front());
  return files;
}

void DialogSetGeometry::choosePairOfShot() {
  const int shot = currentShot();
  if (shot < 0 || !takesPairs()) return;
  const QStringList dx = askForRecordings(tr("Open DX File of Shot %1").arg(shot + 1), false);
  if (dx.isEmpty()) return;
  const QStringList sx = askForRecordings(tr("Open SX File of Shot %1").arg(shot + 1), false);
  if (sx.isEmpty()) return;
  auto pair = std::make_shared<SWavePair>();
  const Status status =
      readSWavePair(dx.front().toStdString(), sx.front().toStdString(), mState, *pair);
  if (!status.ok()) {
    showError(this, tr("Error occured"), tr("The files are not taken as an S-wave pair."),
              textOf(status.text()));
    return;
  }
  mSession->edit([&](SurveyGeometry& next) {
    GeometryShot& changed = next.shots[static_cast<std::size_t>(shot)];
    changed.file.clear();
    changed.fileDX = pair->fileDX;
    changed.fileSX = pair->fileSX;
    changed.traces = pair->traces.size();
    changed.pair = std::move(pair);
  });
}

void DialogSetGeometry::addPairs() {
  if (!takesPairs()) return;
  const QStringList dx = askForRecordings(tr("Open DX Files"), true);
  if (dx.isEmpty()) return;
  const QStringList sx = askForRecordings(tr("Open SX Files"), true);
  if (sx.isEmpty()) return;
  if (dx.size() != sx.size()) {
    showError(this, tr("Error occured"), tr("There must be as many SX files as DX files."),
              tr("%1 DX files and %2 SX files were chosen.").arg(dx.size()).arg(sx.size()));
    return;
  }
  SurveyGeometry next = geometry();
  const Status status = whileWaiting([&] {
    for (int i = 0; i < dx.size(); ++i) {
      auto pair = std::make_shared<SWavePair>();
      Status read = readSWavePair(dx[i].toStdString(), sx[i].toStdString(), mState, *pair);
      if (!read.ok()) return read;
      addPair(next, std::move(pair));
    }
    return Status();
  });
  if (!status.ok()) {
    showError(this, tr("Error occured"),
              tr("No shot was added: the files are not taken as S-wave pairs."),
              textOf(status.text()));
    return;
  }
  mSession->edit([&](SurveyGeometry& now) { now = std::move(next); });
  mUi->shotsTable->setCurrentIndex(mShots->index(static_cast<int>(geometry().shots.size()) - 1, 0));
  notice(tr("%n S-wave shot(s) added.", nullptr, dx.size()));
}

}  // namespace talvesk
