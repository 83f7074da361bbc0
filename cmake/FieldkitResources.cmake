# Resource scripts as dialog editors write them, for windres.
#
# fieldkit_add_rc(TARGET FILE...) compiles the scripts into TARGET, wherever they differ
# from what windres reads:
# - UTF-16, UTF-8 with a mark, or 8-bit text of the page that #pragma code_page names: becomes
#   UTF-8. For pages with more than ASCII in the text iconv is called.
# - DLGINIT, in which editors leave out commas.
# - Paths with backslashes, or written in another case than on the disk.
# Scripts (.rc, .rc2, .dlg) that a script includes are converted as well. Run as a script
# (cmake -DINPUT=FILE -DOUTPUT=FILE -P), this file converts one script.

# fieldkit_read_script(VARIABLE FILE): the text of a script in UTF-8, with line feeds alone.
function(fieldkit_read_script variable file)
  file(READ "${file}" mark LIMIT 3 HEX)
  if(mark MATCHES "^fffe")
    # JSON knows characters by their UTF-16 units; so does the file.
    file(READ "${file}" units HEX OFFSET 2)
    string(REGEX REPLACE "(..)(..)" "\\\\u\\2\\1" units "${units}")
    string(JSON text GET "[\"${units}\"]" 0)
  elseif(mark STREQUAL "efbbbf")
    file(READ "${file}" text OFFSET 3)
  else()
    fieldkit_read_pages(text "${file}")
  endif()
  string(REPLACE "\r" "" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# fieldkit_read_pages(VARIABLE FILE): 8-bit text. Each part of it has the page of the
# #pragma before it.
function(fieldkit_read_pages variable file)
  file(READ "${file}" rest)
  set(pragma "#pragma[ \t]+code_page[ \t]*\\([ \t]*([0-9]+)")
  set(page 1252)
  set(all "")
  while(rest MATCHES "${pragma}")
    set(next "${CMAKE_MATCH_1}")
    string(FIND "${rest}" "${CMAKE_MATCH_0}" begin)
    string(SUBSTRING "${rest}" 0 ${begin} part)
    fieldkit_decode(part ${page} "${part}")
    string(LENGTH "${CMAKE_MATCH_0}" length)
    math(EXPR begin "${begin} + ${length}")
    string(SUBSTRING "${rest}" ${begin} -1 rest)
    string(APPEND all "${part}#pragma code_page(${next}")
    set(page ${next})
  endwhile()
  fieldkit_decode(rest ${page} "${rest}")
  set(${variable} "${all}${rest}" PARENT_SCOPE)
endfunction()

# fieldkit_decode(VARIABLE PAGE TEXT): text of a code page in UTF-8.
function(fieldkit_decode variable page text)
  # Old editors write what is not ASCII as numbers of the page.
  while(text MATCHES "\\\\([23])([0-7])([0-7])")
    math(EXPR byte "${CMAKE_MATCH_1} * 64 + ${CMAKE_MATCH_2} * 8 + ${CMAKE_MATCH_3}")
    string(ASCII ${byte} character)
    string(REPLACE "${CMAKE_MATCH_0}" "${character}" text "${text}")
  endwhile()
  if(text MATCHES "[^\t\r\n -~]" AND NOT page EQUAL 65001)
    find_program(FIELDKIT_ICONV iconv)
    if(NOT FIELDKIT_ICONV)
      message(FATAL_ERROR "${INPUT} has text of code page ${page}, and there is no iconv: save it as UTF-16 or UTF-8")
    endif()
    file(WRITE "${OUTPUT}.part" "${text}")
    execute_process(COMMAND "${FIELDKIT_ICONV}" -f CP${page} -t UTF-8 "${OUTPUT}.part"
      OUTPUT_FILE "${OUTPUT}.utf8" RESULT_VARIABLE failed)
    file(READ "${OUTPUT}.utf8" text)
    file(REMOVE "${OUTPUT}.part" "${OUTPUT}.utf8")
    if(failed)
      message(FATAL_ERROR "${INPUT} has text that is not of code page ${page}")
    endif()
  endif()
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# fieldkit_slashes(VARIABLE PATTERN TEXT): the path of each line of the pattern gets slashes.
# The pattern ends inside the quotation marks.
function(fieldkit_slashes variable pattern text)
  set(pattern "(\n${pattern}[^\"\\\\\n]*)\\\\+")
  while(text MATCHES "${pattern}")
    string(REGEX REPLACE "${pattern}" "\\1/" text "${text}")
  endwhile()
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# fieldkit_true_path(VARIABLE FOLDER PATH): the relative path as the disk spells it; empty if
# nothing is there in any case.
function(fieldkit_true_path variable folder path)
  set(true_path "")
  string(REPLACE "/" ";" parts "${path}")
  foreach(part IN LISTS parts)
    if(NOT EXISTS "${folder}/${true_path}${part}")
      file(GLOB names LIST_DIRECTORIES true RELATIVE "${folder}/${true_path}" "${folder}/${true_path}*")
      string(TOLOWER "${names}" lower_names)
      string(TOLOWER "${part}" lower)
      list(FIND lower_names "${lower}" index)
      if(index LESS 0)
        set(${variable} "" PARENT_SCOPE)
        return()
      endif()
      list(GET names ${index} part)
    endif()
    string(APPEND true_path "${part}/")
  endforeach()
  string(REGEX REPLACE "/$" "" true_path "${true_path}")
  set(${variable} "${true_path}" PARENT_SCOPE)
endfunction()

# fieldkit_spell(VARIABLE PATTERN FOLDER TEXT): the path of each line of the pattern becomes that
# of the disk. The pattern ends inside the quotation marks.
function(fieldkit_spell variable pattern folder text)
  string(REGEX MATCHALL "\n${pattern}[^\"\n]+\"" lines "${text}")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE ".*\"([^\"\n]+)\"$" "\\1" path "${line}")
    fieldkit_true_path(true_path "${folder}" "${path}")
    if(true_path AND NOT true_path STREQUAL path)
      string(REPLACE "\"${path}\"" "\"${true_path}\"" text "${text}")
    endif()
  endforeach()
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# fieldkit_convert_rc(INPUT OUTPUT): one script, and those that it includes.
function(fieldkit_convert_rc INPUT OUTPUT)
  fieldkit_read_script(text "${INPUT}")
  set(text "\n${text}")
  string(REGEX REPLACE "#pragma[ \t]+code_page[^\n]*" "#pragma code_page(65001)" text "${text}")
  # The heads of DLGINIT's records, and the last byte of an odd one.
  string(REGEX REPLACE "([0-9A-Za-z_]+,[ \t]*0x[0-9A-Fa-f]+,[ \t]*[0-9]+,[ \t]*0)[ \t]*\n" "\\1,\n" text "${text}")
  string(REGEX REPLACE "(\"\\\\000\")[ \t]*\n" "\\1,\n" text "${text}")
  get_filename_component(from "${INPUT}" DIRECTORY)
  foreach(pattern IN ITEMS
      "[ \t]*#[ \t]*include[ \t]+\"" "[0-9A-Za-z_\"]+[ \t]+[0-9A-Za-z_\"]+[ \t]+([A-Z]+[ \t]+)*\"")
    fieldkit_slashes(text "${pattern}" "${text}")
    fieldkit_spell(text "${pattern}" "${from}" "${text}")
  endforeach()
  file(WRITE "${OUTPUT}" "#pragma code_page(65001)${text}")

  get_filename_component(to "${OUTPUT}" DIRECTORY)
  string(REGEX MATCHALL "\n[ \t]*#[ \t]*include[ \t]+\"[^\"\n]+\\.(rc|rc2|dlg)\"" includes "${text}")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE ".*\"(.*)\"" "\\1" include "${include}")
    if(EXISTS "${from}/${include}")
      fieldkit_convert_rc("${from}/${include}" "${to}/${include}")
    endif()
  endforeach()
endfunction()

function(fieldkit_add_rc target)
  get_target_property(folder ${target} SOURCE_DIR)
  get_target_property(work ${target} BINARY_DIR)
  foreach(script IN LISTS ARGN)
    get_filename_component(input "${script}" ABSOLUTE BASE_DIR "${folder}")
    get_filename_component(name "${script}" NAME_WE)
    get_filename_component(place "${input}" DIRECTORY)
    set(output "${work}/${target}.rc.dir/${name}.rc")
    file(GLOB parts CONFIGURE_DEPENDS "${place}/*.h" "${place}/*.rc" "${place}/res/*")
    add_custom_command(OUTPUT "${output}"
      COMMAND ${CMAKE_COMMAND} "-DINPUT=${input}" "-DOUTPUT=${output}" -P "${FIELDKIT_RC_CONVERTER}"
      DEPENDS "${input}" ${parts} "${FIELDKIT_RC_CONVERTER}"
      COMMENT "Converting ${script}" VERBATIM)
    # What a script names is beside it, and the script is elsewhere now. windres reads 8-bit
    # text as UTF-8 only if it is told so from the beginning.
    set_source_files_properties("${output}" PROPERTIES
      INCLUDE_DIRECTORIES "${place}" COMPILE_OPTIONS "-c;65001" OBJECT_DEPENDS "${parts}")
    target_sources(${target} PRIVATE "${output}")
  endforeach()
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  fieldkit_convert_rc("${INPUT}" "${OUTPUT}")
else()
  set(FIELDKIT_RC_CONVERTER "${CMAKE_CURRENT_LIST_FILE}")
endif()
