#pragma once

#include <QUndoCommand>
#include <cstdint>
#include <functional>
#include <set>
#include <utility>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What an edit does to one trace: its measured time, seconds (kNoTime removes), and whether it
/// waits for confirmation.
struct PickChange {
  std::int32_t trace = 0;
  double before = 0.0;
  double after = 0.0;
  bool waitedBefore = false;
  bool waitsAfter = false;
};

/// Which picks the autopicker set and nobody has confirmed or changed since.
class PickReview {
 public:
  void clear() { mWaiting.clear(); }
  bool waits(std::int32_t shot, std::int32_t trace) const {
    return mWaiting.count({shot, trace}) != 0;
  }
  void set(std::int32_t shot, std::int32_t trace, bool waits);
  /// What an autopicker changed that found the times before and left those that the document has:
  /// all its picks wait. Empty when it changed nothing.
  std::vector<PickChange> replaced(const TomoDocument& document, std::int32_t shot,
                                   const std::vector<double>& before) const;

 private:
  std::set<std::pair<std::int32_t, std::int32_t>> mWaiting;
};

/// What undo or redo did.
struct PickEditEffect {
  std::int32_t shot = -1;
  bool added = false;  ///< a trace without a pick got one
  bool timesChanged = false;
};

/// An edit by hand of the picks of one shot, to be undone and done again. Times of shots and traces
/// that the document no longer has are left out.
class PickEditCommand : public QUndoCommand {
 public:
  /// Commands that merge: as long as a key is held, its steps are one edit.
  enum class Merge { No, KeyHeld };

  /// \param document, review outlive the command \param done told after every undo and redo
  PickEditCommand(const QString& text, TomoDocument& document, PickReview& review,
                  std::int32_t shot, std::vector<PickChange> changes, Merge merge,
                  std::function<void(const PickEditEffect&)> done, QUndoCommand* parent = nullptr);

  void undo() override;
  void redo() override;
  int id() const override { return 1; }
  bool mergeWith(const QUndoCommand* later) override;

 private:
  void apply(bool forward);

  TomoDocument& mDocument;
  PickReview& mReview;
  std::int32_t mShot;
  std::vector<PickChange> mChanges;
  Merge mMerge;
  std::function<void(const PickEditEffect&)> mDone;
};

/// Edits of several shots that are undone and done again together.
class PickBatchCommand : public QUndoCommand {
 public:
  /// \param done told once after every undo and redo of them all; its shot is one of them, the
  /// preferred one if that is among them
  /// \param preferredShot asked at every undo and redo
  PickBatchCommand(const QString& text, std::function<std::int32_t()> preferredShot,
                   std::function<void(const PickEditEffect&)> done);

  /// \param document, review as for PickEditCommand
  void add(TomoDocument& document, PickReview& review, std::int32_t shot,
           std::vector<PickChange> changes);

  void undo() override;
  void redo() override;

 private:
  void tell();

  std::function<std::int32_t()> mPreferredShot;
  std::function<void(const PickEditEffect&)> mDone;
  std::set<std::int32_t> mShots;
  PickEditEffect mEffect;
};

}  // namespace talvesk
