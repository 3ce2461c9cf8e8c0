#include "app/dialogs/SurveyedPositionsDialog.h"

#include "app/LengthText.h"
#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/SurveyedPointsTable.h"
#include "model/GeoTransformer.h"
#include "model/TomoDocument.h"
#include "ui_SurveyedPositionsDialog.h"

#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;  ///< its frame needs some of it, too
constexpr std::size_t kPreviewRows = 50;
constexpr int kRowPadding = 6;  ///< pixels
constexpr std::size_t kNone = SurveyedColumns::kNone;

std::size_t chosenColumn(const QComboBox& box) {
  return box.currentIndex() <= 0 ? kNone : static_cast<std::size_t>(box.currentIndex() - 1);
}

QString length(double metres) {
  return lengthWithUnit(metres, 2);
}

}  // namespace

SurveyedPositionsDialog::SurveyedPositionsDialog(const TomoDocument& document, bool interpreted,
                                                 QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::SurveyedPositionsDialog>()),
      mDocument(document),
      mInterpreted(interpreted),
      mBefore(geometryOf(document)),
      mPoints(new SurveyedPointsTable(this)) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mUi->pointsTable->setModel(mPoints);
  const int rowHeight = fontMetrics().height() + kRowPadding;
  for (QTableView* table : {mUi->pointsTable, static_cast<QTableView*>(mUi->previewTable)}) {
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(rowHeight);
    table->verticalHeader()->setDefaultSectionSize(rowHeight);
  }
  mUi->pointsTable->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  mUi->mapPlan->setAxes(LinePlanAxes::kMap);
  mUi->offsetsPlan->setAxes(LinePlanAxes::kOffset);
  setUpChoices();
  connectChoices();
}

SurveyedPositionsDialog::~SurveyedPositionsDialog() = default;

void SurveyedPositionsDialog::setUpChoices() {
  mUi->separatorBox->addItem(tr("as in the table"), 0);
  mUi->separatorBox->addItem(tr("tab"), '\t');
  mUi->separatorBox->addItem(tr("semicolon"), ';');
  mUi->separatorBox->addItem(tr("comma"), ',');
  mUi->separatorBox->addItem(tr("blank"), ' ');
  mUi->degreesBox->addItems({tr("Easting, northing"), tr("Longitude, latitude")});
  // In the order of their enumerations.
  mUi->shapeBox->addItems({tr("Straight, fitted to the geophones"),
                           tr("Straight, from the first geophone to the last one"),
                           tr("Bent, from geophone to geophone")});
  mUi->lengthBox->addItems({tr("Horizontal, as on the map"), tr("Along the ground, on slopes")});
  mUi->stationsBox->addItems({tr("numbers of geophones and shots, from 1"),
                              tr("without a meaning: rows are in order"),
                              tr("distances along the line as it is now")});
  if (mDocument.map->geoCoord_isSet && mDocument.map->geoCoord.CRS > 0) {
    mUi->epsgEdit->setText(QString::number(mDocument.map->geoCoord.CRS));
  }
}

void SurveyedPositionsDialog::connectChoices() {
  const auto activated = QOverload<int>::of(&QComboBox::activated);
  connect(mUi->fileButton, &QPushButton::clicked, this, &SurveyedPositionsDialog::otherTableWanted);
  connect(mUi->separatorBox, activated, this, &SurveyedPositionsDialog::chooseSeparator);
  for (QComboBox* box : {mUi->degreesBox, mUi->stationBox, mUi->kindBox, mUi->eastBox,
                         mUi->northBox, mUi->elevationBox}) {
    connect(box, activated, this, &SurveyedPositionsDialog::chooseColumns);
  }
  connect(mUi->stationsBox, activated, this, [this] { mStationsChosen = true; });
  for (QComboBox* box : {mUi->shapeBox, mUi->lengthBox, mUi->stationsBox}) {
    connect(box, activated, this, &SurveyedPositionsDialog::refresh);
  }
  for (QLineEdit* edit : {mUi->epsgEdit, mUi->startEdit}) {
    connect(edit, &QLineEdit::textChanged, this, &SurveyedPositionsDialog::refresh);
  }
  connect(mUi->otherEndCheck, &QCheckBox::toggled, this, &SurveyedPositionsDialog::refresh);
  for (LinePlan* plan : {mUi->mapPlan, mUi->offsetsPlan}) {
    connect(plan, &LinePlan::geophoneClicked, this,
            [this](int, int geophone) { selectPoint(static_cast<std::size_t>(geophone)); });
    connect(plan, &LinePlan::shotClicked, this, [this](int shot) {
      selectPoint(mOutcome->points.size() - mBefore.shots.size() + static_cast<std::size_t>(shot));
    });
  }
  connect(mUi->findingsList, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const QVariant point = item->data(Qt::UserRole);
    if (point.isValid()) selectPoint(point.toUInt());
  });
}

void SurveyedPositionsDialog::setTable(SurveyedTable table, const QString& name) {
  mTable = std::move(table);
  mStationsChosen = false;
  mUi->fileLabel->setText(name);
  mUi->separatorBox->setCurrentIndex(0);
  showColumns();
  refresh();
}

/// The columns that there are, and those that the table proposes.
void SurveyedPositionsDialog::showColumns() {
  const SurveyedColumns& proposed = mTable.proposed();
  const std::pair<QComboBox*, std::size_t> boxes[] = {{mUi->stationBox, proposed.station},
                                                      {mUi->kindBox, proposed.kind},
                                                      {mUi->eastBox, proposed.east},
                                                      {mUi->northBox, proposed.north},
                                                      {mUi->elevationBox, proposed.elevation}};
  for (const auto& [box, column] : boxes) {
    box->clear();
    box->addItem(tr("none", "column of a table"));
    for (std::size_t i = 0; i < mTable.columns().size(); ++i) {
      const QString number = QString::number(i + 1);
      const QString name = QString::fromStdString(mTable.columns()[i]);
      box->addItem(name.isEmpty() ? tr("column %1").arg(number)
                                  : tr("%1: %2", "column, name").arg(number, name));
    }
    box->setCurrentIndex(column == kNone ? 0 : static_cast<int>(column) + 1);
  }
  mUi->degreesBox->setCurrentIndex(proposed.degrees ? 1 : 0);
  showPreview();
}

void SurveyedPositionsDialog::showPreview() {
  const bool degrees = mUi->degreesBox->currentIndex() == 1;
  mUi->eastLabel->setText(degrees ? tr("Longi&tude") : tr("Eas&ting"));
  mUi->northLabel->setText(degrees ? tr("Latit&ude") : tr("No&rthing"));
  const auto rows = mTable.firstRows(kPreviewRows);
  QTableWidget& preview = *mUi->previewTable;
  preview.clear();
  preview.setRowCount(static_cast<int>(rows.size()));
  preview.setColumnCount(static_cast<int>(mTable.columns().size()));
  for (int c = 0; c < preview.columnCount(); ++c) {
    const QString name = QString::fromStdString(mTable.columns()[static_cast<std::size_t>(c)]);
    preview.setHorizontalHeaderItem(
        c, new QTableWidgetItem(name.isEmpty() ? QString::number(c + 1) : name));
    for (int r = 0; r < preview.rowCount(); ++r) {
      const auto& field = rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
      preview.setItem(r, c, new QTableWidgetItem(QString::fromStdString(field)));
    }
  }
  preview.resizeColumnsToContents();
}

void SurveyedPositionsDialog::chooseSeparator() {
  mTable.separateBy(static_cast<char>(mUi->separatorBox->currentData().toInt()));
  showColumns();
  refresh();
}

void SurveyedPositionsDialog::chooseColumns() {
  showPreview();
  refresh();
}

SurveyedColumns SurveyedPositionsDialog::columns() const {
  SurveyedColumns columns;
  columns.station = chosenColumn(*mUi->stationBox);
  columns.kind = chosenColumn(*mUi->kindBox);
  columns.east = chosenColumn(*mUi->eastBox);
  columns.north = chosenColumn(*mUi->northBox);
  columns.elevation = chosenColumn(*mUi->elevationBox);
  columns.degrees = mUi->degreesBox->currentIndex() == 1;
  return columns;
}

/// None, and says so, where what was typed is no number.
std::optional<SurveyedOptions> SurveyedPositionsDialog::options() {
  SurveyedOptions options;
  options.shape = static_cast<LineShape>(mUi->shapeBox->currentIndex());
  options.length = static_cast<LengthAlong>(mUi->lengthBox->currentIndex());
  options.stations = static_cast<StationsBy>(mUi->stationsBox->currentIndex());
  options.fromOtherEnd = mUi->otherEndCheck->isChecked();
  if (!mUi->startEdit->text().trimmed().isEmpty()) {
    options.start = lengthFrom(mUi->startEdit->text());
    if (!options.start) return std::nullopt;
  }
  QString code = mUi->epsgEdit->text().trimmed();
  if (code.startsWith(QLatin1String("EPSG:"), Qt::CaseInsensitive)) code.remove(0, 5);
  bool isNumber = code.isEmpty();
  if (!isNumber) options.epsg = QLocale::c().toInt(code.trimmed(), &isNumber);
  if (!isNumber || options.epsg < 0) return std::nullopt;
  return options;
}

Status SurveyedPositionsDialog::place() {
  std::optional<SurveyedOptions> wanted = options();
  if (!wanted) {
    return Status::failure(
        Message::tr("the first distance must be a number, and the EPSG code a whole number"));
  }
  Status status = mTable.read(columns(), wanted->epsg, mReading);
  if (!status.ok()) return status;
  wanted->epsg = mReading.epsg;
  if (!mStationsChosen) {
    wanted->stations = proposeStations(mReading.rows, mBefore);
    mUi->stationsBox->setCurrentIndex(static_cast<int>(wanted->stations));
  }
  SurveyedOutcome outcome;
  status = placeSurveyed(mReading.rows, *wanted, mBefore, outcome);
  if (status.ok()) mOutcome = std::move(outcome);
  return status;
}

void SurveyedPositionsDialog::refresh() {
  mOutcome.reset();
  mReading = {};
  const Status status = place();
  const bool good = mOutcome.has_value();
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(good);
  mUi->tabs->setEnabled(good);
  mUi->summaryLabel->setStyleSheet(good ? QString() : warningStyle(*mUi->summaryLabel));
  mUi->summaryLabel->setText(good ? summary() : textOf(status.text()));
  mUi->systemLabel->setText(systemText());
  mUi->mapLabel->setText(good ? mapText() : QString());
  showOutcome();
}

void SurveyedPositionsDialog::showOutcome() {
  std::vector<std::size_t> doubtful;
  if (mOutcome) {
    for (const SurveyedFinding& finding : mOutcome->findings) {
      doubtful.insert(doubtful.end(), finding.points.begin(), finding.points.end());
    }
    mPoints->show(mOutcome->points, mReading.rows, doubtful);
  } else {
    mPoints->show({}, {}, {});
  }
  showPlans(doubtful);
  showFindings();
}

void SurveyedPositionsDialog::showPlans(const std::vector<std::size_t>& doubtful) {
  LinePlanScene map;
  LinePlanScene offsets;
  map.strings.resize(1);
  offsets.strings.resize(1);
  map.currentString = offsets.currentString = 0;
  if (mOutcome) {
    const MapPoint origin = mOutcome->axis.corners().front();
    const auto onMap = [&](const MapPoint& place) {
      return Point2D{place.easting - origin.easting, place.northing - origin.northing};
    };
    for (const SurveyedPoint& point : mOutcome->points) {
      Point2D place = {std::nan(""), std::nan("")};
      if (point.row != SurveyedPoint::kNoRow) place = onMap(mReading.rows[point.row].place);
      (point.shot ? map.shots : map.strings[0]).push_back(place);
      (point.shot ? offsets.shots : offsets.strings[0]).push_back({point.after.x, point.across});
    }
    const std::size_t geophones = map.strings[0].size();
    for (const std::size_t i : doubtful) {
      const bool shot = i >= geophones;
      map.mistakes.push_back(shot ? map.shots[i - geophones] : map.strings[0][i]);
      offsets.mistakes.push_back(shot ? offsets.shots[i - geophones] : offsets.strings[0][i]);
    }
    for (const MapPoint& corner : mOutcome->axis.corners()) map.axis.push_back(onMap(corner));
    for (const Point2D& place : offsets.strings[0]) {
      if (std::isfinite(place.z)) offsets.axis.push_back({place.x, 0.0});
    }
  }
  mUi->mapPlan->setScene(std::move(map));
  mUi->offsetsPlan->setScene(std::move(offsets));
}

void SurveyedPositionsDialog::showFindings() {
  QListWidget& list = *mUi->findingsList;
  list.clear();
  const auto add = [&](const QString& text) {
    return new QListWidgetItem(style()->standardIcon(QStyle::SP_MessageBoxWarning), text, &list);
  };
  if (mOutcome) {
    for (const SurveyedFinding& finding : mOutcome->findings) {
      QListWidgetItem* item = add(textOf(describe(finding, *mOutcome, mReading.rows)));
      if (!finding.points.empty()) {
        item->setData(Qt::UserRole, static_cast<unsigned>(finding.points.front()));
      }
    }
    if (const int without = static_cast<int>(mReading.without.size()); without > 0) {
      add(tr("%n row(s) of the table have no position and are not used.", nullptr, without));
    }
  }
  list.setVisible(list.count() > 0);
}

QString SurveyedPositionsDialog::summary() const {
  std::size_t surveyed[2] = {0, 0};
  std::size_t all[2] = {0, 0};
  const SurveyedPoint* farthest = nullptr;
  for (const SurveyedPoint& point : mOutcome->points) {
    ++all[point.shot ? 1 : 0];
    if (point.row == SurveyedPoint::kNoRow) continue;
    ++surveyed[point.shot ? 1 : 0];
    const bool farther =
        farthest == nullptr || std::fabs(point.across) > std::fabs(farthest->across);
    if (!point.shot && farther) farthest = &point;
  }
  return tr("With a row: %1 of %2 geophones, %3 of %4 shots. Geophones stand %5 across the line "
            "(RMS), at most %6 (%7); their spacing is %8.")
      .arg(surveyed[0])
      .arg(all[0])
      .arg(surveyed[1])
      .arg(all[1])
      .arg(length(mOutcome->rmsAcross), length(std::fabs(farthest->across)), nameOf(*farthest),
           length(mOutcome->spacing));
}

/// The reference system that easting and northing are in, and where that is from.
QString SurveyedPositionsDialog::systemText() const {
  if (mReading.epsg <= 0) return tr("No reference system");
  const QString name = QString::fromStdString(GeoTransformer(mReading.epsg).systemName());
  const bool typed = !mUi->epsgEdit->text().trimmed().isEmpty();
  const QString system = tr("EPSG:%1, %2").arg(mReading.epsg).arg(name);
  return typed ? system : tr("%1: the zone of the first place").arg(system);
}

QString SurveyedPositionsDialog::mapText() const {
  const std::optional<MapCourse>& map = mOutcome->map;
  if (!map) {
    return mDocument.map->geoCoord_isSet
               ? tr("Without an EPSG code the place of the line on the map stays as it is now, "
                    "where it may not fit any more.")
               : tr("Without an EPSG code the line gets no place on the map.");
  }
  if (map->vertices.empty()) {
    return tr(
        "On OK the line lies on the map from the first geophone to the last one, on the line "
        "that is shown.");
  }
  return tr(
      "On OK the line lies on the map along %n point(s), and KML follows it. Reports and the "
      "dialog of geographic coordinates give its two ends.",
      nullptr, static_cast<int>(map->vertices.size()));
}

void SurveyedPositionsDialog::selectPoint(std::size_t point) {
  mUi->tabs->setCurrentWidget(mUi->pointsPage);
  mUi->pointsTable->selectRow(static_cast<int>(point));
  mUi->pointsTable->scrollTo(mPoints->index(static_cast<int>(point), 0));
  mUi->pointsTable->setFocus();
}

void SurveyedPositionsDialog::accept() {
  if (!mOutcome) return;
  if (geometryDiffers(mOutcome->geometry, mDocument)) {
    Losses losses;
    losses.model = ModelLoss::kGrid;
    losses.interpretation = mInterpreted;
    if (!mayLose(this, mDocument, losses)) return;
  }
  QDialog::accept();
}

}  // namespace talvesk
