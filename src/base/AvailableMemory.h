#pragma once

namespace talvesk {

/// Memory that could be had without swapping, bytes; infinite where the system does not tell.
double availableMemory();

}  // namespace talvesk
