#pragma once

#include "base/History.h"

#include <QString>
#include <utility>

namespace talvesk {

/// Where file dialogs start: where the last file was. Files are opened from the folder where one
/// was opened last, which is remembered from run to run; they are saved where one was saved last,
/// or beside what was opened since.
class FileFolders {
 public:
  explicit FileFolders(History history) : mHistory(std::move(history)) {}

  QString toOpen() const;
  QString toSave() const;
  void opened(const QString& file);
  void saved(const QString& file);

 private:
  History mHistory;
  QString mSaved;  ///< empty when nothing was saved since a file was opened
};

}  // namespace talvesk
