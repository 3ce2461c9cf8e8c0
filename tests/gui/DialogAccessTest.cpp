#include "gui/DialogTest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

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

/// The text of a widget that has too little room for it; empty where all of it is there.
QString cutTextOf(const QWidget& widget) {
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, box);
    const bool fits = box->fontMetrics().horizontalAdvance(box->currentText()) <= field.width();
    return fits || box->isEditable() ? QString() : box->currentText();
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    const bool fits = label->wordWrap() || label->sizeHint().width() <= label->width();
    return fits ? QString() : label->text();
  }
  if (const auto* heads = qobject_cast<const QHeaderView*>(&widget)) {
    for (int i = 0; heads->orientation() == Qt::Horizontal && i < heads->count(); ++i) {
      if (heads->isSectionHidden(i) || heads->sectionSizeHint(i) <= heads->sectionSize(i)) continue;
      return heads->model()->headerData(i, Qt::Horizontal).toString();
    }
    return {};
  }
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const bool fits = button == nullptr || button->text().isEmpty() ||
                    button->sizeHint().width() <= button->width();
  return fits ? QString() : button->text();
}

TEST_F(DialogAccess, cutsNoTextOfADialogAsItOpens) {
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    openSurvey();
    for (const Case& each : cases()) {
      const auto dialog = each.make();
      show(*dialog);
      onEveryPage(*dialog, [&](int page) {
        for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
          if (!widget->isVisible()) continue;
          const QString cut = cutTextOf(*widget);
          EXPECT_TRUE(cut.isEmpty())
              << language << ' ' << each.name << ' ' << page << ' '
              << widget->objectName().toStdString() << ": " << cut.toStdString();
        }
      });
    }
  }
}

/// As of a desktop with dark colours.
QPalette darkPalette() {
  QPalette dark(QColor(0x31, 0x36, 0x3b));
  dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
  return dark;
}

/// By which a text stands out from its ground, from 1 to 21 (WCAG 2).
double contrastOf(const QColor& text, const QColor& ground) {
  const auto luminance = [](const QColor& color) {
    const auto linear = [](double c) {
      return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
  };
  const auto [low, high] = std::minmax({luminance(text), luminance(ground)});
  return (high + 0.05) / (low + 0.05);
}

TEST_F(DialogAccess, keepsTextsLegibleOnLightAndOnDarkDesktops) {
  constexpr double kLegible = 4.5;
  openSurvey();
  const QPalette light = QApplication::palette();
  for (const QPalette& palette : {light, darkPalette()}) {
    QApplication::setPalette(palette);
    const QColor ground = palette.color(QPalette::Window);
    for (const Case& each : cases()) {
      const auto dialog = each.make();
      show(*dialog);
      for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        if (!label->isEnabled()) continue;
        const QColor color = label->palette().color(label->foregroundRole());
        EXPECT_GE(contrastOf(color, ground), kLegible)
            << each.name << ' ' << label->objectName().toStdString() << ' '
            << color.name().toStdString() << " on " << ground.name().toStdString();
      }
    }
  }
  QApplication::setPalette(light);
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
