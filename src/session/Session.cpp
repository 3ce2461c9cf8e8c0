#include "session/Session.h"

#include "io/Survey.h"
#include "session/TableRules.h"

#include <algorithm>
#include <deque>
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

struct Session::Step {
  Edit edit;
  Message text;
  std::string key;
  Survey other;           ///< the survey before the step, or after it once it is undone
  std::size_t bytes = 0;  ///< that it does not share with the survey on the other side
  bool proposes = false;  ///< the cell sizes that are proposed are others on the other side
};

struct Session::Open {
  Edit edit;
  Survey before;
  bool decided;
};

struct Session::State {
  Survey survey;
  std::deque<Step> steps;
  std::optional<Open> open;
};

Session::Session() : mState(std::make_unique<State>()) {}
Session::~Session() = default;

const Survey& Session::survey() const {
  return mState->survey;
}

const TomoDocument& Session::document() const {
  return mState->survey.document;
}

const Survey& Session::settled() const {
  return isOpen() && !mState->open->decided ? mState->open->before : mState->survey;
}

bool Session::isOpen() const {
  return mState->open.has_value();
}

bool Session::modified() const {
  return mClean != mIndex || (isOpen() && mState->open->decided);
}

bool Session::canUndo() const {
  return mIndex > 0 && !isOpen();
}

bool Session::canRedo() const {
  return mIndex < mState->steps.size() && !isOpen();
}

std::size_t Session::steps() const {
  return mState->steps.size();
}

void Session::amend(const std::function<void(Survey&)>& change) {
  change(mState->survey);
}

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
  Survey next = mState->survey;
  Status status = run(edit, change, mState->survey, next);
  if (!status.ok()) return status;
  std::swap(mState->survey, next);
  if (text.empty()) text = ruleOf(edit).text;
  push({edit, std::move(text), key, next, 0});
  tell(SurveyChange::Kind::kEdit, edit, next);
  return status;
}

bool Session::begin(Edit edit, bool decided) {
  if (mChanging || isOpen()) return false;
  mState->open = Open{edit, mState->survey, decided};
  tell(SurveyChange::Kind::kPreview, edit, mState->open->before);
  return true;
}

Status Session::preview(const Change& change) {
  if (!isOpen()) return Status::failure(Message::tr("no edit is under way"));
  Survey next = mState->open->before;
  keepView(mState->survey.section, next.section);
  Status status = run(mState->open->edit, change, mState->open->before, next);
  if (!status.ok()) return status;
  std::swap(mState->survey, next);
  tell(SurveyChange::Kind::kPreview, mState->open->edit, next);
  return status;
}

Status Session::commit(const Change& change) {
  if (!isOpen()) return Status::failure(Message::tr("no edit is under way"));
  Survey next = mState->open->before;
  keepView(mState->survey.section, next.section);
  Status status = run(mState->open->edit, change, mState->open->before, next);
  if (!status.ok()) {
    abandon();
    return status;
  }
  const Open open = *std::exchange(mState->open, std::nullopt);
  std::swap(mState->survey, next);
  push({open.edit, ruleOf(open.edit).text, {}, open.before, 0});
  tell(SurveyChange::Kind::kEdit, open.edit, next);
  return status;
}

void Session::abandon() {
  if (!isOpen()) return;
  Open open = *std::exchange(mState->open, std::nullopt);
  keepView(mState->survey.section, open.before.section);
  std::swap(mState->survey, open.before);
  tell(SurveyChange::Kind::kPreview, open.edit, open.before);
}

void Session::setView(const std::function<void(SectionViewSettings&)>& change) {
  const Survey before = mState->survey;
  SectionViewSettings view = mState->survey.section;
  change(view);
  keepView(view, mState->survey.section);
  tell(SurveyChange::Kind::kView, std::nullopt, before);
}

Message Session::undoText() const {
  return canUndo() ? mState->steps[mIndex - 1].text : Message();
}

Message Session::redoText() const {
  return canRedo() ? mState->steps[mIndex].text : Message();
}

void Session::undo() {
  if (!canUndo()) return;
  exchange(mState->steps[--mIndex], Way::kBack);
}

void Session::redo() {
  if (!canRedo()) return;
  exchange(mState->steps[mIndex++], Way::kForth);
}

/// The survey and that on the other side of a step change places.
void Session::exchange(Step& step, Way way) {
  const Survey before = mState->survey;
  const Edit edit = step.edit;
  std::swap(mState->survey, step.other);
  keepView(before.section, mState->survey.section);
  if (!step.proposes) {
    mState->survey.document.proposedCellSizes = before.document.proposedCellSizes;
  }
  step.bytes = bytesNotShared(step.other, mState->survey);
  dropFarthest(way);
  tell(way == Way::kBack ? SurveyChange::Kind::kUndo : SurveyChange::Kind::kRedo, edit, before);
}

void Session::push(Step step) {
  PartSet parts = differingParts(step.other, mState->survey);
  parts.remove(Part::kView);
  if (parts.empty()) return;
  if (mClean && *mClean > mIndex) mClean.reset();  // it was undone, and now nothing leads there
  mState->steps.resize(mIndex);
  const bool merges = !step.key.empty() && mIndex > 0 && mState->steps.back().key == step.key &&
                      mState->steps.back().edit == step.edit && mClean != mIndex;
  if (!merges) {
    mState->steps.push_back(std::move(step));
    ++mIndex;
  }
  ++mPushed;
  Step& last = mState->steps.back();
  last.bytes = bytesNotShared(last.other, mState->survey);
  last.proposes = last.other.document.proposedCellSizes != document().proposedCellSizes;
  dropFarthest(Way::kForth);
}

/// Going forth the oldest steps go first, going back those that would be done again last. The next
/// step either way stays, whatever it costs: who made it may want to take it back.
void Session::dropFarthest(Way way) {
  const auto dropFirst = [this] {
    mState->steps.pop_front();
    --mIndex;
    if (mClean) mClean = *mClean > 0 ? std::optional<std::size_t>(*mClean - 1) : std::nullopt;
  };
  const auto dropLast = [this] {
    mState->steps.pop_back();
    if (mClean && *mClean > mState->steps.size()) mClean.reset();
  };
  while (undoMemory() > mUndoMemory) {
    const bool first = mIndex > 1;
    const bool last = mState->steps.size() > mIndex + 1;
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
  mState->open.reset();
  fitMarksToRecords(survey);
  std::swap(mState->survey, survey);
  mState->steps.clear();
  mIndex = 0;
  mDropped = 0;
  mClean = saved ? std::optional<std::size_t>(0) : std::nullopt;
  tell(SurveyChange::Kind::kOpened, std::nullopt, survey);
}

void Session::markSaved() {
  mClean = mIndex;
  const Survey before = mState->survey;
  tell(SurveyChange::Kind::kSaved, std::nullopt, before);
}

void Session::setUndoMemory(std::size_t bytes) {
  mUndoMemory = bytes;
  dropFarthest(Way::kForth);
}

std::size_t Session::undoMemory() const {
  std::size_t bytes = 0;
  for (const Step& step : mState->steps) bytes += step.bytes;
  return bytes;
}

void Session::tell(SurveyChange::Kind kind, std::optional<Edit> edit, const Survey& before) {
  const bool other = kind == SurveyChange::Kind::kOpened;
  const SurveyChange change = {
      kind, edit, other ? PartSet::all() : differingParts(before, mState->survey), before};
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
