#include "tomo/fitted/EnsembleVariation.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// The values of a list, each once, in the order of their first; one that is not given is the
/// fit's.
std::vector<bool> choices(const std::vector<bool>& list, bool ofFit) {
  std::vector<bool> once;
  for (const bool value : list) {
    if (std::find(once.begin(), once.end(), value) == once.end()) once.push_back(value);
  }
  return once.empty() ? std::vector<bool>{ofFit} : once;
}

}  // namespace

std::vector<FitManner> mannersOf(const EnsembleVariation& vary, const FittedOptions& fit) {
  std::vector<FitManner> manners;
  for (const bool robust : choices(vary.robust, fit.robust)) {
    for (const bool blocky : choices(vary.blocky, fit.blocky)) {
      for (const bool statics : choices(vary.statics, fit.statics)) {
        manners.push_back({robust, blocky, statics});
      }
    }
  }
  return manners;
}

Message namedWith(Message model, const FitManner& manner, const EnsembleVariation& vary) {
  const auto add = [&](const std::vector<bool>& list, Message setting) {
    if (!list.empty()) {
      model = Message::tr("%1, %2").arg(std::move(model)).arg(std::move(setting));
    }
  };
  add(vary.robust, manner.robust ? Message::tr("robust") : Message::tr("not robust"));
  add(vary.blocky, manner.blocky ? Message::tr("blocky") : Message::tr("smooth"));
  add(vary.statics, manner.statics ? Message::tr("shots shifted") : Message::tr("no shot shifted"));
  return model;
}

}  // namespace talvesk
