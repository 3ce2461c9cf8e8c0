#include "app/dialogs/CommandSearchDialog.h"

#include "ui_CommandSearchDialog.h"

#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr int kWidth = 620;  ///< pixels, where the window has them
constexpr int kHeight = 420;
constexpr int kEdge = 20;  ///< to the sides of the window
constexpr int kPadding = 6;
constexpr double kSmall = 0.75;   ///< opacity of what stands below a command
constexpr double kNotNow = 0.55;  ///< and of the name of one that cannot work

enum Role { kIndexRole = Qt::UserRole, kBelowRole, kShortcutRole, kWorksRole };

/// The command and its keys, and below them where it is, or why it cannot work.
class CommandDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, 2 * option.fontMetrics.height() + kPadding};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& given,
             const QModelIndex& index) const override {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QString text = option.text;
    option.text.clear();
    const bool works = index.data(kWorksRole).toBool();
    const bool marked = (option.state & QStyle::State_Selected) != 0;
    if (!works && !marked) option.state &= ~QStyle::State_Enabled;  // pales the picture
    const QWidget* list = option.widget;
    list->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, list);

    const QPalette::ColorRole role = marked ? QPalette::HighlightedText : QPalette::Text;
    // The colour of what is disabled is too pale for what somebody is to read.
    QColor strong = option.palette.color(QPalette::Active, role);
    QColor weak = strong;
    if (!works && !marked) strong.setAlphaF(kNotNow);
    weak.setAlphaF(kSmall);
    const QRect row = option.rect.adjusted(2 * kPadding + option.decorationSize.width(),
                                           kPadding / 2, -kPadding, -kPadding / 2);
    const QString keys = index.data(kShortcutRole).toString();
    const int keysWidth =
        keys.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(keys) + kPadding;
    painter->save();
    painter->setPen(weak);
    painter->drawText(row, Qt::AlignRight | Qt::AlignTop, keys);
    painter->setPen(strong);
    painter->drawText(row, Qt::AlignLeft | Qt::AlignTop,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, row.width() - keysWidth));
    painter->setPen(weak);
    painter->drawText(row, Qt::AlignLeft | Qt::AlignBottom,
                      option.fontMetrics.elidedText(index.data(kBelowRole).toString(),
                                                    Qt::ElideRight, row.width()));
    painter->restore();
  }
};

}  // namespace

CommandSearchDialog::CommandSearchDialog(std::vector<IndexedCommand> commands, QStringList recent,
                                         QWidget* parent)
    : QDialog(parent, Qt::Popup),
      mUi(std::make_unique<Ui::CommandSearchDialog>()),
      mCommands(std::move(commands)),
      mRecent(std::move(recent)) {
  mUi->setupUi(this);
  mUi->commandList->setItemDelegate(new CommandDelegate(mUi->commandList));
  mUi->typedEdit->installEventFilter(this);
  connect(mUi->typedEdit, &QLineEdit::textChanged, this, &CommandSearchDialog::find);
  connect(mUi->commandList, &QListWidget::currentRowChanged, this,
          &CommandSearchDialog::tellMarked);
  connect(mUi->commandList, &QListWidget::itemClicked, this, &CommandSearchDialog::takeMarked);
  const QSize room = parent->size() - QSize(2 * kEdge, 4 * kEdge);
  resize(QSize(kWidth, kHeight).boundedTo(room));
  move(parent->mapToGlobal(QPoint((parent->width() - width()) / 2, 2 * kEdge)));
  find();
  mUi->typedEdit->setFocus();
}

CommandSearchDialog::~CommandSearchDialog() = default;

void CommandSearchDialog::find() {
  mUi->commandList->clear();
  for (const std::size_t index : findCommands(mCommands, mUi->typedEdit->text(), mRecent)) {
    addRow(index);
  }
  const bool any = mUi->commandList->count() > 0;
  mUi->commandList->setVisible(any);
  mUi->noneLabel->setVisible(!any);
  mUi->commandList->setCurrentRow(any ? 0 : -1);
  tellMarked();
}

void CommandSearchDialog::addRow(std::size_t index) {
  const IndexedCommand& command = mCommands[index];
  auto* item = new QListWidgetItem(command.action->icon(), command.text, mUi->commandList);
  const bool works = command.whyNot.isEmpty();
  item->setData(kIndexRole, static_cast<int>(index));
  // Why comes first: where the menu is cut off nothing is lost.
  item->setData(
      kBelowRole,
      works
          ? command.path
          : tr("%1 (%2)", "why a command cannot work, its menu").arg(command.whyNot, command.path));
  item->setData(kShortcutRole, command.shortcut);
  item->setData(kWorksRole, works);
  QStringList said = {command.text, command.path};
  if (!command.shortcut.isEmpty()) said << command.shortcut;
  if (!works) said << tr("not now: %1").arg(command.whyNot);
  item->setData(Qt::AccessibleTextRole, said.join(QStringLiteral(", ")));
  item->setToolTip(command.toolTip);
}

const IndexedCommand* CommandSearchDialog::marked() const {
  const QListWidgetItem* item = mUi->commandList->currentItem();
  if (item == nullptr) return nullptr;
  return &mCommands[static_cast<std::size_t>(item->data(kIndexRole).toInt())];
}

void CommandSearchDialog::takeMarked() {
  const IndexedCommand* command = marked();
  if (command == nullptr || !command->whyNot.isEmpty()) return;
  mTaken = command;
  accept();
}

/// The keys stay in the field, so it is the field that says what is marked.
void CommandSearchDialog::tellMarked() {
  const QListWidgetItem* item = mUi->commandList->currentItem();
  mUi->typedEdit->setAccessibleDescription(
      item != nullptr ? item->data(Qt::AccessibleTextRole).toString() : mUi->noneLabel->text());
  QAccessibleEvent event(mUi->typedEdit, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void CommandSearchDialog::paintEvent(QPaintEvent*) {
  QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));  // a popup has no frame of the desktop
}

/// The field has the keys, and the list those that move within it.
bool CommandSearchDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QCoreApplication::sendEvent(mUi->commandList, event);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      takeMarked();
      return true;
    default:
      return QDialog::eventFilter(watched, event);
  }
}

}  // namespace talvesk
