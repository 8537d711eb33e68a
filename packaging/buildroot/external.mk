include $(sort $(wildcard $(BR2_EXTERNAL_SYS_CONTEXT_PATH)/package/*/*.mk))
