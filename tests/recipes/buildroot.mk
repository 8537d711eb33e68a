# Stands in for Buildroot's package infrastructure, as far as sys-context.mk uses it: takes
# the archive from its site, and configures, builds and installs it with CMake.
#
#   make -f buildroot.mk RECIPE=FILE TOOLCHAIN=FILE WORK=FOLDER
#
# The package is installed below WORK/staging and WORK/target.

.DEFAULT_GOAL := all

qstrip = $(strip $(subst ",,$(1)))

BUILD = $(WORK)/build/sys-context-$(SYS_CONTEXT_VERSION)
STAGING_YES = staging
FLAGS = -D_LARGEFILE_SOURCE -D_FILE_OFFSET_BITS=64 -D_TIME_BITS=64 -D_FORTIFY_SOURCE=2 -O2

define cmake-package
all: target $(STAGING_$(SYS_CONTEXT_INSTALL_STAGING))
endef

include $(RECIPE)

ifneq ($(SYS_CONTEXT_SITE_METHOD),file)
$(error the archive must come from a folder)
endif
ifneq ($(SYS_CONTEXT_SUPPORTS_IN_SOURCE_BUILD),NO)
$(error it is built in a folder of its own)
endif

$(BUILD)/extracted: $(SYS_CONTEXT_SITE)/$(SYS_CONTEXT_SOURCE)
	mkdir -p $(BUILD)
	tar -xf $< -C $(BUILD) --strip-components=1
	touch $@

$(BUILD)/built: $(BUILD)/extracted
	cmake -S $(BUILD) -B $(BUILD)/buildroot-build -DCMAKE_TOOLCHAIN_FILE=$(TOOLCHAIN) \
		-DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DBUILD_SHARED_LIBS=ON \
		-DCMAKE_C_FLAGS="$(FLAGS)" -DCMAKE_CXX_FLAGS="$(FLAGS)" \
		-DBUILD_DOC=OFF -DBUILD_TESTING=OFF $(SYS_CONTEXT_CONF_OPTS)
	cmake --build $(BUILD)/buildroot-build --parallel
	touch $@

staging target: $(BUILD)/built
	DESTDIR=$(WORK)/$@ cmake --install $(BUILD)/buildroot-build

.PHONY: all staging target
