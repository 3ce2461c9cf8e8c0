#pragma once

class QWidget;

namespace talvesk {

/// Lets the tool tips of a dialog's fields break into lines, which plain ones do not, and shows
/// each on the label of its field, too.
void wrapToolTips(QWidget& dialog);

}  // namespace talvesk
