#pragma once

#include <QIcon>
#include <QString>

namespace talvesk {

/// An icon of the program's own line set. The resource holds SVG, whatever its name ends in; it is
/// drawn in the text colour of the palette at hand, sharp at every size and scale, and follows a
/// change between light and dark palettes.
QIcon lineIcon(const QString& resource);

/// A coloured picture as an icon of all usual sizes; the resource holds SVG.
QIcon pictureIcon(const QString& resource);

/// A coloured picture at its own size, sharp on screens of that scale; the resource holds SVG.
QPixmap picture(const QString& resource, qreal devicePixelRatio);

}  // namespace talvesk
