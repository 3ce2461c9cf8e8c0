#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

namespace talvesk::testing {

/// The answers to the dialogs that a test will meet, in order. A dialog that nobody expects is
/// closed and fails the test, and so does an answer that was never asked for; nothing hangs.
class ModalScript : public QObject {
 public:
  ModalScript();
  ~ModalScript() override;

  /// What to do with the next dialog; it must close it.
  void expect(std::function<void(QWidget&)> answer);
  /// The next dialog is a message box of this title and text, whose details contain `details`.
  void expectBox(const QString& title, const QString& text, const QString& details,
                 QMessageBox::StandardButton button);
  /// The next dialog asks for files and gets these.
  void expectFiles(const QString& title, const QStringList& files);
  /// The next dialog is closed as the Escape key does, whatever it is.
  void expectAndCancel();

  bool finished() const { return mAnswers.empty(); }

 private:
  void look();

  QTimer mTimer;
  std::deque<std::function<void(QWidget&)>> mAnswers;
  std::vector<QPointer<QWidget>> mAnswered;  ///< some may be open, below others
};

}  // namespace talvesk::testing
