#include "app/Talvesk_MainWindows.h"
#include "support/TestFolder.h"
#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <QWheelEvent>
#include <iostream>
#include <memory>
#include <random>

// Somebody who clicks, types and opens menus anywhere, most of all to leave them again. What falls
// over is for the sanitizers to say; the steps are told, so that the last of them can be read.
//
//   random_walk SECONDS SEED FILES...      (see scripts/walk-gui)

namespace talvesk {
namespace {

class Walk : public QObject {
 public:
  Walk(Talvesk_MainWindows& window, unsigned seed, double seconds)
      : mWindow(window), mRandom(seed), mSeconds(seconds) {
    mClock.start();
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openNothing");
    next();
  }
  long steps() const { return mSteps; }

 private:
  /// Before a step and not after it: the step may be inside a dialog for long.
  void next() {
    QTimer::singleShot(kPause, this, [this] {
      if (static_cast<double>(mClock.elapsed()) > 1000.0 * mSeconds) return leave();
      next();
      step();
    });
  }

  /// Closes what is open, one after the other, and the program when nothing is.
  void leave() {
    QTimer::singleShot(kPause, this, [this] { leave(); });
    if (QWidget* top = topmost(); top != &mWindow) {
      QTest::keyClick(top, Qt::Key_Escape);
    } else {
      QApplication::exit(0);
    }
  }

  QWidget* topmost() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible() && widget != &mWindow && widget->windowType() == Qt::Dialog) {
        return widget;
      }
    }
    return const_cast<Talvesk_MainWindows*>(&mWindow);
  }

  int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

  template <typename Item>
  Item* anyOf(const QList<Item*>& items) {
    return items.isEmpty() ? nullptr : items[below(items.size())];
  }

  QWidget* anyChild(QWidget& parent) {
    QList<QWidget*> shown;
    for (QWidget* child : parent.findChildren<QWidget*>()) {
      if (child->isVisible() && child->isEnabled() && child->window() == parent.window()) {
        shown.append(child);
      }
    }
    QWidget* child = anyOf(shown);
    return child != nullptr ? child : &parent;
  }

  QPoint anyPointIn(const QWidget& widget) {
    return {below(std::max(widget.width(), 1)), below(std::max(widget.height(), 1))};
  }

  void tell(const char* what, const QObject& object) {
    ++mSteps;
    std::cout << mSteps << ' ' << what << ' ' << object.metaObject()->className() << ' '
              << object.objectName().toStdString() << std::endl;
  }

  void step() {
    QWidget* top = topmost();
    if (top != &mWindow && below(4) == 0) {
      tell("escape", *top);
      QTest::keyClick(top, Qt::Key_Escape);
      return;
    }
    switch (below(top == &mWindow ? 6 : 5)) {
      case 0:
        return click(*anyChild(*top), Qt::LeftButton);
      case 1:
        return click(*anyChild(*top), Qt::RightButton);
      case 2:
        return askForMenu(*anyChild(*top));
      case 3:
        return press(*top);
      case 4:
        return turnWheel(*anyChild(*top));
      default:
        return trigger();
    }
  }

  void click(QWidget& widget, Qt::MouseButton button) {
    tell(button == Qt::LeftButton ? "click" : "right click", widget);
    const QPoint from = anyPointIn(widget);
    if (below(3) == 0) {
      QTest::mousePress(&widget, button, Qt::NoModifier, from);
      return;  // and let go of somewhere else, some time, or never
    }
    if (below(8) == 0) {
      QTest::mouseDClick(&widget, button, Qt::NoModifier, from);
    } else {
      QTest::mouseClick(&widget, button, Qt::NoModifier, from);
    }
  }

  void askForMenu(QWidget& widget) {
    tell("menu key", widget);
    const QPoint place = anyPointIn(widget);
    QApplication::postEvent(
        &widget, new QContextMenuEvent(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place)));
  }

  void press(QWidget& top) {
    static const Qt::Key kKeys[] = {
        Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,     Qt::Key_Down,
        Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Space,  Qt::Key_Return,
        Qt::Key_Delete, Qt::Key_Home,    Qt::Key_Escape, Qt::Key_1,
        Qt::Key_F1,     Qt::Key_Plus,    Qt::Key_Menu,   Qt::Key_PageDown};
    static const Qt::KeyboardModifiers kModifiers[] = {
        Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    QWidget* focus = top.focusWidget() != nullptr ? top.focusWidget() : &top;
    tell("key", *focus);
    if (below(6) == 0) {
      QTest::keyClick(focus, static_cast<Qt::Key>(Qt::Key_A + below(26)), Qt::AltModifier);
      return;
    }
    QTest::keyClick(focus, kKeys[below(std::size(kKeys))],
                    kModifiers[below(std::size(kModifiers))]);
  }

  void turnWheel(QWidget& widget) {
    tell("wheel", widget);
    const QPoint place = anyPointIn(widget);
    const QPoint turn(0, below(2) == 0 ? 120 : -120);
    QApplication::postEvent(
        &widget, new QWheelEvent(place, widget.mapToGlobal(place), {}, turn, Qt::NoButton,
                                 below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                                 Qt::NoScrollPhase, false));
  }

  /// A command, as by its menu; or only the menu.
  void trigger() {
    if (below(3) == 0) {
      QMenu* menu = anyOf(mWindow.menuBar()->findChildren<QMenu*>());
      if (menu == nullptr) return;
      tell("open menu", *menu);
      menu->popup(mWindow.mapToGlobal(QPoint(20, 40)));
      return;
    }
    QList<QAction*> ready;
    for (QAction* action : mWindow.findChildren<QAction*>()) {
      const bool leaves = action->objectName() == QLatin1String("actionExit");
      if (action->isEnabled() && action->isVisible() && !action->isSeparator() && !leaves &&
          action->menu() == nullptr) {
        ready.append(action);
      }
    }
    if (QAction* action = anyOf(ready)) {
      tell("command", *action);
      action->trigger();
    }
    if (!mWindow.isVisible()) mWindow.show();
  }

  static constexpr int kPause = 15;  // milliseconds
  Talvesk_MainWindows& mWindow;
  std::mt19937 mRandom;
  double mSeconds;
  QElapsedTimer mClock;
  long mSteps = 0;
};

}  // namespace
}  // namespace talvesk

int main(int argc, char** argv) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  QSurfaceFormat::setDefaultFormat(talvesk::sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc < 3) {
    std::cerr << "random_walk SECONDS SEED FILES..." << std::endl;
    return 2;
  }
  talvesk::Talvesk_MainWindows window;
  window.show();
  QStringList files;
  for (int i = 3; i < argc; ++i) files.append(QString::fromLocal8Bit(argv[i]));
  talvesk::Walk walk(window, static_cast<unsigned>(std::stoul(argv[2])), std::stod(argv[1]));
  // Loading may ask something, which is for the walk to answer.
  QTimer::singleShot(0, &window, [&] { window.openFiles(files); });
  const int code = QApplication::exec();
  std::cout << walk.steps() << " steps" << std::endl;
  return code;
}
