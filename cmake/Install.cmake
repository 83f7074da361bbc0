# An installed tree that a customer's own project finds with find_package(Fieldkit) or
# pkg-config. The DLLs and the static libraries for Windows go into one tree, each with its own
# files; what is portable has a tree of its own.
include(CMakePackageConfigHelpers)

set(_package ${CMAKE_INSTALL_LIBDIR}/cmake/Fieldkit)
# pkg-config files say where the tree is from where they are, however deep that is.
set(_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
string(REGEX REPLACE "[^/]+" ".." FIELDKIT_PKGCONFIG_ROOT "${_pkgconfig}")

# fieldkit_install(KIND TARGET...): one component of the package.
function(fieldkit_install kind)
  install(TARGETS ${ARGN} EXPORT Fieldkit-${kind}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT Fieldkit-${kind} NAMESPACE Fieldkit:: DESTINATION ${_package})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/fieldkit-${kind}.pc.in ${PROJECT_BINARY_DIR}/fieldkit-${kind}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/fieldkit-${kind}.pc DESTINATION ${_pkgconfig})
endfunction()

# fieldkit_install_headers(FOLDER HEADER...)
function(fieldkit_install_headers folder)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/${folder}/)
  install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/${folder})
endfunction()

if(WIN32)
  include(cmake/InstallWindows.cmake)
else()
  fieldkit_install(geometry geometry)
  fieldkit_install(survey framework companion fieldkit)
  # Those that need no window system; the outside project of the tests includes each of them.
  fieldkit_install_headers(api Export.h)
  fieldkit_install_headers(geometry Constants.h Vector.h VectorInline.h)
  fieldkit_install_headers(survey 2DCircle.h 2DLine.h Coordinate.h)
  fieldkit_install_headers(util AsciiFile.h BufferedAsciiFile.h StringStack.h)
  fieldkit_install_headers(companion Tesuvo.h)
  fieldkit_install_headers(framework afx.h afxarc_.h afxarray_.h afxcoll.h afxdump_.h afxelem_.h afxerr_.h
    afxfile_.h afxlist_.h afxmap_.h afxobj_.h afxstat_.h afxstdio_.h afxstr.h afxstrbuf_.h afxstrfwd_.h
    afxstrop_.h afxtempl.h afxtime_.h afxtry_.h afxtyped_.h afxtypes.h afxver_.h atltypes.h)
endif()

# How debuggers show the objects.
install(FILES ${PROJECT_SOURCE_DIR}/share/fieldkit.py ${PROJECT_SOURCE_DIR}/share/fieldkit.natvis
  DESTINATION ${CMAKE_INSTALL_DATADIR}/fieldkit)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/FieldkitConfig.cmake.in
  ${PROJECT_BINARY_DIR}/FieldkitConfig.cmake INSTALL_DESTINATION ${_package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FieldkitConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FieldkitConfig.cmake
  ${PROJECT_BINARY_DIR}/FieldkitConfigVersion.cmake DESTINATION ${_package})
