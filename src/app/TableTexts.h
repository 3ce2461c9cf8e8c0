#pragma once

#include <QString>

class QWidget;

namespace talvesk {

struct TableRemarks;

/// What the user is told of a table that was read or pasted.

/// That its first line was skipped; empty when it was not.
QString headingText(const TableRemarks& remarks);

/// A box that counts and names the fields that were taken as 0; none when there are no such fields.
/// \param file where they stand, without its folder
void warnOfZeros(QWidget* parent, const QString& file, const TableRemarks& remarks);

}  // namespace talvesk
