// The printer of one slot class.
#include <ostream>
#include <string>
#include <vector>

#include "cli/frame_printer_test.h"

namespace {

using std::string;

struct ClassRow {
  const char* name;
  std::vector<uint32_t> slots;
  const char* text;
  friend std::ostream& operator<<(std::ostream& out, const ClassRow& row) {
    return out << row.name;
  }
};

class SlotClassPrinter : public test::FramePrinterTest {
 protected:
  static Printed PrintClass(const SlotClassInformation* slots) {
    return Print([=](void* vty) { return ddPrintSlotClassInformation(vty, slots); });
  }
};

class GoodSlotClass : public SlotClassPrinter, public testing::WithParamInterface<ClassRow> {};

TEST_P(GoodSlotClass, IsShown) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    const SlotClassInformation slots = Slots(GetParam().slots);
    const Printed printed = PrintClass(&slots);
    EXPECT_EQ(printed.code, 0);
    EXPECT_EQ(printed.text, GetParam().text);
    EXPECT_EQ(console_.Text(), "");
  }
}

const ClassRow kClasses[] = {
    {"NoSlots",
     {},
     "\r\nulSlotAmount =  0, ulSlotStart  =  0, ulSlotEnd  =  0\r\nucSlotArray = Empty\r\n"},
    {"OneSlot",
     {801},
     "\r\nulSlotAmount =  1, ulSlotStart  = 801, ulSlotEnd  = 801\r\nucSlotArray = 801, \r\n"},
    {"InTheirOrder",
     {5, 3, 9},
     "\r\nulSlotAmount =  3, ulSlotStart  =  5, ulSlotEnd  =  9\r\nucSlotArray = 5, 3, 9, \r\n"},
    {"ExtremeSlots",
     {0, 0xffffffff},
     "\r\nulSlotAmount =  2, ulSlotStart  =  0, ulSlotEnd  = -1\r\nucSlotArray = 0, -1, \r\n"},
};
INSTANTIATE_TEST_SUITE_P(Cli, GoodSlotClass, testing::ValuesIn(kClasses),
                         testing::PrintToStringParamName());

TEST_F(SlotClassPrinter, ShowsNoMoreSlotsThanTheAmount) {
  SlotClassInformation slots = Slots({3, 5, 9});
  slots.ulSlotAmount = 2;
  EXPECT_EQ(
      PrintClass(&slots).text,
      "\r\nulSlotAmount =  2, ulSlotStart  =  3, ulSlotEnd  =  9\r\nucSlotArray = 3, 5, \r\n");
  slots.ulSlotAmount = 0;
  EXPECT_EQ(PrintClass(&slots).text,
            "\r\nulSlotAmount =  0, ulSlotStart  =  3, ulSlotEnd  =  9\r\nucSlotArray = Empty\r\n");
}

TEST_F(SlotClassPrinter, AsManySlotsAsPossible) {
  const SlotClassInformation slots = Slots(std::vector<uint32_t>(100, 7));
  string list;
  for (int i = 0; i < 100; ++i) {
    list += "7, ";
  }
  const Printed printed = PrintClass(&slots);
  EXPECT_EQ(printed.code, 0);
  EXPECT_EQ(printed.text,
            "\r\nulSlotAmount = 100, ulSlotStart  =  7, ulSlotEnd  =  7\r\nucSlotArray = " + list +
                "\r\n");
}

TEST_F(SlotClassPrinter, CorruptAmount) {
  SlotClassInformation slots = Slots({3});
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    slots.ulSlotAmount = 101;
    Printed printed = PrintClass(&slots);
    EXPECT_EQ(printed.code, -4);
    EXPECT_EQ(printed.text,
              "\r\nddPrintSlotClassInformation err! ulSlotAmount = 101, MAX_SLOT_END = 100");
    slots.ulSlotAmount = 0xffffffff;
    printed = PrintClass(&slots);
    EXPECT_EQ(printed.code, -4);
    EXPECT_EQ(printed.text,
              "\r\nddPrintSlotClassInformation err! ulSlotAmount = -1, MAX_SLOT_END = 100");
    EXPECT_EQ(console_.Text(), "");
  }
}

TEST_F(SlotClassPrinter, NoClassAtAll) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    const Printed printed = PrintClass(nullptr);
    EXPECT_EQ(printed.code, -2);
    EXPECT_EQ(printed.text, "\r\nddPrintSlotClassInformation, pstSlotClass = 0x0");
    EXPECT_EQ(console_.Text(), "");
  }
}

TEST_F(SlotClassPrinter, ATerminalThatIsNullIsHandedOn) {
  const SlotClassInformation slots = Slots({3});
  EXPECT_EQ(ddPrintSlotClassInformation(nullptr, &slots), 0);
  EXPECT_EQ(test::FakePlatform::Get().terminals_used, std::vector<void*>(4, nullptr));
}

}  // namespace
