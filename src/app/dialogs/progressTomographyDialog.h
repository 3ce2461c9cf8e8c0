#pragma once

#include "tomo/TomographyRun.h"
#include "tomo/fitted/FittedRun.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QString>
#include <memory>

namespace talvesk {

namespace Ui {
class progressTomographyDialog;
}

/// How far an inversion is, with a button to stop it. Closing it stops the inversion, too; it stays
/// until its owner hides it.
class progressTomographyDialog : public QDialog {
  Q_OBJECT

 public:
  explicit progressTomographyDialog(QWidget* parent = nullptr);
  ~progressTomographyDialog() override;

  /// How many external iterations there will be; the bar goes from 0 to 100.
  void setTotal(double iterations);
  /// One iteration is through: text and bar.
  void addCompleted();
  /// The misfit of the section that it started from and of its last solver pass, if there is any
  /// pick.
  void addMisfit(const TomographyProgress& progress);
  /// In place of setTotal(), of a fit: nobody knows how many iterations it takes.
  void beginFit(int mostIterations);
  /// In place of addCompleted() and addMisfit().
  void addFit(const FittedRunProgress& progress);
  /// That the wish to stop was heard.
  void showStopping();

  void reject() override;

 signals:
  void stopped();

 private:
  void addLine(const QString& line);
  void showTimes();
  void stop();

  std::unique_ptr<Ui::progressTomographyDialog> mUi;
  QElapsedTimer mClock;
  double mCompleted = 0.0;
  double mTotal = 1.0;
  double mSecondsAtLast = 0.0;  ///< when the last iteration was through
  QString mText;
  bool mFits = false;
};

}  // namespace talvesk
