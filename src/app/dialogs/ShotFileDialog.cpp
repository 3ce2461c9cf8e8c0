#include "app/dialogs/ShotFileDialog.h"

#include "app/MessageText.h"
#include "io/FileFormats.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace talvesk {

ShotFileDialog::ShotFileDialog(const QString& title, const QString& folder, QWidget* parent)
    : QFileDialog(parent, title, folder, dialogFilter(shotFileFilters())),
      mReader(new QComboBox(this)) {
  setOption(QFileDialog::DontUseNativeDialog);
  setAcceptMode(QFileDialog::AcceptOpen);
  setFileMode(QFileDialog::ExistingFiles);
  addReaderRow();
}

void ShotFileDialog::addReaderRow() {
  mReader->setObjectName(QStringLiteral("readerCBox"));
  mReader->addItem(tr("the program's rules"), static_cast<int>(ShotReader::kRules));
  mReader->addItem(tr("the standard"), static_cast<int>(ShotReader::kStandard));
  mReader->setToolTip(
      tr("The program's rules read shot files as this program always has. The standard reads what "
         "their content says, whatever their suffix: other sample formats and byte orders, scaled "
         "coordinates, delays, files of several shots."));
  auto* label = new QLabel(tr("&Read shot files by:"), this);
  label->setBuddy(mReader);
  if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(mReader, row, 1);
  }
  connect(mReader, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &ShotFileDialog::showFilesOfReader);
}

ShotReader ShotFileDialog::reader() const {
  return static_cast<ShotReader>(mReader->currentData().toInt());
}

/// By the standard no suffix counts.
void ShotFileDialog::showFilesOfReader() {
  const QStringList filters = nameFilters();
  selectNameFilter(reader() == ShotReader::kStandard ? filters.back() : filters.front());
}

}  // namespace talvesk
