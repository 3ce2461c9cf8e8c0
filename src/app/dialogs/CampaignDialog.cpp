#include "app/dialogs/CampaignDialog.h"

#include "app/ToolTips.h"
#include "ui_CampaignDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QSettings>
#include <utility>

namespace talvesk {
namespace {

template <typename Form, typename Visit>
void forEachText(Form& form, Visit visit) {
  visit(*form.titleEdit, "campaign/title");
  visit(*form.clientEdit, "campaign/client");
  visit(*form.siteEdit, "campaign/site");
  visit(*form.authorEdit, "campaign/author");
}

}  // namespace

CampaignDialog::CampaignDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::CampaignDialog>()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  connect(mUi->addButton, &QPushButton::clicked, this, [this] {
    if (addWanted) addWanted();
  });
  connect(mUi->removeButton, &QPushButton::clicked, this, &CampaignDialog::remove);
  connect(mUi->projectsList, &QListWidget::itemSelectionChanged, this, &CampaignDialog::refresh);
  refresh();
}

CampaignDialog::~CampaignDialog() = default;

void CampaignDialog::add(const QStringList& projects) {
  const QStringList there = this->projects();
  for (const QString& project : projects) {
    const QFileInfo file(project);
    if (there.contains(file.absoluteFilePath())) continue;
    auto* item = new QListWidgetItem(file.fileName(), mUi->projectsList);
    item->setData(Qt::UserRole, file.absoluteFilePath());
    item->setToolTip(QDir::toNativeSeparators(file.absoluteFilePath()));
  }
  refresh();
}

void CampaignDialog::remove() {
  qDeleteAll(mUi->projectsList->selectedItems());
  refresh();
}

QStringList CampaignDialog::projects() const {
  QStringList paths;
  for (int row = 0; row < mUi->projectsList->count(); ++row) {
    paths << mUi->projectsList->item(row)->data(Qt::UserRole).toString();
  }
  return paths;
}

void CampaignDialog::refresh() {
  mUi->removeButton->setEnabled(!mUi->projectsList->selectedItems().isEmpty());
  mUi->buttonBox->button(QDialogButtonBox::Save)->setEnabled(mUi->projectsList->count() > 0);
}

CampaignTexts CampaignDialog::texts() const {
  CampaignTexts texts;
  texts.title = mUi->titleEdit->text().toStdString();
  texts.client = mUi->clientEdit->text().toStdString();
  texts.site = mUi->siteEdit->text().toStdString();
  texts.author = mUi->authorEdit->text().toStdString();
  return texts;
}

void CampaignDialog::remember(QSettings& settings) const {
  forEachText(*mUi, [&settings](const QLineEdit& edit, const char* key) {
    settings.setValue(QLatin1String(key), edit.text());
  });
}

void CampaignDialog::recall(const QSettings& settings) {
  forEachText(*mUi, [&settings](QLineEdit& edit, const char* key) {
    edit.setText(settings.value(QLatin1String(key)).toString());
  });
}

}  // namespace talvesk
