# clang with the headers and libraries of g++ for Windows, whose folder it does not look for.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-windows-gnu)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-windows-gnu)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_OBJCOPY x86_64-w64-mingw32-objcopy)
set(CMAKE_STRIP x86_64-w64-mingw32-strip)

execute_process(COMMAND x86_64-w64-mingw32-g++-posix -print-libgcc-file-name
  OUTPUT_VARIABLE _gcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET _gcc PARENT_PATH _gcc)
set(_headers ${_gcc}/include/c++)
# Thread-local variables of libstdc++ are emulated ones.
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${_headers} -isystem ${_headers}/x86_64-w64-mingw32 -isystem ${_headers}/backward -femulated-tls")
foreach(_kind EXE SHARED)
  set(CMAKE_${_kind}_LINKER_FLAGS_INIT "-L${_gcc} -B${_gcc} -pthread --ld-path=/usr/bin/x86_64-w64-mingw32-ld")
endforeach()

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
