#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

struct RecordExport;

/// The recordings of the survey as files for other programs.
class RecordExportPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit RecordExportPresenter(Desk& desk) : mDesk(desk) {}

  void exportRecordings();  ///< asks for format and folder

 private:
  bool askHow(RecordExport& wanted);
  bool mayWrite(const RecordExport& wanted);
  void write(const RecordExport& wanted);

  Desk& mDesk;
};

}  // namespace talvesk
