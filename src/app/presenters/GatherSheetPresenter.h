#pragma once

#include "app/presenters/Desk.h"

namespace talvesk {

struct GatherSheetOptions;

/// Sheets of several shots each.
class GatherSheetPresenter {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit GatherSheetPresenter(Desk& desk) : mDesk(desk) {}

  void ask();  ///< how they are laid out, and writes them

 private:
  bool mayReplace(const QString& file, const GatherSheetOptions& options);
  void write(const QString& file, const GatherSheetOptions& options);

  Desk& mDesk;
};

}  // namespace talvesk
