#pragma once

#include <QString>

class QWidget;

namespace talvesk {

/// A text with "(m)", "[m]", "(m/s)" or "[m/s]" with the unit shown in its brackets instead, and
/// back. Sentences have their unit in brackets, too, so that translations need no other way.
QString inShownUnits(QString text);

/// A text with "1500 m/s" or the like in a sentence, which is the same in every language, with
/// whole feet per second instead where these are shown.
QString inShownVelocities(QString text);

/// Puts the unit shown into the brackets of labels, buttons, headers and tips below a form, and
/// behind the numbers of its LengthBox and VelocityBox fields. To be called after setupUi and
/// after retranslateUi. Other number fields keep their " m", for they count in metres.
void showUnits(QWidget& form);

}  // namespace talvesk
