# What an installed Talvesk consists of, and the Debian packages that cpack makes of it: the programs,
# and the package for Python.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME talvesk)
set(docs ${CMAKE_INSTALL_DATADIR}/doc/talvesk)
set(desktop ${PROJECT_SOURCE_DIR}/resources/desktop)
install(TARGETS talvesk talvesk-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY resources/guide DESTINATION ${CMAKE_INSTALL_DATADIR}/talvesk)
install(FILES ${desktop}/talvesk.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/example.talvesk.Talvesk.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop}/talvesk-mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME talvesk.xml)
install(FILES resources/icons/talvesk.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES README.md DESTINATION ${docs})

# The programs carry the chart library of web reports, whose licence goes along.
file(READ LICENSE copyright)
cmake_path(GET TALVESK_CHART_LIBRARY PARENT_PATH chart_library_folder)
if(EXISTS ${chart_library_folder}/LICENSE)
  file(READ ${chart_library_folder}/LICENSE chart_licence)
  string(APPEND copyright "\n\nThe web reports of Talvesk contain plotly.js, which has this licence:\n\n${chart_licence}")
endif()
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/copyright CONTENT "${copyright}" @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright DESTINATION ${docs})

# Manual pages and the change log are compressed, without a time stamp: equal sources, equal package.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(talvesk_install_compressed source name folder)
  set(packed ${CMAKE_CURRENT_BINARY_DIR}/packed/${name}.gz)
  add_custom_command(OUTPUT ${packed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/packed
    COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${packed}
    DEPENDS ${source} VERBATIM)
  add_custom_target(pack_${name} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION ${folder})
endfunction()
talvesk_install_compressed(${PROJECT_SOURCE_DIR}/resources/man/talvesk.1 talvesk.1
                           ${CMAKE_INSTALL_MANDIR}/man1)
talvesk_install_compressed(${PROJECT_SOURCE_DIR}/resources/desktop/changelog changelog ${docs})

set(generated ${CMAKE_CURRENT_BINARY_DIR}/generated)
foreach(kind man bash)
  set(file_man talvesk-batch.1)
  set(file_bash talvesk-batch)
  add_custom_command(OUTPUT ${generated}/${kind}/${file_${kind}}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${generated}/${kind}
    COMMAND batch_manual ${kind} > ${generated}/${kind}/${file_${kind}}
    DEPENDS batch_manual VERBATIM)
endforeach()
add_custom_target(batch_completion ALL DEPENDS ${generated}/bash/talvesk-batch)
talvesk_install_compressed(${generated}/man/talvesk-batch.1 talvesk-batch.1
                           ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${generated}/bash/talvesk-batch
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)

if(TALVESK_PYTHON)
  set(package lib/python3/dist-packages/talvesk)
  set(python_docs ${CMAKE_INSTALL_DATADIR}/doc/python3-talvesk)
  install(TARGETS talvesk_python LIBRARY DESTINATION ${package} COMPONENT python)
  install(DIRECTORY src/python/talvesk/ DESTINATION ${package} COMPONENT python)
  install(DIRECTORY examples/python/ DESTINATION ${python_docs}/examples COMPONENT python)
  install(FILES docs/python.md DESTINATION ${python_docs} COMPONENT python)
  install(FILES LICENSE DESTINATION ${python_docs} RENAME copyright COMPONENT python)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packed/changelog.gz DESTINATION ${python_docs}
          COMPONENT python)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGE_NAME talvesk)
set(CPACK_PACKAGE_VENDOR "The Talvesk developers")
set(CPACK_PACKAGE_CONTACT "The Talvesk developers <developers@talvesk.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "seismic refraction surveys, from records to sections")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://talvesk.example/)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Found at run time and not by the linker: tables of coordinate systems, Qt's own texts in other
# languages, and a font for figures made without a display.
set(CPACK_DEBIAN_TALVESK_PACKAGE_DEPENDS "proj-data, qttranslations5-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_TALVESK_PACKAGE_RECOMMENDS "libgl1-mesa-dri")
set(CPACK_DEBIAN_TALVESK_PACKAGE_NAME talvesk)
if(TALVESK_PYTHON)
  # A compiled module is for one minor version of Python.
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  math(EXPR next_minor "${Python3_VERSION_MINOR} + 1")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-talvesk)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "python3 (>= 3.${Python3_VERSION_MINOR}), python3 (<< 3.${next_minor}), python3-numpy, proj-data")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS "python3-pandas, python3-xarray, python3-matplotlib")
  set(CPACK_DEBIAN_PYTHON_DESCRIPTION
"Talvesk inverts first breaks of seismic refraction surveys into velocity
sections of the ground. This package is its engine for Python 3: surveys,
picks, grids and sections as NumPy arrays, with the same results as the
programs of the package talvesk.")
endif()
set(CPACK_DEBIAN_TALVESK_DESCRIPTION
"Talvesk turns a seismic refraction survey into a velocity section of the
ground. It loads the records of the shots (SEG-2, SEG-Y, SU), picks the first
breaks by hand or by itself, and inverts the travel times by tomography: rays
by a shortest-path search on a grid that follows the topography, a simultaneous
iterative solver, and smoothing. The layered interpretation of the reciprocal
method is offered beside it.
.
The package holds the window, talvesk, and the same engine without one,
talvesk-batch.")
include(CPack)
