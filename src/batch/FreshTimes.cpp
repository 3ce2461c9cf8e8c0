#include "batch/FreshTimes.h"

#include "base/Log.h"
#include "batch/Failure.h"
#include "model/LeftOut.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/RayRecomputation.h"

namespace talvesk {

Status traceFreshTimes(TomoDocument& document, const std::string& project) {
  if (!document.result->has_tomographic_info) return {};
  const std::string begin = project.empty() ? std::string() : project + ": ";
  Log log;
  const Status status = recomputeRays(document, log);
  for (const std::string& line : describe(leftOut(document, document.result->excluded), document)) {
    warn(begin + line);
  }
  if (picksChangedSince(document)) warn(begin + "picks have changed since the inversion");
  return status;
}

}  // namespace talvesk
