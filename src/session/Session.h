#pragma once

#include "base/Status.h"
#include "session/EditTable.h"
#include "session/Parts.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;
struct SectionViewSettings;
struct Survey;

/// What observers of a session hear: once for every edit, undo, redo, look at an edit under way, or
/// another survey in place of the one before.
struct SurveyChange {
  enum class Kind { kEdit, kUndo, kRedo, kPreview, kOpened, kSaved, kView };
  Kind kind = Kind::kEdit;
  std::optional<Edit> edit;  ///< none when another survey was opened, saved or looked at
  PartSet parts;             ///< that are others than before
  const Survey& before;      ///< for as long as the observer is told
};

/// A survey at work: the one place where it changes, with a way back from every edit.
///
/// apply() is the only way to edit. An edit is a function that is given a copy of the survey, which
/// costs some pointers, and takes its place when the function succeeds; the survey before it is
/// kept for undo(). So whatever fails leaves no trace. All functions belong to one thread.
class Session {
 public:
  using Change = std::function<Status(Survey&)>;
  using Observer = std::function<void(const SurveyChange&)>;
  /// Told for as long as it lives.
  using Subscription = std::shared_ptr<Observer>;

  /// How much undo may cost unless somebody says otherwise, bytes.
  static constexpr std::size_t kUndoMemory = std::size_t{512} << 20;

  Session();
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  const Survey& survey() const;          ///< io/Survey.h
  const TomoDocument& document() const;  ///< of the survey
  [[nodiscard]] Subscription subscribe(Observer observer);

  /// Edits the survey: one step to be undone. Forgets what the table says that the edit makes void.
  /// A change that touches nothing is no step. On failure the survey is as it was: of the change,
  /// of an edit that touches what its row of the table keeps, of one within another or while one is
  /// open.
  /// \param text of the step, when it says more than that of the table
  Status apply(Edit edit, const Change& change, Message text = {});
  /// The same; it becomes one step with the one before, if that was made with the same key.
  /// \param key not empty
  Status applyMerging(Edit edit, const Change& change, const std::string& key, Message text = {});

  /// Begins an edit that takes time and is looked at meanwhile: see OpenEdit.
  /// \param decided the user has said that it is to be: what is shown of it counts as modified, and
  /// is what settled() gives. Else it is a trial until commit().
  bool begin(Edit edit, bool decided = false);
  Status preview(const Change& change);  ///< shows another state of the edit that was begun
  Status commit(const Change& change);   ///< the edit ends as one step
  void abandon();                        ///< the survey is as it was at begin()
  bool isOpen() const;

  /// Changes what the program remembers of the survey beside what the user edits: no step, and no
  /// reason to save. Observers do not hear of it.
  void amend(const std::function<void(Survey&)>& change);

  /// Changes what the section shows. It is saved with the project, but neither an edit nor undone.
  void setView(const std::function<void(SectionViewSettings&)>& change);

  bool canUndo() const;
  bool canRedo() const;
  Message undoText() const;  ///< of the step that undo() takes back; empty without one
  Message redoText() const;
  void undo();
  void redo();

  /// Puts another survey in the place of this one; nothing can be undone any more.
  /// \param saved there is a file that holds it
  void open(Survey survey, bool saved);
  void markSaved();  ///< a file holds the survey as it is
  /// Whether the survey is another than the one that was opened or saved last.
  bool modified() const;
  /// The survey without what is only tried.
  const Survey& settled() const;
  /// Grows whenever the survey changes, the view included.
  std::uint64_t revision() const { return mRevision; }

  void setUndoMemory(std::size_t bytes);
  std::size_t undoMemory() const;  ///< bytes that undo and redo cost now
  std::size_t steps() const;
  /// Steps that were dropped because they cost too much, since the survey was opened.
  std::size_t droppedSteps() const { return mDropped; }

 private:
  struct Open;
  struct State;
  struct Step;
  enum class Way { kBack, kForth };

  Status run(Edit edit, const Change& change, const Survey& before, Survey& next);
  void push(Step step);
  void exchange(Step& step, Way way);
  void dropFarthest(Way way);
  void tell(SurveyChange::Kind kind, std::optional<Edit> edit, const Survey& before);

  std::unique_ptr<State> mState;
  std::size_t mIndex = 0;     ///< steps that are done
  std::uint64_t mPushed = 0;  ///< steps ever made
  std::uint64_t mTold = 0;    ///< of them, that observers know of
  std::optional<std::size_t> mClean = 0;
  std::size_t mUndoMemory = kUndoMemory;
  std::size_t mDropped = 0;
  std::uint64_t mRevision = 0;
  bool mChanging = false;
  std::vector<std::weak_ptr<Observer>> mObservers;
};

/// An edit under way, which ends abandoned unless it is committed.
class OpenEdit {
 public:
  OpenEdit(Session& session, Edit edit, bool decided = false)
      : mSession(session), mOpen(session.begin(edit, decided)) {}
  ~OpenEdit() {
    if (mOpen) mSession.abandon();
  }
  OpenEdit(const OpenEdit&) = delete;
  OpenEdit& operator=(const OpenEdit&) = delete;

  Status preview(const Session::Change& change) {
    return mOpen ? mSession.preview(change) : inTheWay();
  }
  Status commit(const Session::Change& change) {
    if (!mOpen) return inTheWay();
    mOpen = false;
    return mSession.commit(change);
  }

 private:
  /// What is open is the edit of somebody else.
  static Status inTheWay() {
    return Status::failure(Message::tr("another edit is under way; try again when it is through"));
  }

  Session& mSession;
  bool mOpen;
};

}  // namespace talvesk
