#pragma once

#include "tomo/StartingModel.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/FittedRun.h"
#include "tomo/fitted/RunProposal.h"

#include <QDialog>
#include <memory>

namespace talvesk {

namespace Ui {
class runTomography_Dialog;
}

/// Asks how to invert, and for the parameters of that.
class runTomography_Dialog : public QDialog {
  Q_OBJECT

 public:
  /// \param minVelocity, maxVelocity m/s, shown as whole numbers, truncated
  runTomography_Dialog(double minVelocity, double maxVelocity, QWidget* parent = nullptr);
  ~runTomography_Dialog() override;

  /// Makes a fit to the errors of the picks possible. \param document holds a grid; it is copied
  /// \param given models from outside that a fit may start from, too
  void setSurvey(const TomoDocument& document, std::vector<GivenModel> given = {});

  bool fits() const;  ///< to the errors of the picks, instead of solver passes and smoothing
  TomographyParameters parameters() const;  ///< of solver passes and smoothing
  FittedSettings fitSettings() const;       ///< of a fit

  /// Shows what the inversion begins with.
  void setStartingModel(StartingModel model);

  /// What the button "Propose" sets; without a proposal it is out of reach.
  /// \param gridDepth metres, to be compared with the depth that rays will reach
  void setProposal(const std::optional<RunProposal>& proposal, double gridDepth);

 public slots:
  /// Each compares the new value with the box that has just got it, so neither ever moves the other
  /// box: a minimum above the maximum is let through on purpose, and the dialog only tells.
  void checkMinWRTMax(int value);
  void checkMaxWRTMin(int value);

 private:
  void showMethod();
  void showHint();

  std::unique_ptr<Ui::runTomography_Dialog> mUi;
};

}  // namespace talvesk
