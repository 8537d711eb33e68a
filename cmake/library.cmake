# libsys_context.so: one object library per folder, and their sum, with a
# reserved code area as its first and its last code (context/reserved_area.S).

file(STRINGS ${PROJECT_SOURCE_DIR}/abi/exports.txt SYS_CONTEXT_EXPORTS REGEX "^[TD] ")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS abi/exports.txt)
list(TRANSFORM SYS_CONTEXT_EXPORTS REPLACE "^[TD] " "")
set(SYS_CONTEXT_EXPORT_NAMES ${SYS_CONTEXT_EXPORTS})
list(JOIN SYS_CONTEXT_EXPORTS ";\n    " SYS_CONTEXT_EXPORTS)
set(SYS_CONTEXT_VERSION_SCRIPT ${PROJECT_BINARY_DIR}/exports.map)
configure_file(cmake/exports.map.in ${SYS_CONTEXT_VERSION_SCRIPT} @ONLY)

add_library(sys_context_headers INTERFACE)
target_include_directories(sys_context_headers INTERFACE ${PROJECT_SOURCE_DIR}/include)

# sys_context_folder(NAME SOURCE...): the object library of one folder.
function(sys_context_folder name)
  add_library(sys_context_${name} OBJECT ${ARGN})
  target_link_libraries(sys_context_${name} PRIVATE sys_context_headers sys_context_warnings)
  target_include_directories(sys_context_${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(sys_context_${name} PRIVATE
    # Hosts put functions in front of the C library's by their names, fopen and printf: these
    # flags, which distributions give, would call fopen64 and __printf_chk.
    -U_FILE_OFFSET_BITS -U_TIME_BITS -U_FORTIFY_SOURCE
    $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti -fno-threadsafe-statics>
    # Who calls whom with how much stack, beside the objects: for scripts/measure-stack.
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fcallgraph-info=su>)
  set_target_properties(sys_context_${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    C_VISIBILITY_PRESET hidden
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
endfunction()

foreach(area 0 1)
  sys_context_folder(reserved_area_${area} context/reserved_area.S)
  target_compile_definitions(sys_context_reserved_area_${area} PRIVATE AREA=${area})
endforeach()
set(SYS_CONTEXT_OBJECTS $<TARGET_OBJECTS:sys_context_reserved_area_0>)
foreach(folder common cfgfile context catalog/olt catalog/frame catalog/onu optmodule cli)
  add_subdirectory(${folder})
  string(REPLACE / _ folder ${folder})
  list(APPEND SYS_CONTEXT_OBJECTS $<TARGET_OBJECTS:sys_context_${folder}>)
endforeach()

# sys_context_library(NAME SOURCE...): a shared library of all folders. The C
# compiler links it, and CMake must not add the C++ run-time library, which the
# library does without.
set(CMAKE_CXX_IMPLICIT_LINK_LIBRARIES "")
function(sys_context_library name)
  add_library(${name} SHARED ${ARGN} ${SYS_CONTEXT_OBJECTS})
  # The compiler's own code, such as a division on ARM, comes in front of the last area.
  # As a flag, the area keeps its place behind the libraries.
  target_link_libraries(${name}
    PUBLIC $<BUILD_INTERFACE:sys_context_headers>
    PRIVATE gcc -Wl,$<TARGET_OBJECTS:sys_context_reserved_area_1>)
  add_dependencies(${name} sys_context_reserved_area_1)
  target_link_options(${name} PRIVATE -Wl,--version-script=${SYS_CONTEXT_VERSION_SCRIPT})
  set_target_properties(${name} PROPERTIES
    LINKER_LANGUAGE C
    LINK_DEPENDS "${SYS_CONTEXT_VERSION_SCRIPT};$<TARGET_OBJECTS:sys_context_reserved_area_1>")
endfunction()

sys_context_library(sys_context)
add_library(sys_context::sys_context ALIAS sys_context)
set_target_properties(sys_context PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})

# The host provides the platform functions, so the library itself cannot be
# linked with -z defs. This twin can: it holds stand-ins for exactly those, and
# links only while the library needs nothing else. Nobody loads it. A sanitizer
# needs symbols of its own.
if(SYS_CONTEXT_TESTS AND NOT SYS_CONTEXT_SANITIZED)
  sys_context_library(sys_context_needs_only_the_platform
    ${PROJECT_SOURCE_DIR}/abi/platform_symbols.c)
  target_link_options(sys_context_needs_only_the_platform PRIVATE -Wl,-z,defs)
endif()
