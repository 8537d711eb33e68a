# The reserved areas of every library that firmware may get: of both compilers, for both
# processors, optimised and not. Each test builds its library, and nothing else, in a
# folder of its own. Which there are is settled here, by the compilers that are found.
find_program(SYS_CONTEXT_CLANG clang++)
find_program(SYS_CONTEXT_ARM_GCC arm-linux-gnueabihf-g++)  # whose linker and libc Clang needs, too

# reserved_areas_test(NAME NEEDED CMAKE-OPTION...): both builds of a compiler, if all that
# it needs was found.
function(reserved_areas_test name needed)
  foreach(program IN LISTS needed)
    if(NOT ${program})
      if(SYS_CONTEXT_EVERY_COMPILER)
        message(FATAL_ERROR "A compiler is missing: ${program}")
      endif()
      message(STATUS "No test of the reserved areas in a build by ${name}: no ${program}")
      return()
    endif()
  endforeach()
  foreach(type Release Debug)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/reserved_areas/${name}${type})
    add_test(NAME Library/ReservedAreas/${name}${type}
      COMMAND ${CMAKE_CTEST_COMMAND} --build-and-test ${PROJECT_SOURCE_DIR} ${folder}
        --build-generator ${CMAKE_GENERATOR} --build-target sys_context --build-noclean
        --build-options -DCMAKE_BUILD_TYPE=${type} ${ARGN}
          -DCMAKE_JOB_POOLS=two=2 -DCMAKE_JOB_POOL_COMPILE=two
        --test-command ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_LIST_DIR}/reserved_areas_test.py
          ${folder}/libsys_context.so)
    set_tests_properties(Library/ReservedAreas/${name}${type} PROPERTIES PROCESSORS 2)
  endforeach()
endfunction()

reserved_areas_test(Gcc ""
  -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER} -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER})
reserved_areas_test(ArmGcc SYS_CONTEXT_ARM_GCC
  -DCMAKE_TOOLCHAIN_FILE=${PROJECT_SOURCE_DIR}/cmake/arm-linux-gnueabihf.cmake)

set(clang -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_ASM_COMPILER=clang)
set(clang_for_arm ${clang} -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=arm)
foreach(language C CXX ASM)
  list(APPEND clang_for_arm -DCMAKE_${language}_COMPILER_TARGET=arm-linux-gnueabihf)
endforeach()
reserved_areas_test(Clang SYS_CONTEXT_CLANG ${clang})
reserved_areas_test(ArmClang "SYS_CONTEXT_CLANG;SYS_CONTEXT_ARM_GCC" ${clang_for_arm})
