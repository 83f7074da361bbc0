# What the library's three modules have in common, as DLLs and as static libraries.
if(FIELDKIT_SHARED)
  set(FIELDKIT_KIND SHARED)
else()
  set(FIELDKIT_KIND STATIC)
endif()

# fieldkit_module(TARGET NAME DESCRIPTION): the names of its files and, of a DLL, the version
# resource and the symbols apart. Both kinds can be installed into one folder, so the static
# libraries and their exported targets are told apart by "_static".
function(fieldkit_module target name description)
  if(FIELDKIT_SHARED)
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name})
    file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE copyright REGEX "^Copyright")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}Version.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}Version.rc)
    fieldkit_part_symbols(${target})
  else()
    fieldkit_static_names(${target} ${name})
  endif()
endfunction()

# fieldkit_part_symbols(TARGET): the DLL is linked with its symbols, which then move to NAME.dll.debug
# beside it, where the debugger finds them. They are more than half of its bytes.
function(fieldkit_part_symbols target)
  set(symbols $<TARGET_FILE_NAME:${target}>.debug)
  add_custom_command(TARGET ${target} POST_BUILD WORKING_DIRECTORY $<TARGET_FILE_DIR:${target}>
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE_NAME:${target}> ${symbols}
    COMMAND ${CMAKE_STRIP} $<TARGET_FILE_NAME:${target}>
    COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE_NAME:${target}>
    COMMENT "Moving the symbols of $<TARGET_FILE_NAME:${target}> to ${symbols}" VERBATIM)
  install(FILES $<TARGET_FILE:${target}>.debug DESTINATION ${CMAKE_INSTALL_BINDIR}
    COMPONENT symbols EXCLUDE_FROM_ALL)
endfunction()

function(fieldkit_static_names target name)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name}_static EXPORT_NAME ${target}_static)
endfunction()

# fieldkit_add_resources(TARGET NAME OBJECTS): OBJECTS, an object library of one .rc,
# goes into the DLL. A linker takes no resources out of a static library, so there the
# object file lies beside it and comes along with the target.
function(fieldkit_add_resources target name objects)
  if(FIELDKIT_SHARED)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${objects}>)
    return()
  endif()
  set(installed ${CMAKE_INSTALL_LIBDIR}/${name}_static.o)
  install(FILES $<TARGET_OBJECTS:${objects}> DESTINATION ${CMAKE_INSTALL_LIBDIR} RENAME ${name}_static.o)
  add_dependencies(${target} ${objects})
  target_link_libraries(${target} INTERFACE
    $<BUILD_INTERFACE:$<TARGET_OBJECTS:${objects}>>
    $<INSTALL_INTERFACE:$<INSTALL_PREFIX>/${installed}>)
endfunction()
