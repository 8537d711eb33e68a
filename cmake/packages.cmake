# Debian packages by CPack, as scripts/package makes them:
#
#   libsys-context1      component library
#   libsys-context-dev   components development and docs
#   sysctx               component sysctx
set(SYS_CONTEXT_DEBIAN ${PROJECT_SOURCE_DIR}/packaging/debian)
set(SYS_CONTEXT_RUNTIME_PACKAGE libsys-context${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME sys-context)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "libsys_context maintainers <sys-context@example.org>")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_PRE_BUILD_SCRIPTS ${SYS_CONTEXT_DEBIAN}/depends.cmake)
# Where the libraries of another machine are.
set(CPACK_SYS_CONTEXT_SYSROOT ${SYS_CONTEXT_SYSROOT})

# sys_context_gzip(SOURCE TARGET): the same bytes always.
function(sys_context_gzip source target)
  execute_process(COMMAND gzip -9nc ${source} OUTPUT_FILE ${target} COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
endfunction()
set(SYS_CONTEXT_GZIPPED ${PROJECT_BINARY_DIR}/gzipped)
file(MAKE_DIRECTORY ${SYS_CONTEXT_GZIPPED})
sys_context_gzip(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${SYS_CONTEXT_GZIPPED}/changelog.gz)
sys_context_gzip(${SYS_CONTEXT_DEBIAN}/changelog ${SYS_CONTEXT_GZIPPED}/changelog.Debian.gz)
sys_context_gzip(${PROJECT_SOURCE_DIR}/docs/man/sysctx.1 ${SYS_CONTEXT_GZIPPED}/sysctx.1.gz)
install(FILES ${SYS_CONTEXT_GZIPPED}/sysctx.1.gz
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
  COMPONENT sysctx)

# sys_context_package(PART NAME SECTION COMPONENT DESCRIPTION): PART is CPack's name for it,
# of a component or of a group of them; Debian's own files go into COMPONENT.
macro(sys_context_package part name section component description)
  set(CPACK_DEBIAN_${part}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${part}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${part}_DESCRIPTION "${description}")
  install(
    FILES
      ${SYS_CONTEXT_DEBIAN}/copyright
      ${SYS_CONTEXT_GZIPPED}/changelog.gz
      ${SYS_CONTEXT_GZIPPED}/changelog.Debian.gz
    DESTINATION share/doc/${name}
    COMPONENT ${component})
endmacro()

set(CPACK_COMPONENTS_ALL library development docs)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP dev)
set(CPACK_COMPONENT_DOCS_GROUP dev)
set(CPACK_COMPONENT_DEV_DEPENDS library)
sys_context_package(LIBRARY ${SYS_CONTEXT_RUNTIME_PACKAGE} libs library
  "equipment catalog of an optical line terminal
The library reads what the equipment is, from its chassis and boards to the
types of its ONUs, from definition files, and answers questions about it.")
sys_context_package(DEV libsys-context-dev libdevel development
  "equipment catalog of an optical line terminal - development
The headers of the library, what CMake and pkg-config need to find it, and
its documentation.")
if(SYS_CONTEXT_HOST)
  list(APPEND CPACK_COMPONENTS_ALL sysctx)
  set(CPACK_COMPONENT_SYSCTX_DEPENDS library)
  sys_context_package(SYSCTX sysctx utils sysctx
    "simulated control card of an optical line terminal
Loads definition files as the card's firmware does and serves its diagnostic
commands, on a terminal, to telnet clients or one by one. Two complete sample
chassis come with it.")
endif()

# The library's own control files. All symbols have been there from its first version on.
set(SYS_CONTEXT_CONTROL ${PROJECT_BINARY_DIR}/control)
set(SYS_CONTEXT_SONAME libsys_context.so.${PROJECT_VERSION_MAJOR})
list(JOIN SYS_CONTEXT_EXPORT_NAMES "@Base 1.0.0\n " symbols)
file(CONFIGURE OUTPUT ${SYS_CONTEXT_CONTROL}/symbols CONTENT
  "${SYS_CONTEXT_SONAME} ${SYS_CONTEXT_RUNTIME_PACKAGE} #MINVER#\n ${symbols}@Base 1.0.0\n")
file(CONFIGURE OUTPUT ${SYS_CONTEXT_CONTROL}/shlibs CONTENT
  "libsys_context ${PROJECT_VERSION_MAJOR} ${SYS_CONTEXT_RUNTIME_PACKAGE} (>= 1.0.0)\n")
file(CONFIGURE OUTPUT ${SYS_CONTEXT_CONTROL}/triggers CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
  ${SYS_CONTEXT_CONTROL}/symbols ${SYS_CONTEXT_CONTROL}/shlibs ${SYS_CONTEXT_CONTROL}/triggers)

include(CPack)
