# What the library may take of the card: stack and heap. It holds for optimised builds.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR SYS_CONTEXT_SANITIZED
   OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
  return()
endif()
find_package(Threads REQUIRED)
set(sample ${PROJECT_SOURCE_DIR}/definitions/kt3300-l/mnt/work)

# By the frames that GCC laid out, which it writes beside the objects.
library_shape_test(Stack stack_test.py
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/abi/exports.txt ${SYS_CONTEXT_OBJECTS})

# limits_program(NAME SOURCE...): a host with the large sample's card.
function(limits_program name)
  add_executable(${name} ${ARGN}
    ../support/sample_card.cpp
    ../support/sample_onu_service.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE
    SYS_CONTEXT_SAMPLE="${sample}/device_definition.ini"
    SYS_CONTEXT_OPTICAL_SAMPLE="${sample}/optmodule_definition.ini")
  target_link_libraries(${name} PRIVATE sys_context Threads::Threads sys_context_warnings)
endfunction()

# As it is used, the C library's part included.
set(bench ${PROJECT_SOURCE_DIR}/bench)
limits_program(stack_use stack_use.cpp ${bench}/full_onu_table.cpp
  ${bench}/full_optical_list.cpp ${bench}/plain_queries.cpp ${bench}/queries.cpp)
add_test(NAME Library/StackUse COMMAND stack_use)

limits_program(heap_use ${bench}/memory.cpp ${bench}/table.cpp ../threads/platform.cpp)
library_shape_test(Heap heap_test.py ${CMAKE_SIZEOF_VOID_P}
  ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:heap_use>
  ${sample}/device_definition.ini ${sample}/optmodule_definition.ini)
