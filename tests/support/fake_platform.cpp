// The platform functions, over FakePlatform.
#include "support/fake_platform.h"

#include <arpa/inet.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace test {

FakePlatform& FakePlatform::Get() {
  static FakePlatform platform;
  return platform;
}

void FakePlatform::Reset() {
  Get() = FakePlatform();
}

std::vector<std::string> FakePlatform::TakeAsked() {
  return std::exchange(Get().asked, {});
}

std::vector<std::string> FakePlatform::TakeLog() {
  return std::exchange(Get().log, {});
}

namespace {

void NoteQuestion(const std::string& question) {
  FakePlatform::Get().asked.push_back(question);
}

int32_t AnswerKind(const char* kind, const std::set<int16_t>& cards, int16_t card_type) {
  NoteQuestion(std::string(kind) + " " + std::to_string(card_type));
  return cards.count(card_type) != 0 ? 0 : FakePlatform::Get().not_of_that_kind;
}

int32_t AnswerOnuNumber(const std::string& question, uint32_t* result) {
  NoteQuestion(question);
  const FakePlatform& platform = FakePlatform::Get();
  if (platform.onu_stores) {
    *result = platform.onu_number;
  }
  return platform.onu_result;
}

}  // namespace
}  // namespace test

using test::FakePlatform;

int32_t install_element(int32_t node, CommandRecord* record) {
  FakePlatform::Get().installed.push_back({node, record, {}});
  return FakePlatform::Get().install_result;
}

int32_t vk_install_element(int32_t node, CommandRecord* record, int32_t a, int32_t b) {
  FakePlatform::Get().installed.push_back({node, record, {a, b}});
  return FakePlatform::Get().vk_install_result;
}

int32_t vty_out(void* vty, const char* format, ...) {
  char text[4096];
  va_list values;
  va_start(values, format);
  const int length = std::vsnprintf(text, sizeof text, format, values);
  va_end(values);
  FakePlatform::Get().terminals_used.push_back(vty);
  FakePlatform::Get().terminal.append(text, static_cast<size_t>(length));
  return length;
}

int32_t modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e,
                        int32_t f) {
  FakePlatform& platform = FakePlatform::Get();
  platform.registered_modules.push_back(name);
  platform.register_numbers.push_back({a, b, c, d, e, f});
  return platform.register_result;
}

int32_t setModVersion(int32_t modId, int32_t number, const char* version) {
  FakePlatform& platform = FakePlatform::Get();
  platform.versions.push_back({modId, number, version});
  return platform.version_result;
}

int32_t devmgrModuRegId = 31;

int32_t ulogPrintf(int32_t modId, int32_t level, const char* format, ...) {
  char text[4096];
  va_list values;
  va_start(values, format);
  std::vsnprintf(text, sizeof text, format, values);
  va_end(values);
  FakePlatform::Get().log.push_back(std::to_string(modId) + " " + std::to_string(level) + " " +
                                    text);
  return 0;
}

int32_t bep_taskDelayEx(int32_t ticks) {
  FakePlatform& platform = FakePlatform::Get();
  platform.delays.push_back(ticks);
  platform.shown_before_delays.push_back(platform.terminal.size());
  if (platform.on_delay != nullptr) {
    platform.on_delay();
  }
  return 0;
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  return test::AnswerKind("pon", FakePlatform::Get().pon_cards, cardType);
}

int32_t caCheckCardTypeIsEthCard(int16_t cardType) {
  return test::AnswerKind("ethernet", FakePlatform::Get().ethernet_cards, cardType);
}

int32_t caCheckCardTypeIsServiceCard(int16_t cardType) {
  return test::AnswerKind("service", FakePlatform::Get().service_cards, cardType);
}

int32_t caCheckCardTypeIsUplinkCard(int16_t cardType) {
  return test::AnswerKind("uplink", FakePlatform::Get().uplink_cards, cardType);
}

int32_t get_system_device_type() {
  test::NoteQuestion("device type");
  return FakePlatform::Get().device_type;
}

int32_t get_config_card_type(uint32_t slot) {
  test::NoteQuestion("slot " + std::to_string(slot));
  const FakePlatform& platform = FakePlatform::Get();
  const auto card = platform.configured_cards.find(slot);
  return card == platform.configured_cards.end() ? platform.no_card : card->second;
}

int32_t get_core_card_self_cardnumber() {
  test::NoteQuestion("own slot");
  return FakePlatform::Get().own_slot;
}

int32_t get_core_card_detect_type() {
  test::NoteQuestion("main card");
  return FakePlatform::Get().main_card;
}

#define ANSWER_FOR_TYPE(function)                                                            \
  int32_t function(uint32_t type, uint32_t* result) {                                        \
    return test::AnswerOnuNumber(std::string(#function " ") + std::to_string(type), result); \
  }
ANSWER_FOR_TYPE(cs_get_onu_pon_num_by_type)
ANSWER_FOR_TYPE(cs_get_onu_lan_port_num_by_type)
ANSWER_FOR_TYPE(cs_get_onu_pots_port_num_by_type)
ANSWER_FOR_TYPE(cs_get_onu_special_port_amount)
ANSWER_FOR_TYPE(cs_is_onu_supported_by_type)

#define ANSWER_FOR_TYPE_AND_NUMBER(function)                                                       \
  int32_t function(uint32_t type, uint32_t number, uint32_t* result) {                             \
    return test::AnswerOnuNumber(                                                                  \
        std::string(#function " ") + std::to_string(type) + " " + std::to_string(number), result); \
  }
ANSWER_FOR_TYPE_AND_NUMBER(cs_get_onu_pon_port_type_by_type)
ANSWER_FOR_TYPE_AND_NUMBER(cs_get_onu_lan_port_type_by_type)
ANSWER_FOR_TYPE_AND_NUMBER(cs_get_onu_pots_port_type_by_type)
ANSWER_FOR_TYPE_AND_NUMBER(cs_get_onu_special_port_num_by_type)
ANSWER_FOR_TYPE_AND_NUMBER(cs_get_onu_special_port_type_by_port_no)

int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array, uint32_t arrayAmount,
                                          uint32_t* amount) {
  test::NoteQuestion("cs_get_onu_special_port_type_list " + std::to_string(type) + " " +
                     std::to_string(arrayAmount));
  const FakePlatform& platform = FakePlatform::Get();
  if (platform.onu_stores) {
    std::copy(platform.onu_list.begin(), platform.onu_list.end(), array);
    *amount = static_cast<uint32_t>(platform.onu_list.size());
  }
  return platform.onu_result;
}

int32_t cs_get_onu_name_by_type(uint32_t type, char* name) {
  test::NoteQuestion("cs_get_onu_name_by_type " + std::to_string(type));
  const FakePlatform& platform = FakePlatform::Get();
  if (!platform.onu_name.empty()) {
    std::memcpy(name, platform.onu_name.c_str(), platform.onu_name.size() + 1);
  }
  return platform.onu_result;
}

int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result) {
  return test::AnswerOnuNumber(std::string("cs_get_onu_type_by_name ") + name, result);
}

int32_t cs_get_supported_onu_max_lan_num(uint32_t* result) {
  return test::AnswerOnuNumber("cs_get_supported_onu_max_lan_num", result);
}

int32_t get_valid_onu_type(uint32_t a, uint32_t b, uint32_t c) {
  test::NoteQuestion("onu " + std::to_string(a) + " " + std::to_string(b) + " " +
                     std::to_string(c));
  return FakePlatform::Get().fitted_onu;
}

int32_t flash_sizeof(const char* name) {
  test::NoteQuestion(std::string("flash_sizeof ") + name);
  const FakePlatform& platform = FakePlatform::Get();
  return platform.flash_size.value_or(static_cast<int32_t>(platform.flash.size()));
}

int32_t flash_read(const char* name, char* buffer, int32_t* length) {
  test::NoteQuestion(std::string("flash_read ") + name + " " + std::to_string(*length));
  const FakePlatform& platform = FakePlatform::Get();
  if (platform.flash_read_result == 0) {
    std::copy(platform.flash.begin(), platform.flash.end(), buffer);
    *length = platform.flash_length.value_or(static_cast<int32_t>(platform.flash.size()));
  }
  return platform.flash_read_result;
}

int32_t zUnCompress(uint8_t* dst, uint32_t* dstLength, const uint8_t* src, uint32_t srcLength) {
  test::NoteQuestion("zUnCompress " + std::to_string(*dstLength) + " " +
                     std::string(reinterpret_cast<const char*>(src), srcLength));
  const FakePlatform& platform = FakePlatform::Get();
  constexpr int32_t kBufferTooSmall = -5;
  if (platform.expand_result != 0) {
    return platform.expand_result;
  }
  if (platform.expanded.size() > *dstLength) {
    return kBufferTooSmall;
  }
  std::copy(platform.expanded.begin(), platform.expanded.end(), dst);
  *dstLength = platform.expanded_length.value_or(static_cast<uint32_t>(platform.expanded.size()));
  return 0;
}

int32_t upload_buf_by_ftp(const char* address, const char* user, const char* password,
                          const char* file, const char* buffer, uint32_t length) {
  test::NoteQuestion("upload");
  FakePlatform::Get().uploads.push_back(
      {address, user, password, file, std::string(buffer, length)});
  return FakePlatform::Get().upload_result;
}

int32_t is_manage_ipAddr(uint32_t address) {
  test::NoteQuestion(std::string("manage ") + inet_ntoa(in_addr{address}));
  return FakePlatform::Get().manage_result;
}

int32_t diags_is_outbandip(const char* address) {
  test::NoteQuestion(std::string("outband ") + address);
  return FakePlatform::Get().outband_result;
}
