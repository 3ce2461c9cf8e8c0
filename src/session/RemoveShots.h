#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

struct Survey;

/// Takes shots out of a survey: recordings, picks, marks. Geophone strings stay, whether or not a
/// shot is left on them. Grid and result go where the line has other ends or another surface then.
/// \param shots records of the document, from 0; those that do not exist are none
void removeShots(const std::vector<std::size_t>& shots, Survey& survey);

}  // namespace talvesk
