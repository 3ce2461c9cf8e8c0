#include "app/dialogs/BlowPairDialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/WaitCursor.h"
#include "base/LengthUnit.h"
#include "io/ShotLoader.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "ui_BlowPairDialog.h"

#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kDotsPerInch = 96.0;
constexpr int kSoon = 80;  // milliseconds

}  // namespace

/// The figure as large as the widget.
class BlowPairDialog::Sheet : public QWidget {
 public:
  explicit Sheet(const BlowPairDialog& dialog) : mDialog(dialog) {
    setObjectName(QStringLiteral("pairSheet"));
    setMinimumSize(480, 260);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

  void redraw(const QString& whyNot) {
    mWhyNot = whyNot;
    mPicture = QPixmap();
    update();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    mPicture = QPixmap();
    QWidget::resizeEvent(event);
  }

  /// Figures are of paper: white in a dark window, too.
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (mDialog.hasPair() && mPicture.isNull()) draw();
    if (!mPicture.isNull()) return painter.drawPixmap(0, 0, mPicture);
    painter.drawText(rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                     mWhyNot);
  }

 private:
  void draw() {
    BlowPairLook look = mDialog.look();
    look.locale = QLocale();
    look.widthMm = width() * kMmPerInch / kDotsPerInch;
    look.heightMm = height() * kMmPerInch / kDotsPerInch;
    FigureDrawing drawing;
    const Status status = prepareBlowPair(mDialog.pair(), look, drawing);
    if (!status.ok()) {
      mWhyNot = textOf(status.text());
      return;
    }
    const double ratio = devicePixelRatioF();
    QImage image(size() * ratio, QImage::Format_RGB32);
    image.fill(Qt::white);
    setResolution(image, kDotsPerInch * ratio);
    QPainter painter(&image);
    drawing.paint(painter, QRectF(image.rect()));
    painter.end();
    mPicture = QPixmap::fromImage(image);
    mPicture.setDevicePixelRatio(ratio);
  }

  const BlowPairDialog& mDialog;
  QPixmap mPicture;  ///< of the present size; null before it is drawn
  QString mWhyNot;
};

BlowPairDialog::BlowPairDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::BlowPairDialog>()), mSheet(new Sheet(*this)) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  mSheet->setAccessibleName(tr("Traces of both shots, their difference and their sum"));
  mUi->sheetLayout->addWidget(mSheet);
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connectAll();
  redraw();
}

BlowPairDialog::~BlowPairDialog() = default;

void BlowPairDialog::connectAll() {
  connect(&mSoon, &QTimer::timeout, this, &BlowPairDialog::compute);
  const auto soon = [this] { mSoon.start(); };
  connect(mUi->firstCBox, QOverload<int>::of(&QComboBox::activated), this, [this] {
    const std::optional<Blow> first = chosen(*mUi->firstCBox, mBlows);
    const std::optional<Blow> other = first ? counterpartOf(mDocument, *first) : std::nullopt;
    if (other) choose(*mUi->secondCBox, *other);
    mSoon.start();
  });
  connect(mUi->secondCBox, QOverload<int>::of(&QComboBox::activated), this, soon);
  for (QCheckBox* box : {mUi->balancedBox, mUi->filteredBox}) {
    connect(box, &QCheckBox::toggled, this, soon);
  }
  for (QCheckBox* box :
       {mUi->overlayBox, mUi->differenceBox, mUi->sumBox, mUi->amplitudesBox, mUi->picksBox}) {
    connect(box, &QCheckBox::toggled, this, &BlowPairDialog::redraw);
  }
  connect(mUi->endSpin, QOverload<int>::of(&QSpinBox::valueChanged), this, &BlowPairDialog::redraw);
  connect(mUi->gainSpin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &BlowPairDialog::redraw);
  const auto ask = [](const std::function<void()>& wanted) {
    if (wanted) wanted();
  };
  connect(mUi->addButton, &QPushButton::clicked, this, [this, ask] { ask(addWanted); });
  connect(mUi->saveShotButton, &QPushButton::clicked, this, [this, ask] { ask(saveShotWanted); });
  connect(mUi->savePictureButton, &QPushButton::clicked, this,
          [this, ask] { ask(savePictureWanted); });
}

QString BlowPairDialog::nameOf(const Blow& blow) const {
  const TravelTime& record = mDocument.ttArray[blow.shot];
  const Recordings& recordings = *mDocument.recordings;
  const auto set = static_cast<std::size_t>(record.traceSetID);
  std::string file = shotFile(mDocument, set);
  if (blow.part == Blow::Part::kSX && set < recordings.filenames_SX.size()) {
    file = recordings.filenames_SX[set];
  }
  QStringList parts = {QFileInfo(QString::fromStdString(file)).fileName(),
                       QString::fromStdString(shotRecord(mDocument, set))};
  if (blow.part == Blow::Part::kDX) parts << tr("one sense", "of a pair of blows");
  if (blow.part == Blow::Part::kSX) parts << tr("other sense", "of a pair of blows");
  const QString place = QLocale().toString(shownLength(record.shotPos2d.x), 'f', 1);
  parts << tr("at %1 %2", "place, unit").arg(place, QLatin1String(lengthUnitName()));
  parts.removeAll(QString());
  return tr("Shot %1: %2").arg(blow.shot + 1).arg(parts.join(QStringLiteral(", ")));
}

std::optional<Blow> BlowPairDialog::chosen(const QComboBox& box, const std::vector<Blow>& blows) {
  const int index = box.currentIndex();
  if (index < 0 || static_cast<std::size_t>(index) >= blows.size()) return std::nullopt;
  return blows[static_cast<std::size_t>(index)];
}

void BlowPairDialog::choose(QComboBox& box, const Blow& blow) {
  const auto found = std::find(mBlows.begin(), mBlows.end(), blow);
  if (found != mBlows.end()) box.setCurrentIndex(static_cast<int>(found - mBlows.begin()));
}

void BlowPairDialog::setSurvey(const TomoDocument& document) {
  const std::optional<Blow> first = chosen(*mUi->firstCBox, mBlows);
  const std::optional<Blow> second = chosen(*mUi->secondCBox, mBlows);
  mDocument = document;
  mBlows = blowsOf(mDocument);
  fillChoosers();
  if (first) choose(*mUi->firstCBox, *first);
  if (second) choose(*mUi->secondCBox, *second);
  compute();
}

void BlowPairDialog::fillChoosers() {
  for (QComboBox* box : {mUi->firstCBox, mUi->secondCBox}) {
    box->clear();
    for (const Blow& blow : mBlows) box->addItem(nameOf(blow));
    box->setCurrentIndex(mBlows.empty() ? -1 : 0);
  }
}

void BlowPairDialog::chooseShot(std::size_t shot) {
  const auto found = std::find_if(mBlows.begin(), mBlows.end(),
                                  [shot](const Blow& blow) { return blow.shot == shot; });
  if (found == mBlows.end()) return;
  choose(*mUi->firstCBox, *found);
  if (const auto other = counterpartOf(mDocument, *found)) choose(*mUi->secondCBox, *other);
  compute();
}

void BlowPairDialog::compute() {
  mSoon.stop();
  const WaitCursor waiting;
  const std::optional<Blow> first = chosen(*mUi->firstCBox, mBlows);
  const std::optional<Blow> second = chosen(*mUi->secondCBox, mBlows);
  QString whyNot = tr("There are no two recordings to be compared.");
  mHasPair = false;
  mPair = BlowPair();
  if (first && second && mBlows.size() > 1) {
    BlowPairOptions options;
    options.balanced = mUi->balancedBox->isChecked();
    options.filtered = mUi->filteredBox->isChecked();
    const Status status = *first == *second
                              ? Status::failure(Message::tr("choose two different recordings"))
                              : layOver(mDocument, *first, *second, options, mPair);
    mHasPair = status.ok();
    if (!mHasPair) whyNot = textOf(status.text());
  }
  mSheet->redraw(whyNot);
  refreshNotices();
  refreshButtons();
}

/// How far apart the shots are, in the unit that is shown.
void BlowPairDialog::refreshNotices() {
  QString places =
      mHasPair ? textOf(mPair.withoutPlaces ? describeMatch(mPair) : describeShotPlaces(mPair))
               : QString();
  if (!places.isEmpty()) places[0] = places[0].toUpper();
  const bool doubtful = mHasPair && mPair.arePlacesDoubtful();
  mUi->placesLabel->setText(places);
  mUi->placesLabel->setStyleSheet(doubtful ? warningStyle(*mUi->placesLabel) : QString());
  mUi->placesLabel->setVisible(!places.isEmpty());
}

void BlowPairDialog::refreshButtons() {
  const bool sums = mHasPair && mPair.hasSum();
  const Status takes = checkTakesShots(mDocument);
  mUi->resultCBox->setEnabled(sums);
  mUi->addButton->setEnabled(sums && takes.ok());
  mUi->saveShotButton->setEnabled(sums);
  mUi->savePictureButton->setEnabled(mHasPair);
  QString reason;
  if (mHasPair && !sums) {
    reason = textOf(mPair.noSum);
  } else if (sums && !takes.ok()) {
    reason = tr("Not to be added, only saved as a shot file: %1").arg(textOf(takes.text()));
  }
  if (!reason.isEmpty()) reason[0] = reason[0].toUpper();
  mUi->reasonLabel->setText(reason);
  mUi->reasonLabel->setVisible(!reason.isEmpty());
}

void BlowPairDialog::redraw() {
  mSheet->redraw({});
}

BlowPairLook BlowPairDialog::look() const {
  BlowPairLook look;
  look.overlay = mUi->overlayBox->isChecked();
  look.difference = mUi->differenceBox->isChecked();
  look.sum = mUi->sumBox->isChecked();
  look.trueAmplitudes = mUi->amplitudesBox->isChecked();
  look.picks = mUi->picksBox->isChecked();
  look.gain = mUi->gainSpin->value();
  if (mUi->endSpin->value() > 0) look.endMs = mUi->endSpin->value();
  if (mHasPair) {
    look.firstName = nameOf(mPair.first);
    look.secondName = nameOf(mPair.second);
  }
  return look;
}

BlowPair::Set BlowPairDialog::wanted() const {
  return mUi->resultCBox->currentIndex() == 1 ? BlowPair::kSum : BlowPair::kDifference;
}

void BlowPairDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) mUi->retranslateUi(this);
  QDialog::changeEvent(event);
}

/// Return in a field takes its value, and no button answers for it.
void BlowPairDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget())) button->click();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace talvesk
