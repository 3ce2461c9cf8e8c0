#include "grid/GridBuilder.h"

#include "base/AvailableMemory.h"
#include "base/Console.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <sstream>

namespace talvesk {
namespace {

/// A time per node; per corner and the two sides that begin at it the bucket of each, and which
/// nodes of the sides have changed; per cell its latest time and its place among the crossed ones.
double searchBytes(const GridSize& size) {
  const double corners = (size.righe + 1.0) * (size.col + 1.0);
  const double inner = std::max(size.nV, 2U) - 2.0;
  const double perCorner =
      (2.0 * inner + 1.0) * 8.0 + 3.0 * 8.0 + 2.0 * std::ceil(inner / 32.0) * 4.0;
  return corners * perCorner + static_cast<double>(size.righe) * size.col * 12.0;
}

/// Runs a builder; what it throws becomes a line on the error stream.
std::unique_ptr<Grid> guarded(const std::function<std::unique_ptr<Grid>()>& build) {
  try {
    return build();
  } catch (const std::exception& error) {
    console::error() << error.what() << " : Error creating the grid " << std::endl;
  } catch (...) {
    console::error() << "Unknown exception"
                     << " : Error creating the grid " << std::endl;
  }
  return nullptr;
}

}  // namespace

double defaultVelocity(double depth) {
  if (depth < 3.0) return 90.0 * depth + 200.0;
  if (depth <= 20.0) return 50.0 * depth + 1000.0;
  return 25.0 * depth + 2500.0;
}

GridSize gridSizeFor(double arrayLength, double maxDepth, double cellSize, std::uint32_t nodes) {
  const auto count = [](double cells) {
    constexpr double kLimit = std::numeric_limits<std::uint32_t>::max();
    if (!(cells > 0.0)) return std::uint32_t{0};
    return cells >= kLimit ? std::numeric_limits<std::uint32_t>::max()
                           : static_cast<std::uint32_t>(cells);
  };
  GridSize size;
  size.col = count(arrayLength / cellSize);
  size.righe = count(std::round(maxDepth / cellSize));
  size.nV = nodes;
  size.aLato = cellSize;
  return size;
}

double estimatedGridBytes(const GridSize& size, unsigned searches) {
  const double cells = static_cast<double>(size.righe) * size.col;
  const double lineNodes = (size.righe + 1.0) * (size.col * (size.nV - 1.0) + 1.0);
  // Line depths and slownesses.
  return lineNodes * 8.0 + cells * 9.0 + searches * searchBytes(size);
}

Status checkGridSize(const GridSize& size, unsigned searches) {
  const double nodes = size.nodesAsNumber();
  const auto failed = [&size](Message why) {
    return Status::failure(Message::tr("A grid of %1 rows and %2 columns with %3 nodes per side %4")
                               .arg(size.righe)
                               .arg(size.col)
                               .arg(size.nV)
                               .arg(std::move(why)));
  };
  // No rows are allowed: a depth of 0 only warns, and there is nothing to draw or trace yet.
  if (size.col == 0) {
    return failed(Message::tr("has no cells; choose cells smaller than the array is long."));
  }
  if (nodes > GridSize::kMaxNodes) {
    return failed(Message::tr("has %1 nodes; at most %2 can be numbered. Choose larger cells or a "
                              "smaller depth.")
                      .arg(Message::number(nodes, 12))
                      .arg(Message::number(GridSize::kMaxNodes, 12)));
  }
  const double needed = estimatedGridBytes(size, searches);
  const double available = availableMemory();
  if (needed > available) {
    return failed(Message::tr("needs about %1 MiB, but only %2 MiB are free. Choose larger cells "
                              "or a smaller depth.")
                      .arg(Message::number(std::ceil(needed / 1048576.0), 15))
                      .arg(Message::number(std::floor(available / 1048576.0), 15)));
  }
  return {};
}

std::unique_ptr<Grid> buildDefaultGrid(const GridSize& size, const Splines::Spline& surface) {
  return buildGridFromVelocity(size, defaultVelocity, surface);
}

std::unique_ptr<Grid> buildGridFromValues(const GridSize& size, std::vector<double> slownesses,
                                          const Splines::Spline& surface) {
  return guarded([&] {
    return std::make_unique<Grid>(std::make_shared<GridGeometry>(size, surface),
                                  std::move(slownesses));
  });
}

std::unique_ptr<Grid> buildGridFromVelocity(const GridSize& size,
                                            const std::function<double(double)>& velocityOfDepth,
                                            const Splines::Spline& surface) {
  return guarded([&] {
    std::vector<double> slownesses;
    slownesses.reserve(size.cellCount());
    for (std::uint32_t iz = 0; iz < size.righe; ++iz) {
      slownesses.insert(slownesses.end(), size.col, 1.0 / velocityOfDepth(iz * size.aLato));
    }
    return std::make_unique<Grid>(std::make_shared<GridGeometry>(size, surface),
                                  std::move(slownesses));
  });
}

}  // namespace talvesk
