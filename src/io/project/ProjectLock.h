#pragma once

#include "base/LockedFile.h"

#include <memory>
#include <optional>
#include <string>

namespace talvesk {

/// Who works on a project, as far as is known.
struct ProjectHolder {
  std::string user;
  std::string host;
  std::string process;   ///< its number
  std::string lockFile;  ///< where it says so
};

/// Tells other programs, on other computers too, that a project is being worked on. A hidden file
/// ".NAME.lock" beside the project names the user, the computer and the process, a line each; it
/// goes away with the object. It keeps nobody from reading or writing the project: whoever meets it
/// asks the user.
class ProjectLock {
 public:
  /// What became of laying a lock. Without a lock and a holder none can be laid there, as in a
  /// folder that is read-only; the project can be worked on all the same.
  struct Outcome {
    std::unique_ptr<ProjectLock> lock;
    std::optional<ProjectHolder> holder;  ///< somebody else's lock is in the way
  };

  /// Lays the lock of a project, which need not be there yet. A lock that a process of this
  /// computer left behind is taken over; of another computer's nobody can tell.
  /// \param project path, UTF-8; links to one project share its lock
  static Outcome take(const std::string& project);

  ~ProjectLock();
  ProjectLock(const ProjectLock&) = delete;
  ProjectLock& operator=(const ProjectLock&) = delete;

  /// Whether it is the lock of the project at a path.
  bool isOf(const std::string& project) const;

 private:
  explicit ProjectLock(LockedFile file);

  LockedFile mFile;
};

}  // namespace talvesk
