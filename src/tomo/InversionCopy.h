#pragma once

#include "model/TomoDocument.h"

namespace talvesk {

/// A document with all that an inversion reads and writes, and without the traces, which it does
/// not need. An inversion can work on it while the document itself is on the screen.
/// \param document holds a grid
TomoDocument inversionCopy(const TomoDocument& document);

/// Puts what an inversion of such a copy has reached into the document, whose records are still
/// those that were copied: grid, computed times, rays, coverage, information density, misfit
/// and the record of how the inversion was run.
void takeInversion(TomoDocument& document, const TomoDocument& copy);

}  // namespace talvesk
