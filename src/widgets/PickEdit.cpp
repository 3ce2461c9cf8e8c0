#include "widgets/PickEdit.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace talvesk {

void PickReview::set(std::int32_t shot, std::int32_t trace, bool waits) {
  if (waits) {
    mWaiting.insert({shot, trace});
  } else {
    mWaiting.erase({shot, trace});
  }
}

std::vector<PickChange> PickReview::replaced(const TomoDocument& document, std::int32_t shot,
                                             const std::vector<double>& before) const {
  std::vector<PickChange> changes;
  if (shot < 0 || static_cast<std::size_t>(shot) >= document.ttArray.size()) return changes;
  const std::vector<double>& after = document.ttArray[static_cast<std::size_t>(shot)].ttMisurati;
  for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
    const auto trace = static_cast<std::int32_t>(i);
    const PickChange change = {trace, before[i], after[i], waits(shot, trace), hasPick(after[i])};
    if (before[i] != after[i] || change.waitedBefore != change.waitsAfter)
      changes.push_back(change);
  }
  return changes;
}

PickEditCommand::PickEditCommand(const QString& text, TomoDocument& document, PickReview& review,
                                 std::int32_t shot, std::vector<PickChange> changes, Merge merge,
                                 std::function<void(const PickEditEffect&)> done,
                                 QUndoCommand* parent)
    : QUndoCommand(text, parent),
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
  std::vector<double>& times =
      mDocument.ttArray.edit()[static_cast<std::size_t>(mShot)].ttMisurati.edit();
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

PickBatchCommand::PickBatchCommand(const QString& text, std::function<std::int32_t()> preferredShot,
                                   std::function<void(const PickEditEffect&)> done)
    : QUndoCommand(text), mPreferredShot(std::move(preferredShot)), mDone(std::move(done)) {}

void PickBatchCommand::add(TomoDocument& document, PickReview& review, std::int32_t shot,
                           std::vector<PickChange> changes) {
  mShots.insert(shot);
  const auto gather = [this](const PickEditEffect& effect) {
    mEffect.added = mEffect.added || effect.added;
    mEffect.timesChanged = mEffect.timesChanged || effect.timesChanged;
  };
  // The base class owns its children.
  new PickEditCommand(text(), document, review, shot, std::move(changes),
                      PickEditCommand::Merge::No, gather, this);
}

void PickBatchCommand::undo() {
  QUndoCommand::undo();
  tell();
}

void PickBatchCommand::redo() {
  QUndoCommand::redo();
  tell();
}

void PickBatchCommand::tell() {
  if (mShots.empty()) return;
  const std::int32_t preferred = mPreferredShot();
  PickEditEffect effect = std::exchange(mEffect, {});
  effect.shot = mShots.count(preferred) != 0 ? preferred : *mShots.begin();
  mDone(effect);
}

}  // namespace talvesk
