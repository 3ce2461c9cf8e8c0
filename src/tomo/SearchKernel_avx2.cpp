#define TALVESK_SEARCH searchAvx2
#include "tomo/SearchKernel.inl"
