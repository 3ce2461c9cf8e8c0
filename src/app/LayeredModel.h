#pragma once

#include "refraction/LayeredFit.h"
#include "session/Session.h"

#include <QObject>
#include <memory>
#include <optional>

class QWidget;

namespace talvesk {

class BackgroundFit;
struct ProfileErrors;

/// What belongs to the layered profile of the survey and is not kept with it: its computed times
/// and their misfit, which are found when asked for, and the errors that the user had found. All of
/// it is forgotten when picks, marks, positions or the profile become others.
class LayeredModel : public QObject {
  Q_OBJECT

 public:
  explicit LayeredModel(Session& session);
  ~LayeredModel() override;

  bool hasProfile() const;
  bool isOfPicks() const;  ///< there is a profile, and the picks are those that it was built of

  /// Null while it is not found. Without times where the profile is not that of the marks.
  const LayeredFit* fit() const { return mFit ? &*mFit : nullptr; }
  void find();  ///< beside the window; found() follows, unless it is forgotten meanwhile
  /// The same at once, under the wait cursor. \param parent takes no input meanwhile
  const LayeredFit& findNow(QWidget& parent);

  /// Null while nobody had them found.
  const ProfileErrors* errors() const { return mErrors.get(); }
  void setErrors(std::shared_ptr<const ProfileErrors> errors) { mErrors = std::move(errors); }

 signals:
  void found();

 private:
  void forget();

  Session& mSession;
  BackgroundFit* mFitting;
  bool mWanted = false;  ///< what is under way is still that of the survey
  std::optional<LayeredFit> mFit;
  std::shared_ptr<const ProfileErrors> mErrors;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
