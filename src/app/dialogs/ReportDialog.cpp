#include "app/dialogs/ReportDialog.h"

#include "app/MessageText.h"
#include "app/WaitCursor.h"
#include "figures/report/ReportPages.h"
#include "ui_ReportDialog.h"

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>

namespace talvesk {
namespace {

constexpr int kShownPages = 30;  ///< the rest is in the file
constexpr double kSheetInches = 8.5;
const QString kGroup = QStringLiteral("report");

/// The boxes of the dialog beside the parts that they stand for.
template <typename Form, typename Sections, typename Visit>
void forEachPart(Form& form, Sections& sections, Visit visit) {
  visit(*form.surveyBox, sections.survey);
  visit(*form.positionBox, sections.position);
  visit(*form.travelTimesBox, sections.travelTimes);
  visit(*form.inversionBox, sections.inversion);
  visit(*form.sectionBox, sections.section);
  visit(*form.raysBox, sections.rays);
  visit(*form.densityBox, sections.density);
  visit(*form.misfitBox, sections.misfit);
  visit(*form.refractionBox, sections.refraction);
  visit(*form.methodBox, sections.method);
}

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

ReportDialog::ReportDialog(const ReportOptions& options, Build build, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::ReportDialog>()),
      mOptions(options),
      mBuild(std::move(build)) {
  mUi->setupUi(this);
  mUi->titleEdit->setText(qt(options.title));
  mUi->clientEdit->setText(qt(options.client));
  mUi->siteEdit->setText(qt(options.site));
  mUi->authorEdit->setText(qt(options.author));
  mUi->dateEdit->setText(qt(options.date));
  mUi->notesEdit->setPlainText(qt(options.notes));
  mUi->paperCBox->setCurrentIndex(options.paper == ReportPaper::kLetter ? 1 : 0);
  ReportSections sections = options.sections;
  forEachPart(*mUi, sections, [this](QCheckBox& box, bool value) {
    box.setChecked(value);
    connect(&box, &QCheckBox::toggled, this, &ReportDialog::forgetPreview);
  });
  for (QLineEdit* edit : findChildren<QLineEdit*>()) {
    connect(edit, &QLineEdit::textEdited, this, &ReportDialog::forgetPreview);
  }
  connect(mUi->notesEdit, &QPlainTextEdit::textChanged, this, &ReportDialog::forgetPreview);
  connect(mUi->paperCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &ReportDialog::forgetPreview);
  connect(mUi->sectionBox, &QCheckBox::toggled, mUi->raysBox, &QCheckBox::setEnabled);
  connect(mUi->sectionBox, &QCheckBox::toggled, mUi->densityBox, &QCheckBox::setEnabled);
  connect(mUi->previewButton, &QPushButton::clicked, this, &ReportDialog::preview);
  connect(mUi->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
  fitIntoScreen();
}

ReportDialog::~ReportDialog() = default;

/// On a screen that is shorter than all of the fields they scroll, and the buttons stay in sight.
void ReportDialog::fitIntoScreen() {
  mUi->leftArea->setMinimumWidth(mUi->leftPane->minimumSizeHint().width() +
                                 mUi->leftArea->verticalScrollBar()->sizeHint().width());
  const QMargins margins = mUi->dialogLayout->contentsMargins();
  const int all = mUi->leftPane->sizeHint().height() + mUi->buttonBox->sizeHint().height() +
                  margins.top() + margins.bottom() + mUi->dialogLayout->spacing();
  resize(width(), std::min(all, screen()->availableGeometry().height() * 9 / 10));
}

ReportOptions ReportDialog::options() const {
  ReportOptions options = mOptions;
  options.title = mUi->titleEdit->text().toStdString();
  options.client = mUi->clientEdit->text().toStdString();
  options.site = mUi->siteEdit->text().toStdString();
  options.author = mUi->authorEdit->text().toStdString();
  options.date = mUi->dateEdit->text().toStdString();
  options.notes = mUi->notesEdit->toPlainText().toStdString();
  options.paper = mUi->paperCBox->currentIndex() == 1 ? ReportPaper::kLetter : ReportPaper::kA4;
  forEachPart(*mUi, options.sections,
              [](const QCheckBox& box, bool& value) { value = box.isChecked(); });
  return options;
}

void ReportDialog::forgetPreview() {
  delete mUi->previewArea->takeWidget();
  mUi->pagesLabel->clear();
}

void ReportDialog::preview() {
  forgetPreview();
  const WaitCursor waiting;
  ReportContent content;
  const Status status = mBuild(options(), content);
  if (status.ok()) {
    const ReportPages pages(content);
    auto* sheets = new QWidget;
    auto* column = new QVBoxLayout(sheets);
    const int room = mUi->previewArea->viewport()->width() -
                     mUi->previewArea->verticalScrollBar()->sizeHint().width();
    const double dpi = std::clamp((room - 30) / kSheetInches, 30.0, 120.0);
    for (int page = 0; page < std::min(pages.count(), kShownPages); ++page) {
      auto* sheet = new QLabel;
      sheet->setFrameStyle(QFrame::Box);
      sheet->setPixmap(QPixmap::fromImage(pages.image(page, dpi)));
      column->addWidget(sheet);
    }
    mUi->previewArea->setWidget(sheets);
    mUi->pagesLabel->setText(tr("%n page(s)", nullptr, pages.count()));
  } else {
    mUi->pagesLabel->setText(textOf(status.text()));
  }
}

void ReportDialog::remember(QSettings& settings) const {
  const ReportOptions now = options();
  settings.beginGroup(kGroup);
  settings.setValue(QStringLiteral("client"), qt(now.client));
  settings.setValue(QStringLiteral("author"), qt(now.author));
  settings.setValue(QStringLiteral("letter"), now.paper == ReportPaper::kLetter);
  forEachPart(*mUi, now.sections, [&settings](const QCheckBox& box, bool value) {
    settings.setValue(box.objectName(), value);
  });
  settings.endGroup();
}

void ReportDialog::recall(const QSettings& settings) {
  const auto value = [&settings](const QString& name, const QVariant& fallback) {
    return settings.value(kGroup + QLatin1Char('/') + name, fallback);
  };
  mUi->clientEdit->setText(value(QStringLiteral("client"), mUi->clientEdit->text()).toString());
  mUi->authorEdit->setText(value(QStringLiteral("author"), mUi->authorEdit->text()).toString());
  mUi->paperCBox->setCurrentIndex(value(QStringLiteral("letter"), false).toBool() ? 1 : 0);
  const ReportSections sections;
  forEachPart(*mUi, sections, [&value](QCheckBox& box, bool usual) {
    box.setChecked(value(box.objectName(), usual).toBool());
  });
}

}  // namespace talvesk
