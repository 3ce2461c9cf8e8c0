# Qwt 6.1 built for Qt 5. Debian ships no CMake configuration for it. Defines Qwt::Qwt.
find_path(QWT_INCLUDE_DIR qwt_plot.h PATH_SUFFIXES qwt qwt-qt5 qt5/qwt)
find_library(QWT_LIBRARY NAMES qwt-qt5 qwt)
if(QWT_INCLUDE_DIR AND EXISTS ${QWT_INCLUDE_DIR}/qwt_global.h)
  file(STRINGS ${QWT_INCLUDE_DIR}/qwt_global.h QWT_VERSION_LINE REGEX "define QWT_VERSION_STR")
  string(REGEX REPLACE ".*\"([^\"]+)\".*" "\\1" Qwt_VERSION "${QWT_VERSION_LINE}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
  REQUIRED_VARS QWT_LIBRARY QWT_INCLUDE_DIR VERSION_VAR Qwt_VERSION)

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
  # Global: programs in other folders link it through the room that uses it.
  add_library(Qwt::Qwt UNKNOWN IMPORTED GLOBAL)
  # Headers of an imported target are system headers: their warnings are not ours.
  set_target_properties(Qwt::Qwt PROPERTIES
    IMPORTED_LOCATION ${QWT_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR}
    INTERFACE_LINK_LIBRARIES "Qt5::Widgets;Qt5::PrintSupport;Qt5::Svg")
endif()
mark_as_advanced(QWT_INCLUDE_DIR QWT_LIBRARY)
