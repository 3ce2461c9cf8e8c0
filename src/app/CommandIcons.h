#pragma once

class QObject;

namespace talvesk {

/// Gives every action below `window` the icon of its command.
void setCommandIcons(QObject& window);

}  // namespace talvesk
