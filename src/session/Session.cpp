#include "session/Session.h"

#include "session/TableRules.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace talvesk {
namespace {

/// What undo leaves alone of a section: all but its contours and its range of colours.
void keepView(const SectionViewSettings& view, SectionViewSettings& section) {
  SectionViewSettings kept = view;
  kept.contours = section.contours;
  kept.lockRange = section.lockRange;
  section = std::move(kept);
}

}  // namespace

Session::Session() = default;

Session::Subscription Session::subscribe(Observer observer) {
  auto subscription = std::make_shared<Observer>(std::move(observer));
  mObservers.push_back(subscription);
  return subscription;
}

/// \param before what the rule compares with
Status Session::run(Edit edit, const Change& change, const Survey& before, Survey& next) {
  if (mChanging) {
    return Status::failure(Message::tr("another edit is under way; try again when it is through"));
  }
  mChanging = true;
  Status status;
  try {
    status = change(next);
  } catch (const std::exception& error) {
    status = Status::failure(Message::tr("the edit failed: %1").arg(error.what()));
  }
  mChanging = false;
  return status.ok() ? followTable(edit, before, next) : status;
}

Status Session::apply(Edit edit, const Change& change, Message text) {
  return applyMerging(edit, change, {}, std::move(text));
}

Status Session::applyMerging(Edit edit, const Change& change, const std::string& key,
                             Message text) {
  if (isOpen()) {
    return Status::failure(Message::tr("another edit is under way; try again when it is through"));
  }
  Survey next = mSurvey;
  Status status = run(edit, change, mSurvey, next);
  if (!status.ok()) return status;
  std::swap(mSurvey, next);
  if (text.empty()) text = ruleOf(edit).text;
  push({edit, std::move(text), key, next, 0});
  tell(SurveyChange::Kind::kEdit, edit, next);
  return status;
}

bool Session::begin(Edit edit, bool decided) {
  if (mChanging || isOpen()) return false;
  mOpen = Open{edit, mSurvey, decided};
  tell(SurveyChange::Kind::kPreview, edit, mOpen->before);
  return true;
}

Status Session::preview(const Change& change) {
  if (!isOpen()) return Status::failure(Message::tr("no edit is under way"));
  Survey next = mOpen->before;
  keepView(mSurvey.section, next.section);
  Status status = run(mOpen->edit, change, mOpen->before, next);
  if (!status.ok()) return status;
  std::swap(mSurvey, next);
  tell(SurveyChange::Kind::kPreview, mOpen->edit, next);
  return status;
}

Status Session::commit(const Change& change) {
  if (!isOpen()) return Status::failure(Message::tr("no edit is under way"));
  Survey next = mOpen->before;
  keepView(mSurvey.section, next.section);
  Status status = run(mOpen->edit, change, mOpen->before, next);
  if (!status.ok()) {
    abandon();
    return status;
  }
  const Open open = *std::exchange(mOpen, std::nullopt);
  std::swap(mSurvey, next);
  push({open.edit, ruleOf(open.edit).text, {}, open.before, 0});
  tell(SurveyChange::Kind::kEdit, open.edit, next);
  return status;
}

void Session::abandon() {
  if (!isOpen()) return;
  Open open = *std::exchange(mOpen, std::nullopt);
  keepView(mSurvey.section, open.before.section);
  std::swap(mSurvey, open.before);
  tell(SurveyChange::Kind::kPreview, open.edit, open.before);
}

void Session::setView(const std::function<void(SectionViewSettings&)>& change) {
  const Survey before = mSurvey;
  SectionViewSettings view = mSurvey.section;
  change(view);
  keepView(view, mSurvey.section);
  tell(SurveyChange::Kind::kView, std::nullopt, before);
}

Message Session::undoText() const {
  return canUndo() ? mSteps[mIndex - 1].text : Message();
}

Message Session::redoText() const {
  return canRedo() ? mSteps[mIndex].text : Message();
}

void Session::undo() {
  if (!canUndo()) return;
  exchange(mSteps[--mIndex], Way::kBack);
}

void Session::redo() {
  if (!canRedo()) return;
  exchange(mSteps[mIndex++], Way::kForth);
}

/// The survey and that on the other side of a step change places.
void Session::exchange(Step& step, Way way) {
  const Survey before = mSurvey;
  const Edit edit = step.edit;
  std::swap(mSurvey, step.other);
  keepView(before.section, mSurvey.section);
  step.bytes = bytesNotShared(step.other, mSurvey);
  dropFarthest(way);
  tell(way == Way::kBack ? SurveyChange::Kind::kUndo : SurveyChange::Kind::kRedo, edit, before);
}

void Session::push(Step step) {
  PartSet parts = differingParts(step.other, mSurvey);
  parts.remove(Part::kView);
  if (parts.empty()) return;
  if (mClean && *mClean > mIndex) mClean.reset();  // it was undone, and now nothing leads there
  mSteps.resize(mIndex);
  const bool merges = !step.key.empty() && mIndex > 0 && mSteps.back().key == step.key &&
                      mSteps.back().edit == step.edit && mClean != mIndex;
  if (!merges) {
    mSteps.push_back(std::move(step));
    ++mIndex;
  }
  ++mPushed;
  mSteps.back().bytes = bytesNotShared(mSteps.back().other, mSurvey);
  dropFarthest(Way::kForth);
}

/// Going forth the oldest steps go first, going back those that would be done again last. The next
/// step either way stays, whatever it costs: who made it may want to take it back.
void Session::dropFarthest(Way way) {
  const auto dropFirst = [this] {
    mSteps.pop_front();
    --mIndex;
    if (mClean) mClean = *mClean > 0 ? std::optional<std::size_t>(*mClean - 1) : std::nullopt;
  };
  const auto dropLast = [this] {
    mSteps.pop_back();
    if (mClean && *mClean > mSteps.size()) mClean.reset();
  };
  while (undoMemory() > mUndoMemory) {
    const bool first = mIndex > 1;
    const bool last = mSteps.size() > mIndex + 1;
    if (!first && !last) break;
    if (first && (way == Way::kForth || !last)) {
      dropFirst();
    } else {
      dropLast();
    }
    ++mDropped;
  }
}

void Session::open(Survey survey, bool saved) {
  mOpen.reset();
  fitMarksToRecords(survey);
  std::swap(mSurvey, survey);
  mSteps.clear();
  mIndex = 0;
  mDropped = 0;
  mClean = saved ? std::optional<std::size_t>(0) : std::nullopt;
  tell(SurveyChange::Kind::kOpened, std::nullopt, survey);
}

void Session::markSaved() {
  mClean = mIndex;
  const Survey before = mSurvey;
  tell(SurveyChange::Kind::kSaved, std::nullopt, before);
}

void Session::setUndoMemory(std::size_t bytes) {
  mUndoMemory = bytes;
  dropFarthest(Way::kForth);
}

std::size_t Session::undoMemory() const {
  std::size_t bytes = 0;
  for (const Step& step : mSteps) bytes += step.bytes;
  return bytes;
}

void Session::tell(SurveyChange::Kind kind, std::optional<Edit> edit, const Survey& before) {
  const bool other = kind == SurveyChange::Kind::kOpened;
  const SurveyChange change = {kind, edit, other ? PartSet::all() : differingParts(before, mSurvey),
                               before};
  // What begins, ends or is saved as it was shown may still count as modified or not, or be a step.
  const bool step = kind == SurveyChange::Kind::kEdit && mPushed != mTold;
  const bool looks = kind == SurveyChange::Kind::kView || kind == SurveyChange::Kind::kEdit;
  mTold = mPushed;
  if (change.parts.empty() && looks && !step) return;
  if (!change.parts.empty()) ++mRevision;
  // Observers may come and go while they are told.
  const std::vector<std::weak_ptr<Observer>> observers = mObservers;
  for (const auto& observer : observers) {
    if (const auto alive = observer.lock()) (*alive)(change);
  }
  mObservers.erase(std::remove_if(mObservers.begin(), mObservers.end(),
                                  [](const auto& observer) { return observer.expired(); }),
                   mObservers.end());
}

}  // namespace talvesk
