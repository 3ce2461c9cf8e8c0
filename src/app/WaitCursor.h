#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace talvesk {

/// The wait cursor while it lives, for work of less than a second or two on the window's own
/// thread; what takes longer has a progress dialog. End it before a message box opens.
class WaitCursor {
 public:
  WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

/// What `work` returns, under the wait cursor.
template <typename Work>
auto whileWaiting(Work work) {
  const WaitCursor waiting;
  return work();
}

}  // namespace talvesk
