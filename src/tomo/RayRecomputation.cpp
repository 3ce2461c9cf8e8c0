#include "tomo/RayRecomputation.h"

#include "tomo/ForwardPass.h"

#include <exception>
#include <string>

namespace talvesk {

Status recomputeRays(TomoDocument& document, Log& log) {
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  try {
    document.rays.clear();
    document.coorcount.assign(document.grid->cellCount(), 0.0);
    document.hitCounts.assign(document.grid->cellCount(), 0);
    ForwardPass pass(document, searchThreads(), log);
    const Status status = pass.run("", nullptr, nullptr);
    if (status.ok()) pass.appendRaysTo(document.rays);
    return status;
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("The rays could not be traced: %1").arg(error.what()));
  }
}

}  // namespace talvesk
