#pragma once

#include <QSurfaceFormat>

namespace talvesk {

/// The OpenGL that the section view needs. It becomes the application's default before the
/// application object exists: QSurfaceFormat::setDefaultFormat().
QSurfaceFormat sectionSurfaceFormat();

}  // namespace talvesk
