#include "app/GuideWindow.h"

#include "app/LineIcon.h"
#include "app/Messages.h"
#include "ui_GuideWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

const QString kFirstPage = QStringLiteral("index.html");
const QString kGeometryKey = QStringLiteral("guide/geometry");
const QString kTextSizeKey = QStringLiteral("guide/textSize");

constexpr int kTypingPause = 200;  // milliseconds
constexpr int kSearchWidth = 200;  // pixels
constexpr int kHitsWidth = 220;    // pixels
constexpr int kSmallestText = -4;  // points, relative to the desktop's
constexpr int kLargestText = 16;   // points
constexpr int kLeastText = 2;      // letters worth a search of all pages
constexpr int kFileRole = Qt::UserRole;

}  // namespace

GuideWindow::GuideWindow(std::function<QString(const QString&)> locate, QString stateFile)
    : mUi(std::make_unique<Ui::GuideWindow>()),
      mLocate(std::move(locate)),
      mStateFile(std::move(stateFile)) {
  mUi->setupUi(this);
  // The window that it helps with decides when the program ends.
  setAttribute(Qt::WA_QuitOnClose, false);
  addSearchField();
  connectActions();
  mUi->hitsList->hide();
  mUi->splitter->setStretchFactor(1, 1);
  mUi->splitter->setSizes({kHitsWidth, width() - kHitsWidth});
  retranslate();
  restore();
  QApplication::instance()->installEventFilter(this);
}

GuideWindow::~GuideWindow() = default;

void GuideWindow::addSearchField() {
  mSearch = new QLineEdit(this);
  mSearch->setObjectName(QStringLiteral("searchEdit"));
  mSearch->setClearButtonEnabled(true);
  mSearch->setMaximumWidth(kSearchWidth);
  mCount = new QLabel(this);
  mCount->setObjectName(QStringLiteral("countLabel"));
  mCount->setContentsMargins(6, 0, 6, 0);
  mUi->toolBar->insertWidget(mUi->actionFind_previous, mSearch);
  mUi->toolBar->insertWidget(mUi->actionFind_previous, mCount);
  mTyped.setSingleShot(true);
  mTyped.setInterval(kTypingPause);
  connect(mSearch, &QLineEdit::textChanged, &mTyped, QOverload<>::of(&QTimer::start));
  connect(&mTyped, &QTimer::timeout, this, &GuideWindow::search);
}

void GuideWindow::connectActions() {
  const std::pair<QAction*, const char*> icons[] = {
      {mUi->actionBack, ":/icons/back.png"},
      {mUi->actionForward, ":/icons/next.png"},
      {mUi->actionContents, ":/icons/guide.png"},
      {mUi->actionSmaller, ":/icons/text-smaller.png"},
      {mUi->actionLarger, ":/icons/text-larger.png"},
      {mUi->actionFind_previous, ":/icons/find-previous.png"},
      {mUi->actionFind_next, ":/icons/find-next.png"},
      {mUi->actionBrowser, ":/icons/globe.png"}};
  for (const auto& [action, icon] : icons) action->setIcon(lineIcon(QLatin1String(icon)));
  mUi->actionBack->setEnabled(false);
  mUi->actionForward->setEnabled(false);
  const auto resizeText = [this](int by) {
    const int size = mUi->browser->textSize() + by;
    mUi->browser->setTextSize(qBound(kSmallestText, size, kLargestText));
  };
  connect(mUi->actionSmaller, &QAction::triggered, this, [=] { resizeText(-1); });
  connect(mUi->actionLarger, &QAction::triggered, this, [=] { resizeText(1); });
  connect(mUi->actionContents, &QAction::triggered, this, [this] { open(kFirstPage); });
  connect(mUi->actionFind_previous, &QAction::triggered, this, [this] { goToMark(-1); });
  connect(mUi->actionFind_next, &QAction::triggered, this, [this] { goToMark(1); });
  connect(mUi->actionBrowser, &QAction::triggered, this, &GuideWindow::openInBrowser);
  connect(mSearch, &QLineEdit::returnPressed, mUi->actionFind_next, &QAction::trigger);
  const auto key = [this](const QKeySequence& keys, auto slot) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, slot);
  };
  key(Qt::Key_Escape, &QWidget::close);
  key(QKeySequence::Find, [this] {
    mSearch->setFocus(Qt::ShortcutFocusReason);
    mSearch->selectAll();
  });
  connect(mUi->browser, &GuideBrowser::sourceChanged, this, &GuideWindow::pageChanged);
  connect(mUi->hitsList, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0) return;
    mUi->browser->open(mUi->hitsList->item(row)->data(kFileRole).toString());
    goToMark(0);
  });
}

/// With its frame, which window managers do not see to when a window comes beside a dialog.
void GuideWindow::keepOnScreen() {
  const QRect there = screen()->availableGeometry();
  const QRect frame = frameGeometry();
  const int x = std::max(std::min(frame.x(), there.right() - frame.width()), there.left());
  const int y = std::max(std::min(frame.y(), there.bottom() - frame.height()), there.top());
  if (QPoint(x, y) != frame.topLeft()) move(x, y);
}

bool GuideWindow::open(const QString& page) {
  const QString file = mLocate(page);
  if (file.isEmpty()) return false;
  mUi->browser->open(file);
  show();
  keepOnScreen();
  followModalWindow();
  raise();
  activateWindow();
  mUi->browser->setFocus();
  return true;
}

/// A dialog that is asked for help keeps the user from all windows but its own: the guide becomes
/// one of them, as long as the dialog is there.
void GuideWindow::followModalWindow() {
  if (!isVisible() || windowHandle() == nullptr) return;
  const QWidget* modal = QApplication::activeModalWidget();
  windowHandle()->setTransientParent(modal != nullptr ? modal->windowHandle() : nullptr);
}

bool GuideWindow::eventFilter(QObject* watched, QEvent* event) {
  if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && isVisible() &&
      watched->isWidgetType() && static_cast<QWidget*>(watched)->isModal()) {
    QTimer::singleShot(0, this, &GuideWindow::followModalWindow);
  }
  return false;
}

void GuideWindow::pageChanged() {
  mMarks = mUi->browser->mark(mSearch->text());
  showCount(0);
}

void GuideWindow::search() {
  pageChanged();
  if (mMarks > 0) goToMark(0);
  showHits();
}

void GuideWindow::showHits() {
  const QSignalBlocker quiet(mUi->hitsList);
  mUi->hitsList->clear();
  const QString text = mSearch->text();
  const bool wanted = text.size() >= kLeastText;
  mUi->hitsList->setVisible(wanted);
  if (!wanted) return;
  for (const GuideHit& hit : searchGuide(mUi->browser->page(), text)) {
    auto* item = new QListWidgetItem(tr("%1 (%2)", "title of a page, number of places")
                                         .arg(hit.title, QLocale().toString(hit.count)),
                                     mUi->hitsList);
    item->setData(kFileRole, hit.file);
    if (hit.file == mUi->browser->page()) mUi->hitsList->setCurrentItem(item);
  }
  if (mUi->hitsList->count() > 0) return;
  auto* none = new QListWidgetItem(tr("Nothing found"), mUi->hitsList);
  none->setFlags(Qt::NoItemFlags);
}

void GuideWindow::goToMark(int step) {
  showCount(mUi->browser->goToMark(step));
}

/// \param number of the mark that the page was moved to, from 1; 0: none yet
void GuideWindow::showCount(int number) {
  mUi->actionFind_previous->setEnabled(mMarks > 0);
  mUi->actionFind_next->setEnabled(mMarks > 0);
  const QLocale locale;
  if (mSearch->text().isEmpty()) {
    mCount->clear();
  } else if (number == 0) {
    mCount->setText(locale.toString(mMarks));
  } else {
    mCount->setText(tr("%1 of %2").arg(locale.toString(number), locale.toString(mMarks)));
  }
}

void GuideWindow::openInBrowser() {
  const QString page = mUi->browser->page();
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(page))) return;
  showNote(this, tr("User guide"), tr("No program to show the user guide was found."),
           tr("You find it in %1").arg(page));
}

void GuideWindow::retranslate() {
  mUi->retranslateUi(this);
  mSearch->setPlaceholderText(tr("Search"));
  mSearch->setAccessibleName(tr("Search"));
  for (QAction* action : mUi->toolBar->actions()) {
    if (action->shortcut().isEmpty()) continue;
    action->setToolTip(QStringLiteral("%1 (%2)").arg(
        action->text(), action->shortcut().toString(QKeySequence::NativeText)));
  }
}

void GuideWindow::restore() {
  const QSettings state(mStateFile, QSettings::IniFormat);
  restoreGeometry(state.value(kGeometryKey).toByteArray());
  const int size = state.value(kTextSizeKey).toInt();
  if (size != 0) mUi->browser->setTextSize(qBound(kSmallestText, size, kLargestText));
}

void GuideWindow::remember() {
  QSettings state(mStateFile, QSettings::IniFormat);
  state.setValue(kGeometryKey, saveGeometry());
  state.setValue(kTextSizeKey, mUi->browser->textSize());
}

void GuideWindow::closeEvent(QCloseEvent* event) {
  remember();
  QMainWindow::closeEvent(event);
}

void GuideWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    retranslate();
    const QString page = mUi->browser->page();
    if (!page.isEmpty()) {
      mUi->browser->open(mLocate(QFileInfo(page).fileName()));
      showHits();
    }
  }
  QMainWindow::changeEvent(event);
}

}  // namespace talvesk
