#include "widgets/PickEdit.h"

#include "model/TomoDocument.h"

#include <cstddef>

namespace talvesk {

void PickReview::set(std::int32_t shot, std::int32_t trace, bool waits) {
  if (waits) {
    mWaiting.insert({shot, trace});
  } else {
    mWaiting.erase({shot, trace});
  }
}

void PickReview::markShot(const TomoDocument& document, std::int32_t shot) {
  if (shot < 0 || static_cast<std::size_t>(shot) >= document.ttArray.size()) return;
  std::int32_t trace = 0;
  for (const double time : document.ttArray[static_cast<std::size_t>(shot)].ttMisurati) {
    set(shot, trace++, hasPick(time));
  }
}

PickEditCommand::PickEditCommand(const QString& text, TomoDocument& document, PickReview& review,
                                 std::int32_t shot, std::vector<PickChange> changes, Merge merge,
                                 std::function<void(const PickEditEffect&)> done)
    : QUndoCommand(text),
      mDocument(document),
      mReview(review),
      mShot(shot),
      mChanges(std::move(changes)),
      mMerge(merge),
      mDone(std::move(done)) {}

void PickEditCommand::undo() {
  apply(false);
}

void PickEditCommand::redo() {
  apply(true);
}

void PickEditCommand::apply(bool forward) {
  if (mShot < 0 || static_cast<std::size_t>(mShot) >= mDocument.ttArray.size()) return;
  std::vector<double>& times = mDocument.ttArray[static_cast<std::size_t>(mShot)].ttMisurati;
  PickEditEffect effect;
  effect.shot = mShot;
  for (const PickChange& change : mChanges) {
    if (change.trace < 0 || static_cast<std::size_t>(change.trace) >= times.size()) continue;
    double& time = times[static_cast<std::size_t>(change.trace)];
    const double wanted = forward ? change.after : change.before;
    effect.added = effect.added || (!hasPick(time) && hasPick(wanted));
    effect.timesChanged = effect.timesChanged || time != wanted;
    time = wanted;
    mReview.set(mShot, change.trace, forward ? change.waitsAfter : change.waitedBefore);
  }
  if (effect.timesChanged) mDocument.modified = true;
  if (mDone) mDone(effect);
}

bool PickEditCommand::mergeWith(const QUndoCommand* later) {
  const auto* other = dynamic_cast<const PickEditCommand*>(later);
  if (other == nullptr || other->mMerge != Merge::KeyHeld || other->mShot != mShot) return false;
  if (mChanges.size() != 1 || other->mChanges.size() != 1) return false;
  if (mChanges[0].trace != other->mChanges[0].trace) return false;
  mChanges[0].after = other->mChanges[0].after;
  mChanges[0].waitsAfter = other->mChanges[0].waitsAfter;
  return true;
}

}  // namespace talvesk
