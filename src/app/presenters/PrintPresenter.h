#pragma once

#include "app/dialogs/PrintDialog.h"
#include "app/presenters/Desk.h"
#include "figures/ElasticFigure.h"
#include "figures/SectionFigureOptions.h"
#include "refraction/elastic/ElasticLine.h"
#include "view/DepthProfile.h"
#include "view/ResidualTable.h"

#include <QObject>
#include <optional>
#include <vector>

namespace talvesk {

class DepthProfilePresenter;
class LayeredModel;

/// Figures on paper.
class PrintPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  PrintPresenter(Desk& desk, LayeredModel& layered, const DepthProfilePresenter& profile)
      : mDesk(desk), mLayered(layered), mProfile(profile) {}

  void print();  ///< asks for what and how, beginning with what is in view
  /// The same of P and S, which come from two surveys.
  void printElastic(const ElasticLine& line, const ElasticFigureOptions& options);

 private:
  /// What figures look at while the dialog is open.
  struct Made {
    ResidualTable residuals;
    DepthProfiles section;
  };

  std::vector<PrintChoice> choices(const Made& made) const;
  PrintChoice section() const;
  PrintChoice curves() const;
  PrintChoice layers() const;
  PrintChoice traces() const;
  PrintChoice misfit() const;
  std::vector<PrintChoice> residuals(const ResidualTable& table) const;
  PrintChoice depthProfile(const DepthProfiles& section) const;
  SectionFigureOptions sectionLook() const;
  std::size_t inView() const;
  void ask(std::vector<PrintChoice> choices, std::size_t first);
  void toPrinter(const PrintPages& pages);
  void toPdf(const PrintPages& pages);

  std::optional<double> mScale;  ///< that was last chosen; none before
  Desk& mDesk;
  LayeredModel& mLayered;
  const DepthProfilePresenter& mProfile;
};

}  // namespace talvesk
