#pragma once

#include "app/WaitCursor.h"

#include <QEventLoop>
#include <QPointer>
#include <QThread>
#include <QWidget>
#include <exception>
#include <memory>
#include <optional>

namespace talvesk {

/// What `work` returns, for work of seconds that cannot be stopped: it is done on a thread of its
/// own under the wait cursor, while the widget is drawn but takes no input. Nothing that the work
/// uses may be changed by what else the program does meanwhile.
template <typename Work>
auto whileBusy(QWidget& widget, Work work) {
  std::optional<decltype(work())> result;
  std::exception_ptr failure;
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    try {
      result = work();
    } catch (...) {
      failure = std::current_exception();
    }
  }));
  const QPointer<QWidget> focus = widget.focusWidget();
  const WaitCursor waiting;
  widget.setEnabled(false);
  QEventLoop loop;
  QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec();
  thread->wait();
  widget.setEnabled(true);
  if (focus) focus->setFocus();
  if (failure) std::rethrow_exception(failure);
  return std::move(*result);
}

}  // namespace talvesk
