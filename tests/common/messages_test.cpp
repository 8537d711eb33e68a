// Console messages: what is printed, and when the debug switch decides it.
#include "common/messages.h"

#include <ostream>

#include "support/tables.h"

namespace {

using sys_context::Gate;
using sys_context::LowBits;
using sys_context::Message;
using sys_context::Report;

class Messages : public test::LibraryTest {
 protected:
  test::Console console_;
};

struct SwitchRow {
  const char* name;
  int32_t debug;
  bool open;
  friend std::ostream& operator<<(std::ostream& out, const SwitchRow& row) {
    return out << row.name;
  }
};

class DebugSwitch : public test::LibraryTest, public testing::WithParamInterface<SwitchRow> {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    ddDebugPrint = GetParam().debug;
  }
  test::Console console_;
};

TEST_P(DebugSwitch, DoesNotConcernConsole) {
  sys_context::Console("\r\nalways %d", 1);
  EXPECT_EQ(console_.Text(), "\r\nalways 1");
}

TEST_P(DebugSwitch, DecidesDebugConsole) {
  sys_context::DebugConsole("\r\ndebug %d %s", 2, "text");
  EXPECT_EQ(console_.Text(), GetParam().open ? "\r\ndebug 2 text" : "");
}

TEST_P(DebugSwitch, OpensTheDebugGateOnly) {
  EXPECT_TRUE(sys_context::IsOpen(Gate::kAlways));
  EXPECT_EQ(sys_context::IsOpen(Gate::kDebug), GetParam().open);
}

TEST_P(DebugSwitch, DecidesReportsOfTheDebugGate) {
  static constexpr Message<uint32_t> kMessage("\r\nvalue = %d");
  Report(Gate::kDebug, kMessage, 3);
  EXPECT_EQ(console_.Text(), GetParam().open ? "\r\nvalue = 3" : "");
  Report(Gate::kAlways, kMessage, 4);
  EXPECT_EQ(console_.Text(), "\r\nvalue = 4");
}

constexpr SwitchRow kSwitches[] = {
    {.name = "Off", .debug = 0, .open = false},
    {.name = "One", .debug = 1, .open = true},
    {.name = "Negative", .debug = -1, .open = true},
    {.name = "HighestBitOnly", .debug = INT32_MIN, .open = true},
    {.name = "UpperHalfOnly", .debug = 0x10000, .open = true},
};
INSTANTIATE_TEST_SUITE_P(Messages, DebugSwitch, testing::ValuesIn(kSwitches),
                         testing::PrintToStringParamName());

TEST_F(Messages, ReportNoValue) {
  static constexpr Message<> kMessage("\r\nnothing to show");
  Report(Gate::kAlways, kMessage);
  EXPECT_EQ(console_.Text(), "\r\nnothing to show");
}

TEST_F(Messages, ReportSignedNumbers) {
  static constexpr Message<int32_t, int32_t, int32_t> kMessage("%d,%d,%d");
  Report(Gate::kAlways, kMessage, -31, INT32_MIN, INT32_MAX);
  EXPECT_EQ(console_.Text(), "-31,-2147483648,2147483647");
}

TEST_F(Messages, ReportUnsignedNumbersAsSignedOnes) {
  static constexpr Message<uint32_t, uint32_t, uint32_t> kMessage("%d,%d,%d");
  Report(Gate::kAlways, kMessage, 0, 0x7fffffff, 0xffffffff);
  EXPECT_EQ(console_.Text(), "0,2147483647,-1");
}

TEST_F(Messages, ReportHexadecimalNumbers) {
  static constexpr Message<uint32_t, uint32_t> kMessage("0x%x 0x%x");
  Report(Gate::kAlways, kMessage, 0, 0xdeadbeef);
  EXPECT_EQ(console_.Text(), "0x0 0xdeadbeef");
}

TEST_F(Messages, ReportTexts) {
  static constexpr Message<const char*, const char*> kMessage("section = %s, key = %s");
  Report(Gate::kAlways, kMessage, "100%s", "");
  EXPECT_EQ(console_.Text(), "section = 100%s, key = ");
}

TEST_F(Messages, ReportWidths) {
  static constexpr Message<uint32_t, const char*, uint32_t> kMessage("[%2d|%-6s|%3d]");
  Report(Gate::kAlways, kMessage, 7, "ab", 1234);
  EXPECT_EQ(console_.Text(), "[ 7|ab    |1234]");
}

TEST_F(Messages, KeepTheirText) {
  static constexpr Message<uint32_t> kMessage("\r\nvalue = %d");
  EXPECT_STREQ(kMessage.text(), "\r\nvalue = %d");
}

TEST_F(Messages, LowBitsOfPointers) {
  EXPECT_EQ(LowBits(nullptr), 0u);
  EXPECT_EQ(LowBits(reinterpret_cast<const void*>(uintptr_t{0x1234})), 0x1234u);
  EXPECT_EQ(LowBits(reinterpret_cast<const void*>(UINTPTR_MAX)), 0xffffffffu);
  EXPECT_EQ(LowBits(reinterpret_cast<const void*>(UINTPTR_MAX - 0xffff)), 0xffff0000u);
  const uintptr_t above_32_bits = UINTPTR_MAX - UINT32_MAX;  // 0 on the card
  EXPECT_EQ(LowBits(reinterpret_cast<const void*>(above_32_bits)), 0u);
}

}  // namespace
