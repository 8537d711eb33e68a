// Dumps of bytes on the console.
#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/tables.h"
#include "support/text.h"
#include "sys_context/cli.h"

namespace {

using std::string;

// The low 32 bits of an address, with all eight digits.
string Address(const void* pointer) {
  char text[sizeof "0xffffffff"];
  std::snprintf(text, sizeof text, "0x%08x",
                static_cast<unsigned>(reinterpret_cast<uintptr_t>(pointer) & 0xffffffff));
  return text;
}

// Bytes, and what is printed of them, with {0}, {8}, {16} for the addresses of the lines.
struct DumpRow {
  const char* name;
  string bytes;
  string dump;
  friend std::ostream& operator<<(std::ostream& out, const DumpRow& row) { return out << row.name; }
};

const DumpRow kDumps[] = {
    {"None", "", "\r\nBufLen = 0\r\n\r\n"},
    {"One", "A",
     "\r\nBufLen = 1\r\n"
     "{0}: 41                      | A \r\n"
     "\r\n"},
    {"AllButOneOfALine", "ABCDEFG",
     "\r\nBufLen = 7\r\n"
     "{0}: 41 42 43 44 45 46 47    | A B C D E F G \r\n"
     "\r\n"},
    {"OneLine", "ABCDEFGH",
     "\r\nBufLen = 8\r\n"
     "{0}: 41 42 43 44 45 46 47 48 | A B C D E F G H \r\n"
     "\r\n"},
    {"OneLineAndOne", "ABCDEFGHI",
     "\r\nBufLen = 9\r\n"
     "{0}: 41 42 43 44 45 46 47 48 | A B C D E F G H \r\n"
     "{8}: 49                      | I \r\n"
     "\r\n"},
    {"OneLineAndTwo", "ABCDEFGHIJ",
     "\r\nBufLen = 10\r\n"
     "{0}: 41 42 43 44 45 46 47 48 | A B C D E F G H \r\n"
     "{8}: 49 4a                   | I J \r\n"
     "\r\n"},
    {"TwoLines", "ABCDEFGHIJKLMNOP",
     "\r\nBufLen = 16\r\n"
     "{0}: 41 42 43 44 45 46 47 48 | A B C D E F G H \r\n"
     "{8}: 49 4a 4b 4c 4d 4e 4f 50 | I J K L M N O P \r\n"
     "\r\n"},
    {"TwoLinesAndOne", "ABCDEFGHIJKLMNOPq",
     "\r\nBufLen = 17\r\n"
     "{0}: 41 42 43 44 45 46 47 48 | A B C D E F G H \r\n"
     "{8}: 49 4a 4b 4c 4d 4e 4f 50 | I J K L M N O P \r\n"
     "{16}: 71                      | q \r\n"
     "\r\n"},
    {"FirstAndLastOfTheirKind", string("\0\x1f\x20\x21\x7e\x7f\x80\xff", 8),
     "\r\nBufLen = 8\r\n"
     "{0}: 00 1f 20 21 7e 7f 80 ff | . . . ! ~ \x7f \x80 \xff \r\n"
     "\r\n"},
    {"InAPartialLine", string("%sABCDEF\r\n\0\x20!\x80", 14),
     "\r\nBufLen = 14\r\n"
     "{0}: 25 73 41 42 43 44 45 46 | % s A B C D E F \r\n"
     "{8}: 0d 0a 00 20 21 80       | . . . . ! \x80 \r\n"
     "\r\n"},
};

class HexDump : public test::LibraryTest {
 protected:
  // Dumps bytes, with the debug switch off and on, and expects the text, which ends in
  // two characters.
  void ExpectDump(const void* bytes, int32_t length, string text) {
    const char* const first = static_cast<const char*>(bytes);
    text = test::With(text, "{0}", Address(first));
    text = test::With(text, "{8}", Address(first + 8));
    text = test::With(text, "{16}", Address(first + 16));
    for (const int32_t debug : {0, 1}) {
      SCOPED_TRACE(testing::Message() << "debug " << debug);
      ddDebugPrint = debug;
      EXPECT_EQ(ddPrintBuf(static_cast<const uint8_t*>(bytes), length), 2);
      EXPECT_EQ(console_.Text(), text);
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
    EXPECT_EQ(test::FakePlatform::Get().terminal, "");
  }

  test::Console console_;
};

class HexDumpOf : public HexDump, public testing::WithParamInterface<DumpRow> {};

// Lines begin where the bytes do, wherever that is in memory.
TEST_P(HexDumpOf, HasEightBytesALine) {
  const DumpRow& row = GetParam();
  for (size_t place = 0; place < 8; place += 3) {
    std::vector<char> memory(place + 1);
    memory.pop_back();  // not null, also without bytes
    memory.insert(memory.end(), row.bytes.begin(), row.bytes.end());
    ExpectDump(memory.data() + place, static_cast<int32_t>(row.bytes.size()), row.dump);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, HexDumpOf, testing::ValuesIn(kDumps), testing::PrintToStringParamName());

TEST_F(HexDump, HasNoLineForANegativeLength) {
  const struct {
    int32_t length;
    const char* dump;
  } rows[] = {
      {-1, "\r\nBufLen = -1\r\n\r\n"},
      {-8, "\r\nBufLen = -8\r\n\r\n"},
      {std::numeric_limits<int32_t>::min(), "\r\nBufLen = -2147483648\r\n\r\n"},
  };
  const uint8_t byte = 'A';
  for (const auto& row : rows) {
    ExpectDump(&byte, row.length, row.dump);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

TEST_F(HexDump, NeedsABuffer) {
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    for (const int32_t length : {-1, 0, 1, 16}) {
      EXPECT_EQ(ddPrintBuf(nullptr, length), 29);
      EXPECT_EQ(console_.Text(), "\r\nErr!!! pBuf == NULL,return!");
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

// Addresses of the process, of which nothing may be used until that is granted.
class Mapping {
 public:
  Mapping(uintptr_t wish, size_t size)
      : memory_(mmap(reinterpret_cast<void*>(wish), size, PROT_NONE,
                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)),
        size_(size) {
    if (memory_ == MAP_FAILED) {
      throw std::runtime_error("no memory is mapped");
    }
  }
  Mapping(const Mapping&) = delete;
  Mapping& operator=(const Mapping&) = delete;
  ~Mapping() { munmap(memory_, size_); }

  char* data() const { return static_cast<char*>(memory_); }

 private:
  void* memory_;
  size_t size_;
};

TEST_F(HexDump, ShowsAllDigitsOfAnAddress) {
  constexpr size_t kSize = 4096;
  constexpr uint32_t kPlace = 0x01230000;
  std::optional<Mapping> mapping;
  char* memory = nullptr;
  if constexpr (sizeof(void*) > sizeof kPlace) {
    // Of all the pages of 4 GiB, wherever they are, one has these low bits.
    mapping.emplace(0, static_cast<size_t>(uint64_t{1} << 32));
    memory = mapping->data();
    memory += kPlace - static_cast<uint32_t>(reinterpret_cast<uintptr_t>(memory));
    ASSERT_EQ(Address(memory), "0x01230000");
  } else {
    // A wish is granted where nothing is, and not all of these are taken.
    for (uintptr_t wish = kPlace; wish < 0x10000000; wish += 0x01000000) {
      memory = mapping.emplace(wish, kSize).data();
      if (Address(memory).starts_with("0x0")) {
        break;
      }
    }
    ASSERT_TRUE(Address(memory).starts_with("0x0")) << Address(memory);
  }
  ASSERT_EQ(mprotect(memory, kSize, PROT_READ | PROT_WRITE), 0);
  std::fill_n(memory, 9, 'k');
  ExpectDump(memory, 9,
             "\r\nBufLen = 9\r\n"
             "{0}: 6b 6b 6b 6b 6b 6b 6b 6b | k k k k k k k k \r\n"
             "{8}: 6b                      | k \r\n"
             "\r\n");
}

}  // namespace
