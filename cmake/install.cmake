# What is installed, by component:
#
#   library      what a program needs at run time
#   development  and what it is built with
#   sysctx       the simulated control card with its samples
#   docs         for people
#
# An installation works wherever it is moved. One below /usr is the system's, which is not
# moved but found by the loader, and by pkg-config with its own option for system roots.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
set(SYS_CONTEXT_CMAKE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/sys_context)
set(SYS_CONTEXT_PC_FOLDER ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
string(COMPARE EQUAL "${CMAKE_INSTALL_PREFIX}" /usr SYS_CONTEXT_SYSTEM_PREFIX)

install(TARGETS sys_context EXPORT sys_context-targets
  LIBRARY
    DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT library
    NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/sys_context
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT development
  FILES_MATCHING PATTERN *.h)

# For CMake: find_package(sys_context) gives sys_context::sys_context.
install(EXPORT sys_context-targets
  NAMESPACE sys_context::
  DESTINATION ${SYS_CONTEXT_CMAKE_FOLDER}
  COMPONENT development)
configure_package_config_file(
  cmake/sys_context-config.cmake.in ${PROJECT_BINARY_DIR}/sys_context-config.cmake
  INSTALL_DESTINATION ${SYS_CONTEXT_CMAKE_FOLDER}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/sys_context-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(
  FILES
    ${PROJECT_BINARY_DIR}/sys_context-config.cmake
    ${PROJECT_BINARY_DIR}/sys_context-config-version.cmake
  DESTINATION ${SYS_CONTEXT_CMAKE_FOLDER}
  COMPONENT development)

# For everything else: pkg-config sys_context.
if(SYS_CONTEXT_SYSTEM_PREFIX)
  set(SYS_CONTEXT_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH SYS_CONTEXT_PC_PREFIX
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "^(.*[^/])/?$" "\${pcfiledir}/\\1"
    SYS_CONTEXT_PC_PREFIX ${SYS_CONTEXT_PC_PREFIX})
endif()
file(RELATIVE_PATH SYS_CONTEXT_PC_INCLUDE ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH SYS_CONTEXT_PC_LIBRARY ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
configure_file(cmake/sys_context.pc.in ${PROJECT_BINARY_DIR}/sys_context.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/sys_context.pc
  DESTINATION ${SYS_CONTEXT_PC_FOLDER}
  COMPONENT development)

if(SYS_CONTEXT_HOST)
  if(NOT SYS_CONTEXT_SYSTEM_PREFIX)
    file(RELATIVE_PATH SYS_CONTEXT_LIBRARY_FROM_SYSCTX
      ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(sysctx PROPERTIES
      INSTALL_RPATH $ORIGIN/${SYS_CONTEXT_LIBRARY_FROM_SYSCTX})
  endif()
  install(TARGETS sysctx RUNTIME
    DESTINATION ${CMAKE_INSTALL_BINDIR}
    COMPONENT sysctx)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/definitions
    DESTINATION ${CMAKE_INSTALL_DATADIR}/sysctx
    COMPONENT sysctx
    PATTERN mem EXCLUDE)
  if(NOT SYS_CONTEXT_PACKAGES)  # where it is compressed
    install(FILES ${PROJECT_SOURCE_DIR}/docs/man/sysctx.1
      DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
      COMPONENT sysctx)
  endif()
endif()

foreach(page README CHANGELOG CONTRIBUTING)
  install(FILES ${PROJECT_SOURCE_DIR}/${page}.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT docs)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT docs
  REGEX "/examples/minimal-host/(build|minimal-host|[^/]*\\.o)$" EXCLUDE)  # built there
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT docs
  FILES_MATCHING PATTERN *.md
  PATTERN man EXCLUDE)
