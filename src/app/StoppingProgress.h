#pragma once

#include <QCoreApplication>
#include <QProgressDialog>
#include <atomic>

namespace talvesk {

/// A bar of work that stops between its parts, not at any moment. Stop, the Escape key and the
/// cross of the window ask for that once; the bar stays, keeps input away and says that the work
/// is about to stop, until who began it hides it.
class StoppingProgress : public QProgressDialog {
  Q_DECLARE_TR_FUNCTIONS(talvesk::StoppingProgress)

 public:
  StoppingProgress(const QString& title, int steps, QWidget* parent);

  bool isStopping() const { return mStopping; }  ///< to be asked from any thread
  /// What is at work now; not shown any more once it is about to stop.
  void say(const QString& text);

  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void stop();

  std::atomic<bool> mStopping{false};
  QString mPart;
};

}  // namespace talvesk
