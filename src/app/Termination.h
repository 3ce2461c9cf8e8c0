#pragma once

#include <QObject>

class QSocketNotifier;

namespace talvesk {

/// Hears the signals by which a system, a terminal or a user ends a program, and passes them on
/// where the program can act: in its event loop. One object at a time. A signal that the program
/// was started to ignore, as by nohup, stays ignored; a second Ctrl+C ends the program at once.
class Termination : public QObject {
  Q_OBJECT

 public:
  explicit Termination(QObject* parent = nullptr);
  ~Termination() override;

 signals:
  void requested(int signal);

 private:
  void pass();

  int mPipe[2] = {-1, -1};
  QSocketNotifier* mNotifier = nullptr;
};

}  // namespace talvesk
