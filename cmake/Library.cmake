# The library itself: Fieldkit.dll or a static library on Windows; natively two static libraries of
# what needs no window system, the kernel alone and the survey values with what they use.
set(_portable survey util)
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

# fieldkit_part(TARGET): what the library's targets have in common.
function(fieldkit_part target)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/fieldkit>)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:fieldkit_warnings>)
  target_compile_features(${target} PUBLIC cxx_std_17)
  # Inline members compute as those of the library do, see cmake/Options.cmake.
  target_compile_options(${target} INTERFACE
    "$<INSTALL_INTERFACE:$<$<COMPILE_LANGUAGE:CXX>:${FIELDKIT_EXACT}>>")
  # Otherwise g++ describes a class to the debugger only where its virtual members are, which is here.
  target_compile_options(${target} INTERFACE
    $<INSTALL_INTERFACE:$<$<AND:$<COMPILE_LANG_AND_ID:CXX,GNU>,$<CONFIG:Debug,RelWithDebInfo>>:-femit-class-debug-always>>)
endfunction()

if(WIN32)
  list(APPEND _sources ${_kernel})
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
  add_library(geometry STATIC ${_kernel})
  fieldkit_part(geometry)
  target_link_libraries(fieldkit PUBLIC geometry)
  set_target_properties(geometry PROPERTIES OUTPUT_NAME fieldkit-geometry)
  set_target_properties(fieldkit PROPERTIES OUTPUT_NAME fieldkit-survey EXPORT_NAME survey)
  set_target_properties(companion PROPERTIES OUTPUT_NAME fieldkit-companion)
  set_target_properties(framework PROPERTIES OUTPUT_NAME fieldkit-framework)
endif()
add_library(Fieldkit::fieldkit ALIAS fieldkit)
fieldkit_part(fieldkit)
target_link_libraries(fieldkit PUBLIC framework companion)
# A string that goes through "..." would arrive as rubbish, which g++ lets pass without a word.
target_compile_options(fieldkit INTERFACE
  $<INSTALL_INTERFACE:$<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wconditionally-supported>>)
