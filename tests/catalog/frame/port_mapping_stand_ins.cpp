// Stand-ins for the library's own lookups; see the header.
#include "catalog/frame/port_mapping_stand_ins.h"

#include <string>

#include "support/fake_platform.h"
#include "sys_context/frame.h"

namespace test {

PortMappingStandIns& PortMappingStandIns::Get() {
  static PortMappingStandIns stand_ins;
  return stand_ins;
}

void PortMappingStandIns::Reset() {
  Get() = PortMappingStandIns();
}

namespace {

void Note(const std::string& lookup) {
  FakePlatform::Get().asked.push_back(lookup);
}

}  // namespace
}  // namespace test

using test::FakePlatform;
using test::Note;
using test::PortMappingStandIns;

extern "C" {

int32_t __real_ddRunGetMainSlotType(uint32_t* type);
int32_t __real_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** record);
int32_t __real_ddGetSlotPortFromSwitchChipLogicPort(uint32_t number, uint32_t* slot,
                                                    uint32_t* port);
int32_t __real_ddGetSpecialLogicPortToPhyPortObjByType(uint32_t main_type, uint32_t card_type,
                                                       PortMap** map);
int32_t __wrap_ddRunGetMainSlotType(uint32_t* type);
int32_t __wrap_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** record);
int32_t __wrap_ddGetSlotPortFromSwitchChipLogicPort(uint32_t number, uint32_t* slot,
                                                    uint32_t* port);
int32_t __wrap_ddGetSpecialLogicPortToPhyPortObjByType(uint32_t main_type, uint32_t card_type,
                                                       PortMap** map);

int32_t __wrap_ddRunGetMainSlotType(uint32_t* type) {
  const auto code = PortMappingStandIns::Get().main_type_code;
  return code ? *code : __real_ddRunGetMainSlotType(type);
}

int32_t __wrap_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** record) {
  Note("main board " + std::to_string(static_cast<int32_t>(type)));
  if (const auto answer = PortMappingStandIns::Get().main_board; answer) {
    *record = answer->record;
    return answer->code;
  }
  return __real_ddGetMainBoardObjByType(type, record);
}

int32_t __wrap_ddGetSlotPortFromSwitchChipLogicPort(uint32_t number, uint32_t* slot,
                                                    uint32_t* port) {
  Note("logic port " + std::to_string(number));
  if (const auto answer = PortMappingStandIns::Get().slot_of_port_0; answer && number == 0) {
    *slot = *answer;
    *port = 1;
    return 0;
  }
  return __real_ddGetSlotPortFromSwitchChipLogicPort(number, slot, port);
}

int32_t __wrap_ddGetSpecialLogicPortToPhyPortObjByType(uint32_t main_type, uint32_t card_type,
                                                       PortMap** map) {
  Note("special map " + std::to_string(main_type) + " " + std::to_string(card_type));
  if (const auto answer = PortMappingStandIns::Get().special_map; answer) {
    *map = answer->record;
    return answer->code;
  }
  const size_t asked = FakePlatform::Get().asked.size();
  const int32_t code = __real_ddGetSpecialLogicPortToPhyPortObjByType(main_type, card_type, map);
  FakePlatform::Get().asked.resize(asked);  // what that one asks is its own affair
  return code;
}

}  // extern "C"
