#pragma once

#include <QWidget>
#include <functional>
#include <stdexcept>
#include <string>

class QAction;
class QString;

namespace talvesk::testing {

/// A widget or action of a window by its name; throws when there is none.
template <typename Object>
Object& child(const QObject& parent, const char* name) {
  auto* found = parent.findChild<Object*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("nothing is called ") + name);
  return *found;
}

/// Writes what a widget looks like, as a PNG of 256 colours: enough for a window, and a third as
/// large. Throws when the file cannot be written.
void store(QWidget& widget, const QString& file);

/// Says Yes or OK to every message box while it lives.
class BoxAnswers : public QObject {
 public:
  BoxAnswers();

 protected:
  void timerEvent(QTimerEvent* event) override;
};

/// Gives a command and does something with the dialog that it opens, which is closed by Escape
/// afterwards unless that has closed it. Throws what `act` throws, and when no dialog comes.
void withDialog(QAction& command, const std::function<void(QWidget& dialog)>& act);

}  // namespace talvesk::testing
