#include "app/presenters/ShotInView.h"

#include "model/TomoDocument.h"

namespace talvesk {

ShotInView::ShotInView(Session& session)
    : mSession(session), mSubscription(session.subscribe([this](const SurveyChange&) {
        if (mIndex >= count()) mIndex = count() - 1;
      })) {}

int ShotInView::count() const {
  return static_cast<int>(mSession.document().ttArray.size());
}

void ShotInView::show(int index) {
  mIndex = index >= 0 && index < count() ? index : -1;
  emit changed();
}

void ShotInView::showNext() {
  if (count() > 0) show((mIndex + 1) % count());
}

void ShotInView::showPrevious() {
  if (count() > 0) show(mIndex <= 0 ? count() - 1 : mIndex - 1);
}

}  // namespace talvesk
