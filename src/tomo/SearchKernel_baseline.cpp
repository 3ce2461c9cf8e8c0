#define TALVESK_SEARCH searchBaseline
#include "tomo/SearchKernel.inl"
