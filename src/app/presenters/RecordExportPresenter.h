#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>
#include <string>
#include <vector>

namespace talvesk {

struct RecordExport;

/// The recordings of the survey as files for other programs.
class RecordExportPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit RecordExportPresenter(Desk& desk) : mDesk(desk) {}

  void exportRecordings();  ///< asks for format and folder
  void copyWithPicks();     ///< the shot files, picks in their headers; asks for the folder

 private:
  bool askHow(RecordExport& wanted);
  bool mayWrite(const std::vector<std::string>& targets);
  /// Writes while a dialog shows how far it is, and tells a failure or a stop.
  /// \param write gets what is to be asked before each of so many steps
  bool written(const QString& label, const QString& folder, std::size_t steps,
               const std::function<Status(const std::function<bool(std::size_t)>&)>& write);
  void write(const RecordExport& wanted);

  Desk& mDesk;
};

}  // namespace talvesk
