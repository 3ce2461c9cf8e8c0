#include "gui/DialogTest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>

namespace talvesk {
namespace {

// Whether dialogs can be used on a small laptop, and by somebody who does not see them.

/// The screen of a small laptop, of which a panel takes 40 pixels and a title bar 30.
constexpr QSize kScreen(1366, 768);
constexpr int kTitleBar = 30;
constexpr QSize kSmallest(1366, 768 - 40 - kTitleBar);

class DialogAccess : public testing::DialogTest {};

TEST_F(DialogAccess, leavesEveryDialogWithinASmallScreenInEveryLanguage) {
  ASSERT_EQ(QGuiApplication::primaryScreen()->size(), kScreen) << "the display of the suite";
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    openSurvey();
    for (const Case& each : cases()) {
      SCOPED_TRACE(std::string(language) + " " + each.name);
      const auto dialog = each.make();
      show(*dialog);
      onEveryPage(*dialog, [&](int) {
        const QSize least = dialog->minimumSizeHint().expandedTo(dialog->minimumSize());
        EXPECT_LE(least.width(), kSmallest.width());
        EXPECT_LE(least.height(), kSmallest.height());
        EXPECT_LE(dialog->width(), kScreen.width()) << "as it opens";
        EXPECT_LE(dialog->height(), kScreen.height() - kTitleBar) << "as it opens";
      });
    }
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), kSmallest.width()) << language;
    EXPECT_LE(least.height(), kSmallest.height()) << language;
  }
}

template <typename... Types>
bool isAny(const QWidget& widget) {
  return ((qobject_cast<const Types*>(&widget) != nullptr) || ...);
}

/// What a user gives something to, or takes something from; the parts of others do not count.
bool isControl(const QWidget& widget) {
  const bool kind = isAny<QAbstractButton, QLineEdit, QComboBox, QAbstractSpinBox, QAbstractSlider,
                          QAbstractItemView, QTextEdit>(widget) ||
                    (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
  if (!kind || isAny<QScrollBar>(widget)) return false;
  for (const QWidget* above = widget.parentWidget(); above != nullptr && !above->isWindow();
       above = above->parentWidget()) {
    if (isAny<QComboBox, QAbstractSpinBox, QLineEdit, QAbstractItemView>(*above)) return false;
  }
  const bool holder = qstrcmp(widget.metaObject()->className(), "QTabWidget") == 0 ||
                      qstrcmp(widget.metaObject()->className(), "QTabBar") == 0;
  return !holder && widget.isVisible() && widget.focusProxy() == nullptr;
}

std::string whereIs(const QWidget& widget) {
  std::string names;
  for (const QWidget* each = &widget; each != nullptr && !each->isWindow();
       each = each->parentWidget()) {
    names += (each->objectName().isEmpty() ? QLatin1String(each->metaObject()->className())
                                           : each->objectName())
                 .toStdString() +
             " < ";
  }
  return names;
}

void expectNames(QWidget& top) {
  for (QWidget* widget : top.findChildren<QWidget*>()) {
    if (!isControl(*widget) || widget->window() != &top) continue;
    QAccessibleInterface* said = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(said, nullptr);
    EXPECT_FALSE(said->text(QAccessible::Name).trimmed().isEmpty()) << whereIs(*widget);
  }
}

TEST_F(DialogAccess, givesEveryControlANameForScreenReaders) {
  openSurvey();
  for (const Case& each : cases()) {
    const auto dialog = each.make();
    show(*dialog);
    onEveryPage(*dialog, [&](int page) {
      SCOPED_TRACE(std::string(each.name) + " page " + std::to_string(page));
      expectNames(*dialog);
    });
  }
  auto& tabs = child<QTabWidget>("tabWidget");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    SCOPED_TRACE("window, tab " + std::to_string(tab));
    tabs.setCurrentIndex(tab);
    QCoreApplication::processEvents();
    expectNames(*window);
  }
}

}  // namespace
}  // namespace talvesk
