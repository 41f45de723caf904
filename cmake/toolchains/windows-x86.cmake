# For older hosts. Debian has no 32-bit wine beside the 64-bit one: nothing runs here.
set(LUMENOTE_MINGW i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR X86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
