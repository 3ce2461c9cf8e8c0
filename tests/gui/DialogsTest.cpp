#include "gui/DialogTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace talvesk {
namespace {

class Dialogs : public testing::DialogTest {};

bool takesTab(const QWidget& widget) {
  const auto* radio = qobject_cast<const QRadioButton*>(&widget);
  return widget.isVisible() && widget.isEnabled() && !widget.isWindow() &&
         (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.focusProxy() == nullptr &&
         (radio == nullptr || radio->isChecked());
}

std::string nameOf(const QWidget* widget) {
  if (widget == nullptr) return "nothing";
  const QString name = widget->objectName();
  return (name.isEmpty() ? QLatin1String(widget->metaObject()->className()) : name).toStdString();
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// Whether the way from one widget to the next goes back: up within a column, left within a row.
bool goesBack(const QWidget& from, const QWidget& to) {
  if (from.isAncestorOf(&to) || to.isAncestorOf(&from)) return false;
  // The buttons that end a dialog come last, wherever they stand.
  if (qobject_cast<const QDialogButtonBox*>(to.parentWidget()) != nullptr) return false;
  const QRect a = placeOf(from);
  const QRect b = placeOf(to);
  const int across = std::min(a.right(), b.right()) - std::max(a.left(), b.left());
  const int down = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
  const bool up = across > 0 && b.bottom() < a.top() + 2;
  const bool left = 2 * down > std::min(a.height(), b.height()) && b.right() < a.left() + 2;
  return up || left;
}

std::string namesOf(const QList<QWidget*>& widgets) {
  std::string names;
  for (const QWidget* widget : widgets) names += " " + nameOf(widget);
  return names;
}

/// The widgets that the Tab key visits, from the first one that it visits twice back to itself.
QList<QWidget*> tabRound(QDialog& dialog) {
  constexpr int kMost = 200;
  QList<QWidget*> visited;
  for (int i = 0; i < kMost; ++i) {
    QWidget* focus = QApplication::focusWidget();
    const int before = visited.indexOf(focus);
    if (before >= 0) return visited.mid(before);
    visited << focus;
    QTest::keyClick(focus != nullptr ? focus : &dialog, Qt::Key_Tab);
  }
  return visited;
}

TEST_F(Dialogs, areWalkedThroughByTheTabKeyInTheOrderThatOneReads) {
  openSurvey();
  for (const Case& each : cases()) {
    const auto dialog = each.make();
    show(*dialog);
    onEveryPage(*dialog, [&](int page) {
      SCOPED_TRACE(each.name + std::string(" page ") + std::to_string(page));
      const QList<QWidget*> round = tabRound(*dialog);
      for (QWidget* widget : dialog->findChildren<QWidget*>()) {
        EXPECT_TRUE(!takesTab(*widget) || round.contains(widget))
            << nameOf(widget) << " is not among" << namesOf(round);
      }
      int back = 0;  // the way from the last to the first has to be one
      std::string way;
      for (int i = 0; i < round.size(); ++i) {
        const QWidget* next = round[(i + 1) % round.size()];
        if (round[i] == nullptr || next == nullptr || !goesBack(*round[i], *next)) continue;
        ++back;
        way += nameOf(round[i]) + " -> " + nameOf(next) + "; ";
      }
      EXPECT_LE(back, 1) << way;
    });
  }
}

/// The letter after the ampersand; none without one.
QString mnemonicOf(const QString& text) {
  const QKeySequence key = QKeySequence::mnemonic(text);
  return key.isEmpty() ? QString() : key.toString();
}

TEST_F(Dialogs, shareNoMnemonicInAnyLanguage) {
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    openSurvey();
    for (const Case& each : cases()) {
      const auto dialog = each.make();
      show(*dialog);
      onEveryPage(*dialog, [&](int page) {
        QMap<QString, QString> owners;
        const auto take = [&](const QWidget& widget, const QString& text) {
          const QString key = widget.isVisible() ? mnemonicOf(text) : QString();
          if (key.isEmpty()) return;
          EXPECT_FALSE(owners.contains(key))
              << language << " " << each.name << " page " << page << ": "
              << owners[key].toStdString() << " and " << text.toStdString();
          owners[key] = text;
        };
        for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
          take(*button, button->text());
        }
        for (const auto* label : dialog->findChildren<QLabel*>()) {
          if (label->buddy() != nullptr) take(*label, label->text());
        }
        for (const auto* box : dialog->findChildren<QGroupBox*>()) take(*box, box->title());
        for (const auto* bar : dialog->findChildren<QTabBar*>()) {
          for (int i = 0; i < bar->count(); ++i) {
            if (bar->isTabVisible(i)) take(*bar, bar->tabText(i));
          }
        }
      });
    }
  }
}

/// The button that Return presses from a field; none where it only ends the field.
const QPushButton* pressedByReturn(const QDialog& dialog) {
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->window() == &dialog && button->isDefault()) return button;
  }
  return nullptr;
}

TEST_F(Dialogs, neverOpenTheGuideByReturnUnlessTheKeyboardIsOnItsButton) {
  openSurvey();
  for (const Case& each : cases()) {
    SCOPED_TRACE(each.name);
    const auto dialog = each.make();
    show(*dialog);
    auto* buttons = dialog->findChild<QDialogButtonBox*>();
    QPushButton* help = buttons != nullptr ? buttons->button(QDialogButtonBox::Help) : nullptr;
    const QPushButton* pressed = pressedByReturn(*dialog);
    RecordProperty(each.name, nameOf(pressed) + " " +
                                  (pressed != nullptr ? pressed->text().toStdString() : ""));
    EXPECT_TRUE(pressed == nullptr || pressed != help);
    if (help == nullptr) continue;
    EXPECT_FALSE(help->autoDefault());
    int opened = 0;
    buttons->disconnect(SIGNAL(helpRequested()));
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, [&opened] { ++opened; });
    help->setFocus();
    EXPECT_FALSE(help->isDefault());
    QTest::keyClick(help, Qt::Key_Return);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(dialog->isVisible());
  }
}

TEST_F(Dialogs, haveAPageOfTheGuideEach) {
  openSurvey();
  for (const Case& each : cases()) {
    const auto dialog = each.make();
    show(*dialog);
    const auto* buttons = dialog->findChild<QDialogButtonBox*>();
    if (buttons == nullptr) continue;
    EXPECT_NE(buttons->button(QDialogButtonBox::Help), nullptr) << each.name;
  }
}

}  // namespace
}  // namespace talvesk
