# The library itself: Fieldkit.dll on Windows; natively a static library of the
# folders that need no window system.
set(_portable geometry survey)
set(_windows util controls dialogs)

set(_sources "")
foreach(_folder IN LISTS _portable)
  file(GLOB _found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${_folder}/*.cpp)
  list(APPEND _sources ${_found})
endforeach()
if(WIN32)
  foreach(_folder IN LISTS _windows)
    file(GLOB _found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${_folder}/*.cpp)
    list(APPEND _sources ${_found})
  endforeach()
  add_library(fieldkit SHARED ${_sources})
  set_target_properties(fieldkit PROPERTIES OUTPUT_NAME Fieldkit)
  target_sources(fieldkit PRIVATE $<TARGET_OBJECTS:fieldkit_resources>)
  target_compile_definitions(fieldkit PRIVATE FIELDKIT_EXPORTS)
else()
  list(FILTER _sources EXCLUDE REGEX "/survey/AngleEdit\\.cpp$") # a control
  add_library(fieldkit STATIC ${_sources})
  target_compile_definitions(fieldkit PUBLIC FIELDKIT_STATIC)
endif()
add_library(Fieldkit::fieldkit ALIAS fieldkit)
target_include_directories(fieldkit PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/fieldkit>)
target_link_libraries(fieldkit PUBLIC framework companion PRIVATE $<BUILD_INTERFACE:fieldkit_warnings>)
target_compile_features(fieldkit PUBLIC cxx_std_17)
