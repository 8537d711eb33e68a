# Builds libsys_context from a release tarball (scripts/package --source), which belongs
# beside this recipe, in sys-context/.
SUMMARY = "What an optical line terminal is: its equipment catalog, read from definition files"
SECTION = "libs"
LICENSE = "CLOSED"

SRC_URI = "file://sys_context-${PV}.tar.gz"
# Newer releases unpack into a folder of their own.
UNPACKDIR ??= "${WORKDIR}"
S = "${UNPACKDIR}/sys_context-${PV}"

inherit cmake pkgconfig

EXTRA_OECMAKE = "-DCMAKE_BUILD_TYPE=RelWithDebInfo"

# The simulated card, for a desk image: PACKAGECONFIG:append:pn-sys-context = " sysctx".
PACKAGECONFIG ??= ""
PACKAGECONFIG[sysctx] = "-DSYS_CONTEXT_HOST=ON,-DSYS_CONTEXT_HOST=OFF,curl libcli libedit tomlplusplus zlib"

PACKAGES =+ "sysctx"
FILES:sysctx = "${bindir}/sysctx ${datadir}/sysctx"
