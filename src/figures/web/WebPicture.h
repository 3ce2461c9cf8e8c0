#pragma once

#include <QByteArray>

namespace talvesk::web {

/// A picture as PNG with 256 colours at most, which figures hardly miss and which take a third of
/// the room. As it was where that is not smaller, and where it is no picture.
QByteArray fewColors(const QByteArray& png);

}  // namespace talvesk::web
