#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <vector>

namespace talvesk {

class RunsDialog;
struct RunComparison;

/// The list of inversions that have been run: which of them is the section, how they are called,
/// and how they differ.
class RunsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit RunsPresenter(Desk& desk) : mDesk(desk) {}

  void show();

 private:
  void use(unsigned number);
  void rename(unsigned number, const QString& name);
  void remove(const std::vector<unsigned>& numbers);
  void compare(unsigned left, unsigned right, RunsDialog& dialog);
  void save(const RunComparison& comparison);

  Desk& mDesk;
};

}  // namespace talvesk
