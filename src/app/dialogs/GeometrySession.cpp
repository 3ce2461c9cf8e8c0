#include "app/dialogs/GeometrySession.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kMostSteps = 100;

}  // namespace

GeometrySession::GeometrySession(SurveyGeometry geometry, QObject* parent)
    : QObject(parent),
      mNow(std::move(geometry)),
      mMistakes(geometryMistakes(mNow)),
      mCurrent(mNow.strings.empty() ? -1 : 0) {}

const GeophoneString& GeometrySession::string() const {
  static const GeophoneString kNone;
  return mCurrent < 0 ? kNone : mNow.strings[static_cast<std::size_t>(mCurrent)];
}

void GeometrySession::setCurrentString(int string) {
  const int count = static_cast<int>(mNow.strings.size());
  const int next = std::clamp(string, count == 0 ? -1 : 0, count - 1);
  if (next == mCurrent) return;
  mCurrent = next;
  emit changed();
}

void GeometrySession::take(SurveyGeometry next) {
  mForth.clear();
  if (mBack.size() == kMostSteps) mBack.erase(mBack.begin());
  mBack.push_back(std::move(mNow));
  show(std::move(next));
}

void GeometrySession::undo() {
  if (mBack.empty()) return;
  mForth.push_back(std::move(mNow));
  SurveyGeometry before = std::move(mBack.back());
  mBack.pop_back();
  show(std::move(before));
}

void GeometrySession::redo() {
  if (mForth.empty()) return;
  mBack.push_back(std::move(mNow));
  SurveyGeometry after = std::move(mForth.back());
  mForth.pop_back();
  show(std::move(after));
}

void GeometrySession::show(SurveyGeometry geometry) {
  mNow = std::move(geometry);
  const int count = static_cast<int>(mNow.strings.size());
  mCurrent = std::clamp(mCurrent, count == 0 ? -1 : 0, count - 1);
  mMistakes = geometryMistakes(mNow);
  emit changed();
}

}  // namespace talvesk
