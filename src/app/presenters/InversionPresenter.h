#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>
#include <vector>

class QWidget;

namespace talvesk {

class BackgroundInversion;
class ModelPresenter;
class progressTomographyDialog;
struct TomographyParameters;
struct TomographyResult;

/// The inversion, from the question whether to run it to its results.
class InversionPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  InversionPresenter(Desk& desk, ModelPresenter& models) : mDesk(desk), mModels(models) {}

  void run();   ///< returns when it has ended; the window answers meanwhile
  void stop();  ///< when the iteration under way is through
  /// All that the window can do while it runs: ask whether to stop it, and close when it has.
  void askToStopAndClose();

  std::function<void()> stopWanted;  ///< by the user, in the progress dialog

 private:
  TomographyResult runBeside(const TomographyParameters& parameters);
  std::vector<QWidget*> documentEditors() const;
  void showResult(const TomographyResult& result);
  void closeLater();

  Desk& mDesk;
  ModelPresenter& mModels;
  BackgroundInversion* mRunning = nullptr;
  progressTomographyDialog* mProgress = nullptr;
  bool mCloseAfterwards = false;
};

}  // namespace talvesk
