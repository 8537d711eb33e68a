// What the listing of the frame asks of type-2 logic ports, and what it shows when
// that fails. In real life a number that was found is never refused, so the lookups
// are put in front of the library's own.
#include <ostream>
#include <string>
#include <vector>

#include "cli/frame_printer_test.h"

namespace {

using std::string;

// The lookup that fails, from that call on, and those that were made.
struct Lookups {
  string failing;
  int32_t code = 0;
  std::vector<string> made;
};
Lookups lookups;

// Notes a lookup of that number. Does it fail?
bool Fails(const string& name, uint32_t number) {
  lookups.made.push_back(name + " " + std::to_string(number));
  return lookups.failing == name;
}

}  // namespace

extern "C" {
int32_t __real_get_balance_switch_logicport_portno_from_index(uint32_t index, uint32_t* number);
int32_t __wrap_get_balance_switch_logicport_portno_from_index(uint32_t index, uint32_t* number);
int32_t __real_get_balance_slotport_from_switch_logicport(uint32_t number, uint32_t* slot,
                                                          uint32_t* port);
int32_t __wrap_get_balance_slotport_from_switch_logicport(uint32_t number, uint32_t* slot,
                                                          uint32_t* port);
int32_t __real_get_balance_chipno_phyport_from_switch_logicport(uint32_t number, uint32_t* chip,
                                                                uint32_t* phy_port);
int32_t __wrap_get_balance_chipno_phyport_from_switch_logicport(uint32_t number, uint32_t* chip,
                                                                uint32_t* phy_port);
int32_t __real_is_higigport_balance_switch_logicport(uint32_t number, uint32_t* is_higig);
int32_t __wrap_is_higigport_balance_switch_logicport(uint32_t number, uint32_t* is_higig);

int32_t __wrap_get_balance_switch_logicport_portno_from_index(uint32_t index, uint32_t* number) {
  return Fails("number", index)
             ? lookups.code
             : __real_get_balance_switch_logicport_portno_from_index(index, number);
}

int32_t __wrap_get_balance_slotport_from_switch_logicport(uint32_t number, uint32_t* slot,
                                                          uint32_t* port) {
  return Fails("slot", number)
             ? lookups.code
             : __real_get_balance_slotport_from_switch_logicport(number, slot, port);
}

int32_t __wrap_get_balance_chipno_phyport_from_switch_logicport(uint32_t number, uint32_t* chip,
                                                                uint32_t* phy_port) {
  return Fails("chip", number)
             ? lookups.code
             : __real_get_balance_chipno_phyport_from_switch_logicport(number, chip, phy_port);
}

int32_t __wrap_is_higigport_balance_switch_logicport(uint32_t number, uint32_t* is_higig) {
  return Fails("higig", number) ? lookups.code
                                : __real_is_higigport_balance_switch_logicport(number, is_higig);
}
}

namespace {

struct LookupRow {
  const char* name;
  const char* failing;
  int32_t code;
  const char* text;  // in place of the lines of both entries
  std::vector<string> made;
  friend std::ostream& operator<<(std::ostream& out, const LookupRow& row) {
    return out << row.name;
  }
};

class FramePrinterLookups : public test::FramePrinterTest,
                            public testing::WithParamInterface<LookupRow> {
 protected:
  void TearDown() override {
    lookups = {};
    test::FramePrinterTest::TearDown();
  }
};

TEST_P(FramePrinterLookups, OfTwoEntries) {
  AddBalancePort({5, 6, 7, 8, 1});
  AddBalancePort({9, 10, 11, 12, 1});
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    lookups = {GetParam().failing, GetParam().code, {}};
    EXPECT_PRINTED(
        ddPrintFrameInfomation, 0,
        test::FrameListing(test::kNoSlots, string("\r\n"
                                                  "\r\nulSwitchChipLogicPortNum =  0"
                                                  "\r\n"
                                                  "\r\nulType2SwitchChipLogicPortNum =  2") +
                                               GetParam().text + "\r\n\r\n"));
    EXPECT_EQ(lookups.made, GetParam().made);
  }
}

const LookupRow kLookups[] = {
    {"NoneFails",
     "",
     0,
     "\r\nType2SwitchChipLogicPortNum =  1 --->(SlotOut: 5, Port: 6, ChipPort: 7, PhyPort: 8, "
     "HigigFlag: 1 )"
     "\r\nType2SwitchChipLogicPortNum =  2 --->(SlotOut: 9, Port:10, ChipPort:11, PhyPort:12, "
     "HigigFlag: 1 )",
     {"number 0", "slot 1", "chip 1", "higig 1", "number 1", "slot 2", "chip 2", "higig 2"}},
    {"TheNumberFails",
     "number",
     -2147483647,
     "\r\nddPrintFrameInfomation->get_balance_switch_logicport_portno_from_index err! "
     "iResult = -2147483647, ulSwitchChipLogicPortNumIndex = 0, ulChipLogicPort = 0"
     "\r\nddPrintFrameInfomation->get_balance_switch_logicport_portno_from_index err! "
     "iResult = -2147483647, ulSwitchChipLogicPortNumIndex = 1, ulChipLogicPort = 0",
     {"number 0", "number 1"}},
    {"TheSlotFails",
     "slot",
     -26,
     "\r\nddPrintFrameInfomation->get_balance_slotport_from_switch_logicport err! "
     "iResult = -26, ulChipLogicPort = 1, ulSLotOut = 0, ulBoardType = 0"
     "\r\nddPrintFrameInfomation->get_balance_slotport_from_switch_logicport err! "
     "iResult = -26, ulChipLogicPort = 2, ulSLotOut = 0, ulBoardType = 0",
     {"number 0", "slot 1", "number 1", "slot 2"}},
    {"TheChipFails",
     "chip",
     1,
     "\r\nddPrintFrameInfomation->get_balance_chipno_phyport_from_switch_logicport err! "
     "iResult = 1, ulChipLogicPort = 1, ulSLotOut = 5, ulBoardType = 0"
     "\r\nddPrintFrameInfomation->get_balance_chipno_phyport_from_switch_logicport err! "
     "iResult = 1, ulChipLogicPort = 2, ulSLotOut = 9, ulBoardType = 0",
     {"number 0", "slot 1", "chip 1", "number 1", "slot 2", "chip 2"}},
    {"TheFlagFails",
     "higig",
     -27,
     "\r\nddPrintFrameInfomation->is_higigport_balance_switch_logicport err! "
     "iResult = -27, ulChipLogicPort = 1, ulHigigFlag = 0"
     "\r\nddPrintFrameInfomation->is_higigport_balance_switch_logicport err! "
     "iResult = -27, ulChipLogicPort = 2, ulHigigFlag = 0",
     {"number 0", "slot 1", "chip 1", "higig 1", "number 1", "slot 2", "chip 2", "higig 2"}},
};
INSTANTIATE_TEST_SUITE_P(Cli, FramePrinterLookups, testing::ValuesIn(kLookups),
                         testing::PrintToStringParamName());

}  // namespace
