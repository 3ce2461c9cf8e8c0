#include "app/dialogs/ReadingsDialog.h"

#include "app/MessageText.h"
#include "ui_ReadingsDialog.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// Share of the screen, either way, that the dialog fills at most.
constexpr double kMostOfScreen = 0.92;
constexpr int kHighestTable = 170;  ///< pixels at first; the splitter gives it more

}  // namespace

ReadingsDialog::ReadingsDialog(std::vector<File> files, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::ReadingsDialog>()), mFiles(std::move(files)) {
  mUi->setupUi(this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  const auto answerBy = [this](QDialogButtonBox::ButtonRole role, const QString& text,
                               Answer answer) {
    QPushButton* button = mUi->buttonBox->addButton(text, role);
    connect(button, &QPushButton::clicked, this, [this, answer] {
      mAnswer = answer;
      accept();
    });
    return button;
  };
  QPushButton* standard = answerBy(QDialogButtonBox::AcceptRole,
                                   tr("Use the &standard for these files"), Answer::kStandard);
  standard->setObjectName(QStringLiteral("standardButton"));
  answerBy(QDialogButtonBox::DestructiveRole, tr("&Keep the program's rules"), Answer::kRules)
      ->setObjectName(QStringLiteral("rulesButton"));
  standard->setDefault(true);
  connect(mUi->filesTable, &QTableWidget::currentCellChanged, this, &ReadingsDialog::showFile);
  fillTable();
  standard->setFocus();
}

ReadingsDialog::~ReadingsDialog() = default;

void ReadingsDialog::fillTable() {
  QTableWidget& table = *mUi->filesTable;
  table.setRowCount(static_cast<int>(mFiles.size()));
  int row = 0;
  for (const File& file : mFiles) {
    const QString path = QString::fromStdString(file.byRules->outcome.path);
    auto* name = new QTableWidgetItem(QFileInfo(path).fileName());
    name->setToolTip(QStringLiteral("<qt>%1</qt>").arg(path.toHtmlEscaped()));
    name->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
    table.setItem(row, 0, name);
    table.setItem(row, 1,
                  new QTableWidgetItem(linesOf(file.fuller->losses).join(QLatin1Char('\n'))));
    ++row;
  }
  table.resizeColumnToContents(0);
  table.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table.setCurrentCell(0, 0);
  const int rows = table.verticalHeader()->length() + table.horizontalHeader()->sizeHint().height();
  const int high = std::min(rows + 2 * table.frameWidth(), kHighestTable);
  mUi->splitter->setSizes({high, height() - high});
}

void ReadingsDialog::showFile(int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= mFiles.size()) return;
  const File& file = mFiles[static_cast<std::size_t>(row)];
  mUi->rulesPanel->setReading(*file.byRules);
  mUi->standardPanel->setReading(file.fuller->byStandard);
}

ReadingsDialog::Answer ReadingsDialog::ask() {
  mAnswer = Answer::kCancel;
  return exec() == QDialog::Accepted ? mAnswer : Answer::kCancel;
}

}  // namespace talvesk
