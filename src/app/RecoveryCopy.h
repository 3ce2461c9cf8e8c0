#pragma once

#include "app/ProjectFile.h"
#include "base/Status.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <memory>
#include <optional>

class QLockFile;
class QThread;

namespace talvesk {

struct Survey;

/// A recovery copy whose program is gone.
struct AbandonedCopy {
  QString file;     ///< a project
  QString project;  ///< what it is a copy of; empty for a survey that was never saved
  std::optional<FileStamp> stamp;   ///< of the project, when its window had read or written it
  QDateTime time;                   ///< when it was made
  std::shared_ptr<QLockFile> lock;  ///< held: no other window offers it meanwhile
};

/// A copy of the survey at work, saved now and then by a thread of its own, so that a crash costs
/// a minute and not a day. It lies in the working folder, with a lock file that tells a program
/// that is gone from another window. Only discard() deletes it: whoever ends in another way than
/// the user closing the window leaves it behind.
class RecoveryCopy : public QObject {
  Q_OBJECT

 public:
  /// \param folder the working folder, ending in "/"
  explicit RecoveryCopy(QString folder, QObject* parent = nullptr);
  ~RecoveryCopy() override;

  /// Begins to save a copy; saved() or failed() follows. Nothing happens while one is being saved.
  /// \param project where the survey itself is saved, if it is
  void save(Survey copy, const ProjectFile& project);
  /// Saves a copy, after one that is being saved, and returns when it is there.
  Status saveNow(const Survey& survey, const ProjectFile& project);
  bool isSaving() const { return mThread != nullptr; }

  /// Deletes the copy, if there is one. Nobody waits for one that is being saved: it goes when its
  /// thread has done with it, and the next copy gets another file.
  void discard();
  void adopt(const AbandonedCopy& copy);  ///< it is the copy of this window from now on

  /// The latest copy that a program left behind that is gone.
  static std::optional<AbandonedCopy> findAbandoned(const QString& folder);
  static void remove(const AbandonedCopy& copy);

 signals:
  void saved();
  /// \param reason for people; \param lasting trying again will hardly help
  void failed(const QString& reason, bool lasting);

 private:
  bool take();  ///< a file of our own
  void wait();  ///< for the thread
  void removeUnwanted();
  void finish(int run, const Status& written);
  QString nothingCanBeWritten() const;

  QString mFolder;
  QString mFile;
  std::shared_ptr<QLockFile> mLock;
  QString mUnwanted;                          ///< is being saved, and not wanted any more
  std::shared_ptr<QLockFile> mUnwantedsLock;  ///< until its file is gone
  std::unique_ptr<QThread> mThread;
  int mRun = 0;  ///< number of the save under way: a late message of an earlier one is none of it
};

}  // namespace talvesk
