#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "grid/VelocityLayers.h"
#include "model/RefractionDataStructure.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A layered interpretation as ground: what velocity lies at which depth below which place of the
/// line. Depths and velocities run straight from receiver to receiver, across receivers where they
/// are not known, too, and stay beyond the first and the last one. Positions are survey positions.
class LayeredProfile {
 public:
  /// Fails without a velocity of the first layer, and without depth and velocity of the first
  /// refractor at one receiver at least.
  static Status read(const refractionDataStructure::processingData& results, LayeredProfile& out);

  std::size_t refractors() const { return mRefractors.size(); }  ///< 1 or 2
  double firstX(std::size_t refractor) const;  ///< first and last receiver with a depth, metres
  double lastX(std::size_t refractor) const;

  /// Metres below the surface; not negative, and none above that of the refractor before.
  /// \param refractor from 0
  double depth(std::size_t refractor, double x) const;
  /// m/s. \param layer from 0
  double velocity(std::size_t layer, double x) const;
  /// The depth as it was built: none beyond the receivers and beside one without a depth.
  std::optional<double> knownDepth(std::size_t refractor, double x) const;

  /// Layers from the surface down, each with one velocity.
  std::vector<VelocityLayer> columnAt(double x) const;

  /// A velocity between that of the layer above a refractor and its own, m/s: the middle of their
  /// medians along the line, to 50 m/s.
  double middleVelocity(std::size_t refractor) const;

  /// What was filled or changed, for whoever takes this for the ground.
  const std::vector<Message>& notes() const { return mNotes; }

 private:
  struct Known {
    double x;
    double value;
  };
  struct Refractor {
    std::vector<double> x;      ///< receivers, ascending
    std::vector<double> depth;  ///< as built, one per receiver
    std::vector<Known> depths;  ///< those known, ascending x; not empty
    std::vector<Known> velocities;
  };
  static double along(const std::vector<Known>& known, double x);
  bool take(std::size_t index, const refractionDataStructure::computedData& data);
  void noteCrossings();

  double mV1 = 0.0;
  std::vector<Refractor> mRefractors;
  std::vector<Message> mNotes;
};

/// Gives every cell of the document's grid the velocity of the layer that its middle lies in.
/// \param thickness metres over which the jumps between layers are graded; 0: sharp
/// \param notes what was filled, held or cannot be seen in this grid
/// What an inversion through the grid before left is forgotten; the list of layers stays. Fails as
/// LayeredProfile::read() does and without a grid; then the document is as before.
Status startFromProfile(TomoDocument& document,
                        const refractionDataStructure::processingData& results, double thickness,
                        std::vector<Message>& notes);

}  // namespace talvesk
