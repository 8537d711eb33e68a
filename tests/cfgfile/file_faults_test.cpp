// Files that cannot be opened, sought or read; and what a lookup costs in calls
// of the C library.
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <ostream>
#include <string>

#include "cfgfile/plain_reader.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "sys_context/cfgfile.h"

namespace {

using test::FaultPlan;

constexpr int32_t kUnwritten = -77;

// What one lookup of "k" in "A" leaves behind.
struct Traces {
  int32_t code = kUnwritten;
  std::string value = "before";
  int32_t offset = kUnwritten;
  int32_t section_line_no = kUnwritten;
  int32_t key_line_no = kUnwritten;
  int32_t key_lines = kUnwritten;

  bool operator==(const Traces&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Traces& traces) {
  return stream << "code " << traces.code << ", value " << traces.value << ", offset "
                << traces.offset << ", section line " << traces.section_line_no << ", key line "
                << traces.key_line_no << ", lines " << traces.key_lines;
}

Traces AskFrom(const char* path, int32_t offset_in) {
  Traces traces;
  CFG_section_line_no = CFG_key_line_no = CFG_key_lines = kUnwritten;
  char value[CFG_VALUE_SIZE] = "before";
  traces.code = CFG_get_key_offset(path, "A", "k", value, offset_in, &traces.offset);
  traces.value = value;
  traces.section_line_no = CFG_section_line_no;
  traces.key_line_no = CFG_key_line_no;
  traces.key_lines = CFG_key_lines;
  return traces;
}

Traces AskFromTop(const char* path) {
  Traces traces;
  CFG_section_line_no = CFG_key_line_no = CFG_key_lines = kUnwritten;
  char value[CFG_VALUE_SIZE] = "before";
  traces.code = CFG_get_key(path, "A", "k", value);
  traces.value = value;
  traces.section_line_no = CFG_section_line_no;
  traces.key_line_no = CFG_key_line_no;
  traces.key_lines = CFG_key_lines;
  return traces;
}

constexpr Traces NoFile() {
  return {.code = -10, .section_line_no = 0, .key_line_no = 0, .key_lines = 0};
}

constexpr Traces NotSought() {
  return {.code = -12, .section_line_no = 0, .key_line_no = 0, .key_lines = 0};
}

constexpr char kFile[] = "x\n[A]\nk=1\n";

TEST(OpenFailure, NoSuchFile) {
  test::Faults faults;
  EXPECT_EQ(AskFromTop("/tmp/sys_context_no_such_file"), NoFile());
  EXPECT_EQ(AskFrom("/tmp/sys_context_no_such_file", 2), NoFile());
  EXPECT_EQ(AskFrom("", 0), NoFile());
  EXPECT_EQ(faults.closes, 0);
  EXPECT_EQ(faults.reads.count(), 0);
}

TEST(OpenFailure, OfAFileThatIsThere) {
  const test::DefinitionFile file(kFile);
  test::Faults faults;
  faults.opens.FailFrom(1, 2);
  EXPECT_EQ(AskFromTop(file.path()), NoFile());
  EXPECT_EQ(AskFrom(file.path(), 0), NoFile());
  EXPECT_EQ(AskFrom(file.path(), 0).code, 0) << "nothing is remembered";
}

TEST(OpenFailure, WinsOverThePosition) {
  EXPECT_EQ(AskFrom("/tmp/sys_context_no_such_file", -1), NoFile());
}

TEST(SeekFailure, ClosesTheFile) {
  const test::DefinitionFile file(kFile);
  test::Faults faults;
  faults.seeks.FailFrom(1, 1);
  EXPECT_EQ(AskFrom(file.path(), 2), NotSought());
  EXPECT_EQ(faults.opens.count(), 1);
  EXPECT_EQ(faults.closes, 1);
}

TEST(SeekFailure, NegativePosition) {
  const test::DefinitionFile file(kFile);
  for (const int32_t position : {-1, -4096, std::numeric_limits<int32_t>::min()}) {
    SCOPED_TRACE(position);
    test::Faults faults;
    EXPECT_EQ(AskFrom(file.path(), position), NotSought());
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
  }
}

TEST(ReadFailure, FolderInsteadOfFile) {
  test::Faults faults;
  EXPECT_EQ(AskFromTop("/tmp"),
            (Traces{.code = -12, .section_line_no = 0, .key_line_no = 0, .key_lines = 0}));
  EXPECT_EQ(
      AskFrom("/tmp", 0),
      (Traces{.code = -12, .offset = 0, .section_line_no = 0, .key_line_no = 0, .key_lines = 0}));
  EXPECT_EQ(faults.closes, faults.opens.count());
}

// Which read fails, in files made of lines of 16 bytes, so that a block ends
// with a line. The first block has 4096 bytes, 256 lines; further ones 8192.
struct ReadRow {
  std::string name;
  std::string file;
  int failing_read;
  Traces expected;
};

std::ostream& operator<<(std::ostream& stream, const ReadRow& row) {
  return stream << row.name;
}

std::string Lines(size_t amount, const std::string& line = "q = 0123456789a\n") {
  std::string bytes;
  for (size_t i = 0; i < amount; ++i) {
    bytes += line;
  }
  return bytes;
}

class ReadFailure : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadFailure, ClosesTheFile) {
  const test::DefinitionFile file(GetParam().file);
  for (const bool from_top : {false, true}) {
    SCOPED_TRACE(from_top ? "CFG_get_key" : "CFG_get_key_offset");
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, FaultPlan::kForEver);
    Traces expected = GetParam().expected;
    if (from_top) {
      expected.offset = kUnwritten;
    }
    EXPECT_EQ(from_top ? AskFromTop(file.path()) : AskFrom(file.path(), 0), expected);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
    EXPECT_GE(faults.reads.count(), GetParam().failing_read) << "the read was not reached";
  }
}

Traces ReadError(int32_t offset, int32_t section_line, int32_t key_line, int32_t key_lines) {
  return {.code = -12,
          .offset = offset,
          .section_line_no = section_line,
          .key_line_no = key_line,
          .key_lines = key_lines};
}

const std::string kHeader = "[A]            \n";  // 16 bytes

INSTANTIATE_TEST_SUITE_P(
    At, ReadFailure,
    testing::Values(
        ReadRow{"FirstRead", kHeader + "k=1\n", 1, ReadError(0, 0, 0, 0)},
        ReadRow{"SecondInSectionSearch", Lines(1000), 2, ReadError(4096, 0, 0, 0)},
        ReadRow{"SecondWithinALine", "x\n" + Lines(1000), 2, ReadError(4082, 0, 0, 0)},
        ReadRow{"SecondWithinAHeader", Lines(255) + "0123456789\n[Boar" + "d]\n[A]\nk=1\n", 2,
                ReadError(4091, 0, 0, 0)},
        ReadRow{"SecondBehindCarriageReturn", Lines(255) + "0123456789abcd\r" + "\r\n" + Lines(1),
                2, ReadError(4080, 0, 0, 0)},
        ReadRow{"ThirdInSectionSearch", Lines(1000), 3, ReadError(12288, 0, 0, 0)},
        ReadRow{"FourthInSectionSearch", Lines(2000), 4, ReadError(20480, 0, 0, 0)},
        ReadRow{"SecondInKeySearch", kHeader + Lines(1000), 2, ReadError(0, 1, 256, 1)},
        ReadRow{"SecondWithinAnEntry", kHeader + "x=1\n" + Lines(1000), 2, ReadError(0, 1, 256, 1)},
        ReadRow{"ThirdInKeySearch", Lines(1) + kHeader + Lines(1000), 3, ReadError(16, 2, 768, 1)},
        ReadRow{"BetweenHeaderAndKey", Lines(255) + kHeader + "k=1\n", 2,
                ReadError(4080, 256, 0, 0)},
        ReadRow{"InContinuation",
                kHeader + Lines(253) + "k = 12345678+  \n" + "+              \n" + "2\n", 2,
                ReadError(0, 1, 255, 2)},
        ReadRow{"AtFirstLineOfContinuation", kHeader + Lines(254) + "k = 12345678+  \n" + "2\n", 2,
                ReadError(0, 1, 256, 1)}),
    [](const auto& row) { return row.param.name; });

// A failure behind what is asked for is never met.
TEST(ReadFailureBehindTheKey, IsNotSeen) {
  const test::DefinitionFile file(kHeader + "k=1\n" + Lines(1000));
  test::Faults faults;
  faults.reads.FailFrom(2, FaultPlan::kForEver);
  EXPECT_EQ(AskFrom(file.path(), 0).code, 0);
  EXPECT_EQ(faults.reads.count(), 1);
}

// A medium that fails at one byte: what lies before it is read as ever.
TEST(UnreadableByte, IsToldWhereAPlainReaderMeetsIt) {
  const std::string files[] = {
      "x\r\n[B]\nj=1\n[A]\r\nj=2+\n 3\nk = 4\n[C]\n",
      ";c\n[A]\nk=+\n1+\n\n",
      "[B]\n" + std::string(520, 'x') + "\n[A]\nj=" + std::string(515, ' ') + "=\nk=1\n",
      "[Board\n",
      "x\f[A]\nName\n",
      Lines(254) + "[A]\nj=1\n;\n;;;;\nk=12\n" + Lines(1),
  };
  for (const std::string& file : files) {
    for (size_t byte = file.size() > 1000 ? 4000 : 0; byte < file.size(); ++byte) {
      SCOPED_TRACE(file + "\nunreadable from byte " + std::to_string(byte));
      test::Faults faults;
      faults.contents["memory"] = file;
      faults.unreadable_from = byte;
      const plain::Answer plain = plain::Lookup(file, "A", "k", 0, byte);
      const Traces expected = {.code = plain.code,
                               .value = plain.value.value_or("before"),
                               .offset = plain.offset.value_or(kUnwritten),
                               .section_line_no = plain.section_line_no,
                               .key_line_no = plain.key_line_no,
                               .key_lines = plain.key_lines};
      EXPECT_EQ(AskFrom("memory", 0), expected);
      EXPECT_EQ(faults.closes, 1);
    }
  }
}

// What a lookup may cost, in files of three sizes.
struct CostRow {
  std::string name;
  std::string file;
  int32_t code;
  int32_t offset_in = 0;
};

std::ostream& operator<<(std::ostream& stream, const CostRow& row) {
  return stream << row.name;
}

std::string Sections(size_t bytes) {
  std::string file;
  while (file.size() < bytes) {
    file += "[Board]\n" + Lines(20, "Name = a board with many ports\r\n") + "; a comment\n\n";
  }
  return file;
}

class Cost : public testing::TestWithParam<CostRow> {};

TEST_P(Cost, OfOneLookup) {
  const test::DefinitionFile file(GetParam().file);
  const size_t bytes = GetParam().file.size();
  const int most_reads = static_cast<int>(bytes / 4096) + 2;
  for (const bool from_top : {true, false}) {
    SCOPED_TRACE(from_top ? "CFG_get_key" : "CFG_get_key_offset");
    test::Faults faults;
    const Traces traces =
        from_top ? AskFromTop(file.path()) : AskFrom(file.path(), GetParam().offset_in);
    EXPECT_EQ(traces.code, GetParam().code);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
    EXPECT_LE(faults.seeks.count(), from_top ? 0 : 1);
    EXPECT_GE(faults.reads.count(), 1);
    EXPECT_LE(faults.reads.count(), most_reads);
    EXPECT_LE(faults.bytes_read, bytes);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.frees, 0);
  }
}

constexpr size_t k600KB = 600 * 1024;
constexpr size_t k1MB = 1024 * 1024;

INSTANTIATE_TEST_SUITE_P(
    Of, Cost,
    testing::Values(CostRow{"SmallHit", kFile, 0}, CostRow{"SmallNoSection", "[B]\nk=1\n", -1},
                    CostRow{"SmallNoKey", "[A]\nj=1\n", -2}, CostRow{"Empty", "", -1},
                    CostRow{"Malformed", "[Board\n", -14},
                    CostRow{"Long", "[A]\nk=+\n" + std::string(511, 'y'), -22},
                    CostRow{"LargeHitAtTheTop", "[A]\nk=1\n" + Sections(k600KB), 0},
                    CostRow{"LargeHitAtTheEnd", Sections(k600KB) + "[A]\nk=1\n", 0},
                    CostRow{"LargeHitFromTheMiddle", Sections(k600KB) + "[A]\nk=1\n", 0, 300'000},
                    CostRow{"LargeNoSection", Sections(k600KB), -1},
                    CostRow{"LargeOfLongLines", Lines(100, std::string(6000, 'x')), -1},
                    CostRow{"HugeSectionHitAtTheEnd", "[A]\n" + Lines(k1MB / 16) + "k=1\n", 0},
                    CostRow{"HugeSectionNoKey", "[A]\n" + Lines(k1MB / 16), -2},
                    CostRow{"BehindHugeSection", "[B]\n" + Lines(k1MB / 16) + "[A]\nk=1\n", 0},
                    CostRow{"HugeOfCarriageReturns", std::string(k1MB, '\r') + "\n[A]\nk=1\n", 0}),
    [](const auto& row) { return row.param.name; });

// Near the top, the size of the file does not matter.
TEST(CostOfTheFirstKey, IsOneRead) {
  const test::DefinitionFile file("[A]\nk=1\n" + Sections(k600KB));
  test::Faults faults;
  EXPECT_EQ(AskFromTop(file.path()).code, 0);
  EXPECT_EQ(faults.reads.count(), 1);
  EXPECT_LE(faults.bytes_read, 4096u);
}

}  // namespace
