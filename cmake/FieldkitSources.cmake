# Sources of older compilers, for g++.
#
# fieldkit_old_sources(TARGET) makes TARGET's sources, and the headers beside them, find what they
# include also where the disk spells it in another case ("stdafx.h" for StdAfx.h), and has g++ warn
# of what compilers of the time let pass where it would stop (-fpermissive, -fms-extensions).
# Call it after the sources are known.
function(fieldkit_old_sources target)
  get_target_property(folder ${target} SOURCE_DIR)
  get_target_property(work ${target} BINARY_DIR)
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.(c|cc|cpp|cxx)$")
  set(files "")
  foreach(source IN LISTS sources)
    get_filename_component(source "${source}" ABSOLUTE BASE_DIR "${folder}")
    get_filename_component(place "${source}" DIRECTORY)
    file(GLOB headers CONFIGURE_DEPENDS "${place}/*.h")
    list(APPEND files "${source}" ${headers})
  endforeach()
  list(REMOVE_DUPLICATES files)
  foreach(file IN LISTS files)
    fieldkit_forward_includes("${file}" "${work}/${target}.names.dir")
  endforeach()
  target_include_directories(${target} PRIVATE "${work}/${target}.names.dir")
  target_compile_options(${target} PRIVATE
    $<$<COMPILE_LANGUAGE:CXX>:-fpermissive> $<$<COMPILE_LANGUAGE:CXX>:-fms-extensions>)
endfunction()

# fieldkit_forward_includes(FILE NAMES): for each include of FILE that the disk spells otherwise, a
# header in the folder NAMES that includes it.
function(fieldkit_forward_includes file names)
  get_filename_component(place "${file}" DIRECTORY)
  file(STRINGS "${file}" lines REGEX "^[ \t]*#[ \t]*include[ \t]+\"[^\"\\]+\"")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE ".*include[ \t]+\"([^\"]+)\".*" "\\1" path "${line}")
    fieldkit_true_path(true_path "${place}" "${path}")
    if(true_path AND NOT true_path STREQUAL path)
      file(CONFIGURE OUTPUT "${names}/${path}" CONTENT "#include \"${place}/${true_path}\"\n" @ONLY)
    endif()
  endforeach()
endfunction()
