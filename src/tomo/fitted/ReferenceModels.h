#pragma once

#include "base/Message.h"
#include "grid/GridGeometry.h"
#include "grid/VelocityLayers.h"
#include "tomo/fitted/FitData.h"
#include "tomo/fitted/GroundColumn.h"
#include "tomo/fitted/RayTracer.h"

#include <functional>
#include <vector>

namespace talvesk {

/// Where a starting or reference model comes from.
enum class ReferenceKind {
  kGradient,            ///< velocity over depth from the concave curve of all times over offset
  kTwoLayers,           ///< a layer on a refractor, by the delay times of the positions
  kThreeLayers,         ///< two layers on a refractor, likewise from above downward
  kOverburdenGradient,  ///< velocity that grows evenly with depth down to a refractor
  kDefault,             ///< the default model of a new grid
  kPresent,             ///< the velocities that the grid has
  kLayers,              ///< the layered interpretation of the survey
  kFile,                ///< the section of another project
  kGiven                ///< anything else from outside
};

Message nameOf(ReferenceKind kind);  ///< as users choose it; empty for kGiven

/// A refractor of a reference model.
struct ReferenceRefractor {
  double velocity = 0.0;       ///< m/s below it
  double crossOver = 0.0;      ///< metres: the usual offset from which its wave comes first
  std::vector<double> depths;  ///< metres below the surface, at ReferenceModel::positions
};

/// Travel times over offset, for a figure beside the picks.
struct TimeCurve {
  std::vector<double> offsets;  ///< metres, ascending from 0
  std::vector<double> times;    ///< seconds, as many
};

/// How the rays through a model fit the picks.
struct StartFit {
  bool known = false;         ///< whether they were traced
  double chi2 = 0.0;          ///< mean of (residual / sigma)^2
  double huber = 0.0;         ///< the same with gross residuals counted by size, not by square
  double score = 0.0;         ///< huber, charged for unknowns and doubt: see rankByStart()
  std::vector<double> times;  ///< seconds by rays, per pick
};

/// Of the model that a new grid has, s/m per cell.
std::vector<double> defaultSlownesses(const GridGeometry& geometry);

/// Slownesses to start from or to be held to, with what they were made of.
struct ReferenceModel {
  ReferenceKind kind = ReferenceKind::kGiven;
  Message name;                    ///< as users choose it
  std::vector<double> slownesses;  ///< s/m, one per cell

  // --- Of the models made from picks.
  Message description;                         ///< velocities, depths and the like, for users
  std::vector<double> positions;               ///< grid abscissas of shots and receivers, metres
  std::vector<double> nearVelocities;          ///< m/s at the surface, at the positions
  double gradient = 0.0;                       ///< of the overburden, 1/s
  std::vector<ReferenceRefractor> refractors;  ///< from above
  VelocityCurve profile;                       ///< of kGradient: velocity over depth
  TimeCurve curve;                             ///< as if the ground were the same along the line
  std::vector<double> times;  ///< seconds per pick by the model's own method; 0 where it has none

  double decided = 0.0;  ///< unknowns' worth that picks have decided; 0 for what is from outside
  double doubt = 1.0;    ///< factor of its score, for what speaks against it beside its times

  StartFit fit;  ///< by rankByStart()
};

/// The models that picks support, and why they do not support the rest.
struct ReferenceModels {
  std::vector<ReferenceModel> models;
  std::vector<Message> refused;  ///< each with the name of its model
};

/// Makes the four kinds of models that picks can be read as. The result depends on nothing else and
/// is made by this call alone, so any number of threads may make models. Whatever the picks are,
/// slownesses lie within the bounds and no number is NaN; a model that they do not support is
/// refused.
/// \param bounds of the velocities of cells, and of refractors to be believed
ReferenceModels referenceModels(const FitData& data, const GridGeometry& geometry,
                                const VelocityBounds& bounds = {});

/// Traces each model and puts the one first that fits best: by the Huber mean, as gross errors of
/// picks say nothing about a model, and ln(n) / n for each unknown that the n picks have decided
/// (Schwarz 1978, Annals of Statistics 6, 461-464), as a model with more of them comes nearer to
/// any picks. Equal ones keep their order.
/// \param models not empty of cells, of the tracer's grid
/// \param goOn as for RayTracer::trace()
/// \return false when it was stopped; the models are then as they were
bool rankByStart(std::vector<ReferenceModel>& models, const FitData& data, RayTracer& tracer,
                 const std::function<bool()>& goOn);

}  // namespace talvesk
