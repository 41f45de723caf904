# Windows from Debian: what both widths share. LUMENOTE_MINGW is the compilers' prefix.
set(CMAKE_SYSTEM_NAME Windows)
# Named in full: the alternative without a suffix has threads of another kind, without std::mutex.
set(CMAKE_C_COMPILER ${LUMENOTE_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${LUMENOTE_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${LUMENOTE_MINGW}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${LUMENOTE_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Bit-fields of different types share a unit, as everywhere else.
set(CMAKE_CXX_FLAGS_INIT "-mno-ms-bitfields")

# Programs and DLLs that need nothing but the system's own.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()
