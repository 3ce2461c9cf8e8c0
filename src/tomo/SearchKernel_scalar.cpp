#define TALVESK_SEARCH searchScalar
#define TALVESK_SCALAR_SEARCH
#include "tomo/SearchKernel.inl"
