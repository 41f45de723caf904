# Warnings and sanitizers for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic)
if(LUMENOTE_WERROR)
  add_compile_options(-Werror)
endif()
if(LUMENOTE_SANITIZE)
  # Assertions are on wherever faults are looked for.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    -UNDEBUG)
  add_link_options(-fsanitize=address,undefined)
endif()
if(LUMENOTE_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang" OR NOT LUMENOTE_SANITIZE)
    message(FATAL_ERROR "LUMENOTE_FUZZ needs clang and LUMENOTE_SANITIZE")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
# GCC 12 sees overlapping copies in plain string concatenations that it has inlined.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()
