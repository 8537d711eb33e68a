// The name of the chassis: by device type, copied, and of the loaded frame.
#include "catalog/frame/frame_name.h"

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "support/records.h"
#include "support/tables.h"
#include "sys_context/frame.h"

namespace {

using std::string;

class FrameName : public test::LibraryTest {
 protected:
  test::Console console_;
};

// A buffer into which that much was copied; nothing behind it is touched.
string Buffer(const string& copied) {
  string buffer(80, '#');
  return buffer.replace(0, copied.size(), copied);
}
string Terminated(const string& name) {
  return {name.c_str(), name.size() + 1};
}

// ---- By device type -----------------------------------------------------------------

struct DeviceRow {
  int32_t device_type;
  const char* name;
  string console = "";
};
void PrintTo(const DeviceRow& row, std::ostream* out) {
  *out << (row.device_type < 0 ? "Minus" : "Type")
       << (row.device_type < 0 ? -int64_t{row.device_type} : row.device_type);
}

class NameOfDevice : public FrameName, public testing::WithParamInterface<DeviceRow> {};

TEST_P(NameOfDevice, IsInquired) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::FakePlatform::Get().device_type = GetParam().device_type;
    test::FakePlatform::Get().asked.clear();
    string buffer = Buffer("");
    EXPECT_EQ(ddInquireFrameName(buffer.data()), 0);
    EXPECT_EQ(buffer, Buffer(Terminated(GetParam().name)));
    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(test::FakePlatform::Get().asked, std::vector<string>{"device type"});
  }
}

DeviceRow Unknown(int32_t device_type, const string& shown) {
  return {device_type, "KT3300-L",
          "\r\nddGetFrameName err!, iFrameType = " + shown + ",set default KT3300_L_FRAME"};
}

const DeviceRow kDevices[] = {
    {6, "KT2200-A"},
    {11, "KT2200-B"},
    {12, "KT2200-C"},
    {13, "KT2200-BX"},
    {14, "KT2200-CX"},
    {15, "KT3300-L"},
    {16, "KT3301-M"},
    {17, "KT3300-N"},
    {18, "KT3300-P"},
    {1520, "KT3300-Q"},
    Unknown(0, "0"),
    Unknown(1, "1"),
    Unknown(5, "5"),
    Unknown(7, "7"),
    Unknown(10, "10"),
    Unknown(19, "19"),
    Unknown(1519, "1519"),
    Unknown(1521, "1521"),
    Unknown(15 + 256, "271"),
    Unknown(15 + 65536, "65551"),
    Unknown(-1, "-1"),
    Unknown(-15, "-15"),
    Unknown(std::numeric_limits<int32_t>::max(), "2147483647"),
    Unknown(std::numeric_limits<int32_t>::min(), "-2147483648"),
};
INSTANTIATE_TEST_SUITE_P(Frame, NameOfDevice, testing::ValuesIn(kDevices),
                         testing::PrintToStringParamName());

TEST_F(FrameName, InquiredIntoNoBuffer) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddInquireFrameName(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddGetFrameName err!, pcName = 0x0");
    EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
  }
}

// ---- Copied -------------------------------------------------------------------------

struct CopyRow {
  size_t length;
  int32_t code;
  string console;
};
void PrintTo(const CopyRow& row, std::ostream* out) {
  *out << row.length << "Characters";
}

class CopiedFrameName : public FrameName, public testing::WithParamInterface<CopyRow> {};

TEST_P(CopiedFrameName, OfThatLength) {
  const string name(GetParam().length, 'k');
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    string buffer = Buffer("");
    EXPECT_EQ(sys_context::CopyFrameName(name.c_str(), buffer.data()), GetParam().code);
    EXPECT_EQ(buffer, GetParam().code == 0 ? Buffer(Terminated(name)) : Buffer(""));
    EXPECT_EQ(console_.Text(), GetParam().console);
  }
}

const CopyRow kCopies[] = {
    {0, 0, ""},
    {1, 0, ""},
    {58, 0, ""},
    {59, 0, ""},
    {60, -32, "\r\nddGetFrameName err!, strlen(pstrName) + 1 = 61, MAX_FRAME_NAME_LEN = 60"},
    {61, -32, "\r\nddGetFrameName err!, strlen(pstrName) + 1 = 62, MAX_FRAME_NAME_LEN = 60"},
    {300, -32, "\r\nddGetFrameName err!, strlen(pstrName) + 1 = 301, MAX_FRAME_NAME_LEN = 60"},
};
INSTANTIATE_TEST_SUITE_P(Frame, CopiedFrameName, testing::ValuesIn(kCopies),
                         testing::PrintToStringParamName());

// ---- Of the loaded frame ------------------------------------------------------------

struct LoadedRow {
  const char* name;
  string frame_name;  // 60 characters fill the field
  uint32_t length;    // as it is stored
  string copied;
  friend std::ostream& operator<<(std::ostream& out, const LoadedRow& row) {
    return out << row.name;
  }
};

class LoadedFrameName : public FrameName, public testing::WithParamInterface<LoadedRow> {};

TEST_P(LoadedFrameName, IsCopiedByItsLength) {
  gstFrame.ulMaxOnuNum = 0x41414141;  // stands behind the name
  test::StoreName(GetParam().frame_name, gstFrame.acName, gstFrame.ulNameLen);
  gstFrame.ulNameLen = GetParam().length;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    string buffer = Buffer("");
    EXPECT_EQ(ddGetFrameName(buffer.data()), 0);
    EXPECT_EQ(buffer, Buffer(GetParam().copied));
    EXPECT_EQ(console_.Text(), "");
  }
  EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
}

const LoadedRow kLoaded[] = {
    {"NotLoaded", "", 0, ""},
    {"Empty", "", 1, Terminated("")},
    {"Short", "KT2200-A", 9, Terminated("KT2200-A")},
    {"LengthOfAPart", "KT2200-A", 3, "KT2"},
    {"LengthOfMore", "KT", 5, string("KT\0\0\0", 5)},
    {"Longest", string(59, 'k'), 60, Terminated(string(59, 'k'))},
    {"LengthBeyondTheField", string(60, 'k'), 61, string(60, 'k')},
    {"LargestLength", string(60, 'k'), 0xffffffff, string(60, 'k')},
};
INSTANTIATE_TEST_SUITE_P(Frame, LoadedFrameName, testing::ValuesIn(kLoaded),
                         testing::PrintToStringParamName());

TEST_F(FrameName, LoadedIntoNoBuffer) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddGetFrameName(nullptr), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? "\r\nddGetFrameName err! pcName = 0x0" : "");
  }
}

}  // namespace
