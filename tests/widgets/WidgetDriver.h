#pragma once

#include "TestShots.h"
#include "io/Survey.h"
#include "session/Session.h"
#include "widgets/traces/TraceMapping.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

namespace talvesk::testing {

/// A trace view on a shot, and the hands of a user.
class WidgetDriver {
 public:
  explicit WidgetDriver(const TomoDocument& shots) {
    Survey survey;
    survey.document = shots;
    session.open(std::move(survey), true);
    TraceViewOptions options;
    options.showAllTraces = true;
    widget.setOptions(options);
    widget.resize(800, 600);
    widget.setSession(session);
    widget.setShot(0);
    widget.show();
    widget.setFocus();
  }

  QPoint at(int trace, double time) const { return widget.pointOf(trace, time).toPoint(); }
  /// Seconds that a pixel stands for: what a click can mean.
  double pixel() const { return widget.timeAt({0.0, 101.0}) - widget.timeAt({0.0, 100.0}); }

  void press(const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mousePress(&widget, button, keys, point);
  }
  void move(const QPoint& point, Qt::MouseButtons buttons = Qt::LeftButton,
            Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QMouseEvent event(QEvent::MouseMove, point, Qt::NoButton, buttons, keys);
    QApplication::sendEvent(&widget, &event);
  }
  void release(const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseRelease(&widget, button, keys, point);
  }
  void click(const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers keys = Qt::NoModifier) {
    press(point, button, keys);
    release(point, button, keys);
  }
  void dragTo(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers keys = Qt::NoModifier) {
    press(from, button, keys);
    for (int i = 1; i <= 10; ++i) move(from + (to - from) * i / 10, button, keys);
    release(to, button, keys);
  }
  void key(Qt::Key code, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::keyClick(&widget, code, keys);
  }
  void wheel(const QPoint& point, int notches, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QWheelEvent event(point, widget.mapToGlobal(point), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }

  double pick(int trace, int shot = 0) const {
    return session.document()
        .ttArray[static_cast<std::size_t>(shot)]
        .ttMisurati[static_cast<std::size_t>(trace)];
  }
  void setPick(int trace, double time) {
    writable().ttArray.edit()[0].ttMisurati.edit()[static_cast<std::size_t>(trace)] = time;
  }
  /// The document, for what is to be there without anybody having edited it.
  TomoDocument& writable() {
    TomoDocument* document = nullptr;
    session.amend([&document](Survey& survey) { document = &survey.document; });
    return *document;
  }
  void forgetSteps() {
    session.open(session.survey(), true);
    widget.setShot(0);
  }
  void change(void (*edit)(TraceViewOptions&)) {
    TraceViewOptions options = widget.options();
    edit(options);
    widget.setOptions(options);
  }

  Session session;  ///< outlives the widget
  editTravelTimesWidget widget;
};

}  // namespace talvesk::testing
