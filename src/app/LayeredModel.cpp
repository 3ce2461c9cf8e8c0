#include "app/LayeredModel.h"

#include "app/BackgroundFit.h"
#include "app/BusyWork.h"
#include "io/Survey.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/ProfileOrigin.h"
#include "refraction/WeighedPicks.h"
#include "refraction/methods/ProfileErrors.h"

namespace talvesk {

LayeredModel::LayeredModel(Session& session)
    : mSession(session), mFitting(new BackgroundFit(this)) {
  connect(mFitting, &BackgroundFit::found, this, [this](const LayeredFit& fit) {
    if (!mWanted) return;
    mWanted = false;
    mFit = fit;
    emit found();
  });
  PartSet restsOn;
  for (const Part part : {Part::kPicks, Part::kGeometry, Part::kMarks, Part::kProfile}) {
    restsOn.add(part);
  }
  mSubscription = session.subscribe([this, restsOn](const SurveyChange& change) {
    if (change.kind == SurveyChange::Kind::kOpened || change.parts.any(restsOn)) forget();
  });
}

LayeredModel::~LayeredModel() = default;

void LayeredModel::forget() {
  mWanted = false;
  mFit.reset();
  mErrors.reset();
}

bool LayeredModel::hasProfile() const {
  return !mSession.survey().interpretation->refractData.cData.empty();
}

bool LayeredModel::isOfPicks() const {
  return hasProfile() &&
         !picksChangedSince(mSession.document(), mSession.survey().interpretation->refractData);
}

void LayeredModel::find() {
  if (mFit || mWanted) return;
  mWanted = true;
  std::vector<ShotArrivals> shots = shotArrivals(mSession.document());
  std::vector<std::vector<double>> errors = pickErrors(mSession.document(), shots);
  mFitting->start(std::move(shots), std::move(errors), *mSession.survey().interpretation,
                  fitOfOwnProfile);
}

const LayeredFit& LayeredModel::findNow(QWidget& parent) {
  if (mFit) return *mFit;
  mWanted = false;
  const std::vector<ShotArrivals> shots = shotArrivals(mSession.document());
  const std::vector<std::vector<double>> errors = pickErrors(mSession.document(), shots);
  const Shared<refractionDataStructure::Interpretation> records = mSession.survey().interpretation;
  mFit = whileBusy(parent, [&] { return fitOfOwnProfile(shots, errors, *records); });
  emit found();
  return *mFit;
}

}  // namespace talvesk
