#pragma once

#include <QStringList>

namespace talvesk {

struct LeftOut;

// What an inversion leaves out, in words. Empty when it leaves nothing out.

/// "1 shot beyond the last column", "24 of 120 picks": before it is run.
QStringList leftOutCounts(const LeftOut& left);

/// "Shot 5 beyond the last column", "24 of 120 picks": of a result.
QStringList leftOutNames(const LeftOut& left);

}  // namespace talvesk
