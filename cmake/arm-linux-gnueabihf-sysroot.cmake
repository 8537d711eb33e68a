# The control card's processor, with the libraries of SYS_CONTEXT_SYSROOT, which
# packaging/debian/armhf-sysroot fills. The C library for building is the compiler's own.
include(${CMAKE_CURRENT_LIST_DIR}/arm-linux-gnueabihf.cmake)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SYS_CONTEXT_SYSROOT)
list(APPEND CMAKE_FIND_ROOT_PATH ${SYS_CONTEXT_SYSROOT})
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L ${SYS_CONTEXT_SYSROOT})

set(ENV{PKG_CONFIG_SYSROOT_DIR} ${SYS_CONTEXT_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR} ${SYS_CONTEXT_SYSROOT}/usr/lib/arm-linux-gnueabihf/pkgconfig)

set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES
  ${SYS_CONTEXT_SYSROOT}/usr/include ${SYS_CONTEXT_SYSROOT}/usr/include/arm-linux-gnueabihf)
# Where the libraries find those that they need themselves.
foreach(folder lib usr/lib)
  string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT
    " -Wl,-rpath-link,${SYS_CONTEXT_SYSROOT}/${folder}/arm-linux-gnueabihf")
endforeach()
