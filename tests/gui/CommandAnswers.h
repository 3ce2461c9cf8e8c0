#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QDialog;
class QFileDialog;
class QMessageBox;
class QWidget;

namespace talvesk::testing {

/// Answers every dialog that a command opens, once it has been drawn, and lets progress run, but
/// not for ever.
class CommandAnswers : public QObject {
 public:
  CommandAnswers() { startTimer(kLook); }

  bool accepts = false;  ///< gives a dialog its OK, else closes it
  QStringList files;     ///< for a dialog that asks for files to open; none: it is closed
  QString folder;        ///< where files are saved

  static bool isOpen() { return dialogInView() != nullptr; }

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  static constexpr int kLook = 50;  ///< milliseconds

  static QWidget* dialogInView();
  void answer(QWidget& dialog);
  void answerBox(QMessageBox& box);
  void answerFiles(QFileDialog& dialog);

  QPointer<QWidget> mSeen;
  int mLooks = 0;               ///< at it
  QPointer<QWidget> mAccepted;  ///< it was given its OK
};

}  // namespace talvesk::testing
