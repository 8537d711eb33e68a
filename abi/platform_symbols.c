/*
 * A stand-in for each symbol that the library may leave to its host, and for
 * no other: with them it links under -z defs. See cmake/library.cmake.
 */
#define PLATFORM_FUNCTION(name) \
  void name(void);              \
  void name(void) {}

PLATFORM_FUNCTION(install_element)
PLATFORM_FUNCTION(vk_install_element)
PLATFORM_FUNCTION(vty_out)
PLATFORM_FUNCTION(modInitRegister)
PLATFORM_FUNCTION(setModVersion)
PLATFORM_FUNCTION(ulogPrintf)
PLATFORM_FUNCTION(bep_taskDelayEx)
PLATFORM_FUNCTION(flash_sizeof)
PLATFORM_FUNCTION(flash_read)
PLATFORM_FUNCTION(zUnCompress)
PLATFORM_FUNCTION(upload_buf_by_ftp)
PLATFORM_FUNCTION(is_manage_ipAddr)
PLATFORM_FUNCTION(diags_is_outbandip)
PLATFORM_FUNCTION(get_system_device_type)
PLATFORM_FUNCTION(get_config_card_type)
PLATFORM_FUNCTION(get_core_card_self_cardnumber)
PLATFORM_FUNCTION(get_core_card_detect_type)
PLATFORM_FUNCTION(caCheckCardTypeIsEthCard)
PLATFORM_FUNCTION(caCheckCardTypeIsPonCard)
PLATFORM_FUNCTION(caCheckCardTypeIsServiceCard)
PLATFORM_FUNCTION(caCheckCardTypeIsUplinkCard)
PLATFORM_FUNCTION(get_valid_onu_type)
PLATFORM_FUNCTION(cs_get_onu_pon_num_by_type)
PLATFORM_FUNCTION(cs_get_onu_pon_port_type_by_type)
PLATFORM_FUNCTION(cs_get_onu_lan_port_num_by_type)
PLATFORM_FUNCTION(cs_get_onu_lan_port_type_by_type)
PLATFORM_FUNCTION(cs_get_onu_pots_port_num_by_type)
PLATFORM_FUNCTION(cs_get_onu_pots_port_type_by_type)
PLATFORM_FUNCTION(cs_get_onu_special_port_num_by_type)
PLATFORM_FUNCTION(cs_get_onu_special_port_amount)
PLATFORM_FUNCTION(cs_get_onu_special_port_type_by_port_no)
PLATFORM_FUNCTION(cs_get_onu_special_port_type_list)
PLATFORM_FUNCTION(cs_get_onu_name_by_type)
PLATFORM_FUNCTION(cs_get_onu_type_by_name)
PLATFORM_FUNCTION(cs_is_onu_supported_by_type)
PLATFORM_FUNCTION(cs_get_supported_onu_max_lan_num)

extern int devmgrModuRegId;
int devmgrModuRegId;
