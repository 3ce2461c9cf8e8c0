#pragma once

#include <QString>

class QMainWindow;

namespace talvesk {

// Where the window is and how its tool bars lie, remembered in a settings file between runs.

/// Puts the window where it was left, or within the screen where it was not here before.
void restorePlace(QMainWindow& window, const QString& file);
void savePlace(const QMainWindow& window, const QString& file);

}  // namespace talvesk
