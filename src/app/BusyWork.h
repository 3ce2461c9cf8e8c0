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

/// What `work` returns, which is done on a thread of its own while the events of the window go on.
/// Nothing that the work uses may be changed by what else the program does meanwhile: the caller
/// keeps input away.
template <typename Work>
auto onOwnThread(Work work) {
  std::optional<decltype(work())> result;
  std::exception_ptr failure;
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    try {
      result = work();
    } catch (...) {
      failure = std::current_exception();
    }
  }));
  QEventLoop loop;
  QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec();
  thread->wait();
  if (failure) std::rethrow_exception(failure);
  return std::move(*result);
}

/// The same for work of seconds that cannot be stopped: under the wait cursor, while the widget is
/// drawn but takes no input.
template <typename Work>
auto whileBusy(QWidget& widget, Work work) {
  class Disabled {
   public:
    explicit Disabled(QWidget& of) : mWidget(&of), mFocus(of.focusWidget()) {
      mWidget->setEnabled(false);
    }
    ~Disabled() {
      if (mWidget) mWidget->setEnabled(true);
      if (mFocus) mFocus->setFocus();
    }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;

   private:
    const QPointer<QWidget> mWidget;  ///< one that is closed meanwhile may be gone
    const QPointer<QWidget> mFocus;
  };
  const WaitCursor waiting;
  const Disabled disabled(widget);
  return onOwnThread(work);
}

}  // namespace talvesk
