// Functions of the library that stand in front of its own.
#include "catalog/frame/frame_reader_stand_ins.h"

namespace test {

FrameStandIns& FrameStandIns::Get() {
  static FrameStandIns calls;
  return calls;
}

void FrameStandIns::Reset() {
  Get() = FrameStandIns();
}

}  // namespace test

using test::FrameStandIns;

extern "C" {

int32_t __real_CFG_get_key(const char* file, const char* section, const char* key, char* value);
int32_t __real_ddGetCardTypeByName(const char* pcCardName, uint32_t* pulCardType);
int32_t __real_ddInquireFrameName(char* pcName);

int32_t __wrap_CFG_get_key(const char* file, const char* section, const char* key, char* value);
int32_t __wrap_ddGetCardTypeByName(const char* pcCardName, uint32_t* pulCardType);
int32_t __wrap_ddInquireFrameName(char* pcName);

int32_t __wrap_CFG_get_key(const char* file, const char* section, const char* key, char* value) {
  FrameStandIns::Get().keys.push_back(std::string(section) + ": " + key);
  return __real_CFG_get_key(file, section, key, value);
}

int32_t __wrap_ddGetCardTypeByName(const char* pcCardName, uint32_t* pulCardType) {
  FrameStandIns::Get().cards.emplace_back(pcCardName);
  const std::optional<int32_t>& code = FrameStandIns::Get().card_code;
  return code ? *code : __real_ddGetCardTypeByName(pcCardName, pulCardType);
}

int32_t __wrap_ddInquireFrameName(char* pcName) {
  const std::optional<int32_t>& code = FrameStandIns::Get().frame_code;
  return code ? *code : __real_ddInquireFrameName(pcName);
}

}  // extern "C"
