#include "widgets/EmptyPage.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <algorithm>

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
  for (int i = 0; i < kMost; ++i) {
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    button->hide();
    row->addWidget(button);
    mButtons << button;
  }
  row->addStretch(1);
  hide();
}

void CommandButtons::setCommands(const QList<QAction*>& commands) {
  Q_ASSERT(commands.size() <= kMost);
  if (commands == mCommands) return;
  mCommands = commands;
  mWires = std::make_unique<QObject>();
  for (int i = 0; i < kMost; ++i) {
    QPushButton* button = mButtons[i];
    button->setVisible(i < commands.size());
    if (i >= commands.size()) continue;
    QAction* command = commands[i];
    dress(*button, *command);
    connect(command, &QAction::changed, mWires.get(),
            [button, command] { dress(*button, *command); });
    connect(button, &QPushButton::clicked, mWires.get(), [command] { command->trigger(); });
  }
  setVisible(!commands.isEmpty());
}

void CommandButtons::setTabOrderAfter(QWidget* before) {
  for (QPushButton* button : mButtons) {
    setTabOrder(before, button);
    before = button;
  }
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

void EmptyPage::setText(const QString& text) {
  const QString blank = QStringLiteral("\n\n");
  const auto html = [](const QString& tag, const QString& plain) {
    const QString inside = plain.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<%1>%2</%1>").arg(tag, inside);
  };
  const int end = text.indexOf(blank);
  QString heading = text.left(std::max(end, 0));
  if (heading.endsWith(QLatin1Char('.'))) heading.chop(1);
  const QString rest = end < 0 ? text : text.mid(end + blank.size());
  mLabel->setTextFormat(Qt::RichText);
  mLabel->setText((end < 0 ? QString() : html(QStringLiteral("h2"), heading)) +
                  html(QStringLiteral("p"), rest));
}

}  // namespace talvesk
