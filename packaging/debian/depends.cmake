# CPack runs this when everything is installed below its own folder, and before it writes the
# packages: tells it the packages of the libraries that the programs need.
set(folder ${CPACK_TOPLEVEL_DIRECTORY}/depends)
file(WRITE ${folder}/debian/control "")  # dpkg-shlibdeps wants to be where packages are made
set(sysroot)
if(CPACK_SYS_CONTEXT_SYSROOT)
  set(sysroot -S${CPACK_SYS_CONTEXT_SYSROOT})
endif()
file(GLOB libraries ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/library/usr/lib/*)

foreach(component library sysctx)
  file(GLOB_RECURSE programs
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr/bin/*
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr/lib/*.so.*.*.*)
  if(programs)
    # What is not in a package yet is our library, on which sysctx depends as it is.
    execute_process(
      COMMAND dpkg-shlibdeps --ignore-missing-info ${sysroot} -l${libraries} -O ${programs}
      WORKING_DIRECTORY ${folder}
      OUTPUT_VARIABLE depends
      OUTPUT_STRIP_TRAILING_WHITESPACE
      ERROR_VARIABLE messages
      RESULT_VARIABLE result)
    if(NOT result EQUAL 0 OR NOT depends MATCHES "^shlibs:Depends=(.+)$")
      message(FATAL_ERROR "dpkg-shlibdeps: ${depends}\n${messages}")
    endif()
    string(TOUPPER ${component} part)
    set(CPACK_DEBIAN_${part}_PACKAGE_DEPENDS "${CMAKE_MATCH_1}")
  endif()
endforeach()
