# The CMake package: find_package(Lumenote), targets Lumenote::Core, Headless, Qt, and Posix or Win32.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

string(TOLOWER lumenote_${LUMENOTE_SYSTEM} system)
set(targets lumenote_core ${system} lumenote_headless)
if(LUMENOTE_QT)
  list(APPEND targets lumenote_qt)
endif()
install(TARGETS ${targets} EXPORT LumenoteTargets COMPONENT development)
install(EXPORT LumenoteTargets NAMESPACE Lumenote::
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Lumenote COMPONENT development)
install(DIRECTORY include/lumenote DESTINATION include COMPONENT development)

configure_package_config_file(cmake/LumenoteConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/LumenoteConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Lumenote)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/LumenoteConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/LumenoteConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/LumenoteConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Lumenote COMPONENT development)

install(TARGETS lumenote_tool RUNTIME COMPONENT programs)
if(LUMENOTE_QT)
  install(TARGETS microedit RUNTIME COMPONENT programs)
endif()
if(LUMENOTE_QT)
  add_subdirectory(packaging/debian)
endif()

# Removes what the last installation put down.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/uninstall.cmake [[
file(STRINGS ${manifest} installed)
foreach(file IN LISTS installed)
  message(STATUS "Removing: ${file}")
  file(REMOVE "${file}")
endforeach()
]])
add_custom_target(uninstall COMMAND ${CMAKE_COMMAND}
  -Dmanifest=${CMAKE_CURRENT_BINARY_DIR}/install_manifest.txt
  -P ${CMAKE_CURRENT_BINARY_DIR}/uninstall.cmake)
