#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

struct FilterOutcome;
struct GuideLine;

/// What is computed from the traces: picks and filtered copies.
class ProcessingPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ProcessingPresenter(Desk& desk);

  // Of the shot in view, or of all shots where all traces are shown (Settings::showAllTraces).

  void autoPick();
  /// By the joint picker; picks that a person made stay.
  void autoPickAlongLine();
  void autoPickSurvey();  ///< the same for every shot, whichever are in view
  /// By the joint picker through the picks that a person made, of the shot in view only.
  void fillAlong();
  void filter();          ///< by its dialog
  void notch();           ///< likewise
  void velocityFilter();  ///< likewise
  void agc();
  void hushel();

 private:
  void pickAlongLine(const std::vector<std::int32_t>& shots);
  void fillAlong(const GuideLine& guide);
  std::vector<std::int32_t> shotsToProcess() const;
  bool hasTraces(int shot) const;
  void forEachShot(const std::vector<std::int32_t>& shots, const QString& text,
                   const std::function<void(std::int32_t)>& work);
  void makeFilteredCopies(Message step, const QString& text,
                          const std::function<FilterOutcome(TomoDocument&, std::int32_t)>& filter);
  void takeFilteredCopies(const TomoDocument& work, Message step);

  Desk& mDesk;
};

}  // namespace talvesk
