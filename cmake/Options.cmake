# Compiler options of the project's own code, in one place.
option(FIELDKIT_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
include(CMakeDependentOption)
cmake_dependent_option(FIELDKIT_SHARED "Build the three DLLs; OFF builds static libraries instead" ON WIN32 OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_SHARED_LIBRARY_PREFIX "")
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g")

# The order of evaluation of a formula is part of its result: no fused multiply-add, no
# reassociation, in any build and for any source file; on 32-bit PCs no registers of 80 bits, which
# would round each operation twice. Users compile inline members in the same way.
set(FIELDKIT_EXACT -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
  list(APPEND FIELDKIT_EXACT -msse2 -mfpmath=sse)
endif()
add_compile_options(${FIELDKIT_EXACT})
list(JOIN FIELDKIT_EXACT " " FIELDKIT_EXACT_FLAGS) # for pkg-config

# Names of source files in messages start at the tree, wherever it was built.
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)

if(FIELDKIT_SANITIZE)
  # Of what debuggers want to know reports name the lines.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601
                          __USE_MINGW_ANSI_STDIO=1)
  # Each module carries its own copy of the compiler's runtime, so that no further DLL has to be
  # shipped; exceptions still cross the borders by pointer, since the system unwinds the stack. That
  # of 32 bits leaves it to the runtime, which must be one for all: libgcc and libwinpthread are DLLs.
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-static -static-libgcc -static-libstdc++)
    set(FIELDKIT_ENTRY WinMain)
  else()
    add_link_options(-shared-libgcc -static-libstdc++)
    set(FIELDKIT_RUNTIME libgcc_s_dw2-1.dll libwinpthread-1.dll)
    set(FIELDKIT_ENTRY _WinMain@16)
  endif()
  # Code and data at random places, and no code among data. The linker's defaults today; GCC has
  # nothing for the system's control-flow guard.
  add_link_options(LINKER:--dynamicbase,--nxcompat)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(LINKER:--high-entropy-va)
  endif()
  # windres knows UTF-8 only when told so on the command line.
  set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")
endif()

# Warnings for the project's own code only; GoogleTest's sources stay as they are.
add_library(fieldkit_warnings INTERFACE)
target_compile_options(fieldkit_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-Werror>)

if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  # Of these clang's groups hold more than those of g++: conversions of signs, an enumerator with the
  # name of a C function, a Create with other arguments than the base's. The others are meant: the
  # kernel's & of comparisons, which saves branches, and CWnd::GetSafeHwnd of null objects.
  target_compile_options(fieldkit_warnings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-sign-conversion;-Wno-shadow;-Wno-overloaded-virtual;-Wno-bitwise-instead-of-logical;-Wno-tautological-undefined-compare>)
endif()

# fieldkit_precompile(TARGET HEADER...): the headers that nearly every source of TARGET includes
# are compiled once. Each source still names what it uses: ./run lint reads it without them.
function(fieldkit_precompile target)
  list(TRANSFORM ARGN REPLACE "(.+)" "<\\1>")
  target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()
