#pragma once

namespace talvesk {

class TomoDocument;
struct SurveyProfile;

/// What a change of the survey costs of the model of the ground, least first.
enum class ModelLoss {
  kNothing,
  kResults,  ///< of the inversion: rays, computed times, coverage, misfit; the grid stays
  kGrid      ///< the grid as well
};

/// What is lost when geophones and shots come to be others than those of the document. A grid hangs
/// on the surface and the ends of the line only, so that one more shot on the line costs no grid;
/// the results of an inversion are those of all its shots.
/// \param next the survey as it will be
ModelLoss modelLoss(const TomoDocument& document, const SurveyProfile& next);

/// Forgets that much. A grid that stays keeps its velocities and which of its cells are drawn.
/// Without a grid kNothing and kResults leave the document as it is.
void forgetModel(ModelLoss loss, TomoDocument& document);

}  // namespace talvesk
