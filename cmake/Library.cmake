# The library itself: Fieldkit.dll or a static library on Windows; natively a static
# library of the folders that need no window system.
set(_portable geometry survey util)
set(_windows controls dialogs)

set(_sources "")
foreach(_folder IN LISTS _portable)
  file(GLOB _found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${_folder}/*.cpp)
  list(APPEND _sources ${_found})
endforeach()
# The kernel takes roots of negative numbers and goes on with what they give. Reporting them in
# errno, which nobody reads, would make each root a branch and a call. Headers that are compiled
# without this option are not for it.
file(GLOB _kernel CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/geometry/*.cpp)
set_source_files_properties(${_kernel} PROPERTIES COMPILE_OPTIONS -fno-math-errno
  SKIP_PRECOMPILE_HEADERS ON)
if(WIN32)
  foreach(_folder IN LISTS _windows)
    file(GLOB _found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${_folder}/*.cpp)
    list(APPEND _sources ${_found})
  endforeach()
  if(FIELDKIT_SHARED)
    list(APPEND _sources ${PROJECT_SOURCE_DIR}/module/Module.cpp)
  endif()
  add_library(fieldkit ${FIELDKIT_KIND} ${_sources})
  fieldkit_module(fieldkit Fieldkit "${PROJECT_DESCRIPTION}")
  fieldkit_add_resources(fieldkit Fieldkit fieldkit_resources)
  target_compile_definitions(fieldkit PRIVATE FIELDKIT_EXPORTS)
  fieldkit_precompile(fieldkit algorithm memory string afxcmn.h afxdlgs.h)
else()
  list(FILTER _sources EXCLUDE REGEX "/(AngleEdit|StringStackCombo)\\.cpp$") # they use controls
  add_library(fieldkit STATIC ${_sources})
endif()
add_library(Fieldkit::fieldkit ALIAS fieldkit)
target_include_directories(fieldkit PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/fieldkit>)
target_link_libraries(fieldkit PUBLIC framework companion PRIVATE $<BUILD_INTERFACE:fieldkit_warnings>)
target_compile_features(fieldkit PUBLIC cxx_std_17)
# Inline members compute as those of the library do, see cmake/Options.cmake.
# A string that goes through "..." would arrive as rubbish, which g++ lets pass without a word.
target_compile_options(fieldkit INTERFACE
  $<INSTALL_INTERFACE:$<$<COMPILE_LANGUAGE:CXX>:-ffp-contract=off;-Wconditionally-supported>>)
