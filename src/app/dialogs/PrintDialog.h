#pragma once

#include "figures/print/PrintPages.h"

#include <QDialog>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QSettings;

namespace talvesk {

namespace Ui {
class PrintDialog;
}

/// A figure that a survey could be printed as.
struct PrintChoice {
  /// Of a figure that shows one place of the line: metres.
  struct Places {
    double from = 0.0;
    double to = 0.0;
    double at = 0.0;
  };

  QString name;
  QString whyNot;  ///< without its full stop; empty: it can be printed
  std::function<PrintFigure(double place)> make;
  std::optional<Places> places;
};

/// Asks what is printed how large on what paper, and shows the sheets as they will be. Says what
/// does not fit, and what would. What the figures are made of must outlive it.
class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param first which figure it begins with, if that can be printed
  PrintDialog(std::vector<PrintChoice> choices, std::size_t first, QWidget* parent = nullptr);
  ~PrintDialog() override;

  void setPrinters(bool any);  ///< whether there are some; PDF there is always

  /// Asked to print the sheets, and for a file of them.
  std::function<void(const PrintPages&)> printWanted;
  std::function<void(const PrintPages&)> pdfWanted;

  /// The scale that is asked for, or PrintSheet::kToFit. Without, and until the user chooses one,
  /// it is proposed as the figure and the paper have it.
  void setScale(double scale);
  std::optional<double> chosenScale() const;

  /// Paper and the rest, from one use to the next.
  void remember(QSettings& settings) const;
  void recall(const QSettings& settings);

 private:
  void fillFigures(std::size_t first);
  void fillScales();
  void chooseFigure();
  void wait();     ///< something has changed
  void refresh();  ///< now
  void propose();
  std::optional<double> scale() const;
  PrintSettings settings() const;
  void show(const PrintFit& fit, const Status& status);
  void follow(const QString& link);

  std::unique_ptr<Ui::PrintDialog> mUi;
  std::vector<PrintChoice> mChoices;
  std::optional<PrintFigure> mFigure;
  PrintPages mPages;      ///< where the figure fits
  bool mProposes = true;  ///< a scale; false once one is chosen
  bool mReady = false;
  bool mPrinters = true;
  QTimer mSoon;
};

}  // namespace talvesk
