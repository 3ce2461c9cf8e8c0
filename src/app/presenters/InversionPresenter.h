#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>
#include <vector>

class QWidget;

namespace talvesk {

class BackgroundInversion;
class ModelPresenter;
class SecondLookPresenter;
class progressTomographyDialog;
struct FittedRunResult;
struct FittedSettings;
struct TomographyParameters;
struct TomographyResult;

/// The inversion, from the question whether to run it to its results.
class InversionPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  InversionPresenter(Desk& desk, ModelPresenter& models, SecondLookPresenter& secondLook)
      : mDesk(desk), mModels(models), mSecondLook(secondLook) {}

  void run();   ///< returns when it has ended; the window answers meanwhile
  void stop();  ///< when the iteration under way is through
  /// All that the window can do while it runs: ask whether to stop it, and close when it has.
  void askToStopAndClose();

  std::function<void()> stopWanted;  ///< by the user, in the progress dialog

 private:
  void invert(const TomographyParameters& parameters);
  void fit(const FittedSettings& settings);
  TomographyResult runBeside(const TomographyParameters& parameters);
  FittedRunResult fitBeside(const FittedSettings& settings);
  void beside(BackgroundInversion& inversion, progressTomographyDialog& progress,
              const std::function<void()>& work);
  bool closesAfterwards();
  std::vector<QWidget*> documentEditors() const;
  void showResult(const TomographyResult& result);
  void showFit(const FittedRunResult& result);
  bool tellOutcome(const TomographyResult& result, bool hasSection, const QString& completed,
                   QStringList& left);
  void closeLater();

  Desk& mDesk;
  ModelPresenter& mModels;
  SecondLookPresenter& mSecondLook;
  BackgroundInversion* mRunning = nullptr;
  progressTomographyDialog* mProgress = nullptr;
  bool mCloseAfterwards = false;
};

}  // namespace talvesk
