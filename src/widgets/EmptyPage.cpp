#include "widgets/EmptyPage.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace talvesk {
namespace {

void dress(QPushButton& button, const QAction& command) {
  static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
  button.setText(command.text().replace(mnemonic, QStringLiteral("\\1")));
  button.setToolTip(command.toolTip());
  button.setIcon(command.icon());
  button.setEnabled(command.isEnabled());
}

}  // namespace

CommandButtons::CommandButtons(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  row->addStretch(1);
  hide();
}

void CommandButtons::setCommands(const QList<QAction*>& commands) {
  if (commands == mCommands) return;
  mCommands = commands;
  qDeleteAll(findChildren<QPushButton*>());
  auto* row = static_cast<QHBoxLayout*>(layout());
  for (QAction* command : commands) {
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    dress(*button, *command);
    connect(command, &QAction::changed, button, [button, command] { dress(*button, *command); });
    connect(button, &QPushButton::clicked, command, &QAction::trigger);
    row->insertWidget(row->count() - 1, button);
  }
  setVisible(!commands.isEmpty());
}

EmptyPage::EmptyPage(QWidget* parent)
    : QWidget(parent), mLabel(new QLabel(this)), mButtons(new CommandButtons(this)) {
  mLabel->setAlignment(Qt::AlignCenter);
  mLabel->setWordWrap(true);
  mLabel->setMargin(16);
  auto* column = new QVBoxLayout(this);
  column->addStretch(1);
  column->addWidget(mLabel);
  column->addWidget(mButtons);
  column->addStretch(1);
}

}  // namespace talvesk
