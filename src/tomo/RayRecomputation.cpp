#include "tomo/RayRecomputation.h"

#include "tomo/ForwardPass.h"

#include <exception>
#include <string>

namespace talvesk {
namespace {

Status trace(TomoDocument& document, unsigned threads, Log& log, ThreadLines lines) {
  try {
    document.rays.clear();
    ForwardPass pass(document, threads, log, lines);
    const Status status = pass.run("", nullptr, nullptr);
    if (!status.ok()) return status;
    pass.appendRaysTo(document.rays);
    document.timesOfSection = true;
    return status;
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("The rays could not be traced: %1").arg(error.what()));
  }
}

}  // namespace

Status traceSection(TomoDocument& document, unsigned threads, Log& log) {
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  return trace(document, threads, log, ThreadLines::kSilent);
}

Status recomputeRays(TomoDocument& document, Log& log) {
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  const std::size_t cells = document.grid->cellCount();
  if (document.coorcount.size() != cells || document.hitCounts.size() != cells) {
    document.coorcount.assign(cells, 0.0);
    document.hitCounts.assign(cells, 0);
  }
  return trace(document, searchThreads(), log, ThreadLines::kTold);
}

}  // namespace talvesk
