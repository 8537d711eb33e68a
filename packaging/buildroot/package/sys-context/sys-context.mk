################################################################################
#
# sys-context
#
################################################################################

SYS_CONTEXT_VERSION = 1.0.0
SYS_CONTEXT_SITE = $(call qstrip,$(BR2_PACKAGE_SYS_CONTEXT_ARCHIVES))
SYS_CONTEXT_SITE_METHOD = file
SYS_CONTEXT_SOURCE = sys_context-$(SYS_CONTEXT_VERSION).tar.gz
SYS_CONTEXT_LICENSE = PROPRIETARY
SYS_CONTEXT_REDISTRIBUTE = NO
SYS_CONTEXT_INSTALL_STAGING = YES
SYS_CONTEXT_SUPPORTS_IN_SOURCE_BUILD = NO
SYS_CONTEXT_CONF_OPTS = -DSYS_CONTEXT_HOST=OFF

$(eval $(cmake-package))
