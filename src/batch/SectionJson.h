#pragma once

#include "batch/JsonText.h"

#include <vector>

namespace talvesk {

class TomoDocument;
struct SuspectPick;

// Keys of JSON results that tell of the section of a survey, whatever its method.

/// The misfit of what its chi-square counts: suspects left out, time shifts of shots counted; null
/// where there are no times of the section.
void putTrusted(Json& json, const TomoDocument& document);

/// By what errors picks that state none are judged, and how many picks state such small ones that
/// they count as larger.
void putErrors(Json& json, const TomoDocument& document);

/// Shots and receivers count from 0.
Json suspectsJson(const std::vector<SuspectPick>& picks);

}  // namespace talvesk
