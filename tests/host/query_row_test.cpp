// Rows made of functions of other signatures: what words they take, and what they
// are found to have written.
#include "host/query_row.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "sys_context/platform.h"

namespace sysctx {
namespace {

using testing::ElementsAre;
using testing::ThrowsMessage;

// ---- Inputs --------------------------------------------------------------------

std::vector<std::string> seen;

int32_t Look(uint8_t small, uint16_t middle, uint32_t large, int32_t sign, const char* text) {
  seen = {std::to_string(small), std::to_string(middle), std::to_string(large),
          std::to_string(sign), text};
  return 0;
}

const Query kLook = QUERY(Look, In("small"), In("middle"), In("large"), In("sign"), TextIn("text"));

TEST(Inputs, ReachTheFunctionAsTheyAre) {
  kLook.prepare({"255", "65535", "0xffffffff", "4294967295", "7 x"})();
  EXPECT_THAT(seen, ElementsAre("255", "65535", "4294967295", "-1", "7 x"));
  kLook.prepare({"0", "1", "2", "-2147483648", ""})();
  EXPECT_THAT(seen, ElementsAre("0", "1", "2", "-2147483648", ""));
}

TEST(Inputs, AreLimitedByTheirTypes) {
  const std::pair<Words, const char*> rows[] = {
      {{"256", "0", "0", "0", ""}, "bad small '256': a number from 0 to 255 is wanted"},
      {{"0", "65536", "0", "0", ""}, "bad middle '65536': a number from 0 to 65535 is wanted"},
      {{"0", "0", "4294967296", "0", ""},
       "bad large '4294967296': a number from 0 to 4294967295 is wanted"},
      {{"0", "0", "-1", "0", ""}, "bad large '-1': a number from 0 to 4294967295 is wanted"},
      {{"0", "0", "0", "4294967296", ""},
       "bad sign '4294967296': a number from -2147483648 to 4294967295 is wanted"},
      {{"0", "0", "0", "-2147483649", ""},
       "bad sign '-2147483649': a number from -2147483648 to 4294967295 is wanted"},
  };
  for (const auto& [words, message] : rows) {
    const auto prepare = [&, given = words] { kLook.prepare(given); };
    EXPECT_THAT(prepare, ThrowsMessage<BadArgument>(message));
  }
}

int32_t LookAtRecord(const SlotClassInformation* slots) {
  return slots == &gstFrame.stFanSlot ? 24 : -1;
}

TEST(Inputs, RecordsAreFoundByWord) {
  const Query query = QUERY(LookAtRecord, RecordIn("slots"));
  EXPECT_EQ(query.prepare({"FanSlot"})().value, 24);
  EXPECT_EQ(query.prepare({"CioSlot"})().value, -1);
  EXPECT_THROW(query.prepare({"Fan"})(), BadArgument);
  EXPECT_STREQ(query.parameters.at(0).hint, RecordWord<SlotClassInformation>::Hint());
}

// ---- Outputs -------------------------------------------------------------------

// Writes to some of its outputs, as its first argument has it.
enum Written : uint32_t { kNothing, kEverything, kFirstFilling, kSecondFilling };

int32_t Write(uint32_t what, uint8_t* small, uint16_t* middle, int32_t* sign, uint32_t* large) {
  if (what == kEverything) {
    *small = 7;
    *middle = 65535;
    *sign = -7;
    *large = 4294967295;
  } else if (what != kNothing) {
    const int byte = what == kFirstFilling ? kFillings[0] : kFillings[1];
    memset(small, byte, sizeof *small);
    memset(middle, byte, sizeof *middle);
    memset(sign, byte, sizeof *sign);
    memset(large, byte, sizeof *large);
  }
  return 0;
}

std::string Answered(const Query& query, const Words& words) {
  return DescribeAnswer(query.prepare(words)());
}

TEST(Outputs, NumbersAreShownOrUntouched) {
  const Query query =
      QUERY(Write, In("what"), Out("small"), Out("middle"), Out("sign"), Out("large"));
  const std::pair<Written, const char*> rows[] = {
      {kNothing,
       "code = 0\nsmall = (untouched)\nmiddle = (untouched)\nsign = (untouched)\n"
       "large = (untouched)\n"},
      {kEverything, "code = 0\nsmall = 7\nmiddle = 65535\nsign = -7\nlarge = 4294967295\n"},
      {kFirstFilling,
       "code = 0\nsmall = 165\nmiddle = 42405\nsign = -1515870811\nlarge = 2779096485\n"},
      {kSecondFilling,
       "code = 0\nsmall = 90\nmiddle = 23130\nsign = 1515870810\nlarge = 1515870810\n"},
  };
  for (const auto& [what, text] : rows) {
    EXPECT_EQ(Answered(query, {std::to_string(what)}), text);
  }
}

int32_t CountTo(uint16_t* numbers, uint32_t room, uint32_t* count) {
  for (uint32_t i = 0; i < room && i < kListRoom; ++i) {
    numbers[i] = static_cast<uint16_t>(i + 1);
  }
  if (room <= kListRoom) {
    *count = room;
  }
  return 0;
}

TEST(Outputs, ListsEndWithTheirCount) {
  const Query query = QUERY(CountTo, List("numbers"), In("room"), Out("count"));
  EXPECT_EQ(Answered(query, {"3"}), "code = 0\nnumbers = 1 2 3\ncount = 3\n");
  EXPECT_EQ(Answered(query, {"0"}), "code = 0\nnumbers =\ncount = 0\n");
  EXPECT_THAT(Answered(query, {"1280"}), testing::EndsWith(" 1279 1280\ncount = 1280\n"));
  EXPECT_THAT(Answered(query, {"1281"}), testing::EndsWith(" 1279 1280\ncount = (untouched)\n"));
}

int32_t Copy(const char* from, uint32_t size, char* to) {
  memcpy(to, from, size);
  return 0;
}

TEST(Outputs, TextsEndWithTheirTerminatorOrWhatWasWritten) {
  const Query query = QUERY(Copy, TextIn("from"), In("size"), TextOut("to"));
  const std::string longest(60, 'x');
  EXPECT_EQ(Answered(query, {"GPON", "5"}), "code = 0\nto = GPON\n");
  EXPECT_EQ(Answered(query, {"GPON", "2"}), "code = 0\nto = GP\n");
  EXPECT_EQ(Answered(query, {"", "1"}), "code = 0\nto =\n");
  EXPECT_EQ(Answered(query, {"GPON", "0"}), "code = 0\nto = (untouched)\n");
  EXPECT_EQ(Answered(query, {longest, "60"}), "code = 0\nto = " + longest + "\n");
}

PortMap map;

int32_t GiveMap(uint32_t what, PortMap** record) {
  if (what != kNothing) {
    *record = what == kEverything ? &map : nullptr;
  }
  return 0;
}

TEST(Outputs, RecordsAreDescribed) {
  const Query query = QUERY(GiveMap, In("what"), RecordOut("record"));
  EXPECT_EQ(Answered(query, {"0"}), "code = 0\nrecord = (untouched)\n");
  EXPECT_EQ(Answered(query, {"1"}), "code = 0\nrecord = , in no main board\n");
  EXPECT_EQ(Answered(query, {"2"}), "code = 0\nrecord = (null)\n");
}

uint32_t copies_made;

int32_t CopyPort(uint32_t what, OltPortInformation** copy) {
  if (what == kNothing) {
    return 0;
  }
  *copy = nullptr;
  if (what == kEverything) {
    *copy = static_cast<OltPortInformation*>(calloc(1, sizeof **copy));
    (*copy)->ulPortType = ++copies_made;
    memcpy((*copy)->acName, "GPON", 5);
  }
  return 0;
}

// A sanitizer tells of copies that are not released, or twice.
TEST(Outputs, CopiesAreDescribedAndReleased) {
  const Query query = QUERY(CopyPort, In("what"), CopyOut("copy"));
  EXPECT_EQ(Answered(query, {"0"}), "code = 0\ncopy = (untouched)\n");
  EXPECT_EQ(Answered(query, {"1"}), "code = 0\ncopy = GPON, type 1, splitting ratio 0\n");
  EXPECT_EQ(Answered(query, {"2"}), "code = 0\ncopy = (null)\n");
  EXPECT_EQ(copies_made, 2u);
}

// The types of a table; a number above their number is refused.
int32_t GiveAll(uint16_t* count, uint32_t* types) {
  if (*count > 3) {
    return -21;
  }
  *count = 2;
  types[0] = 8;
  types[1] = 9;
  types[2] = 10;
  return 0;
}

TEST(Outputs, MayBeInputs) {
  const Query query = QUERY(GiveAll, InOut("count"), List("types"));
  EXPECT_EQ(Answered(query, {"0"}), "code = 0\ncount = 2\ntypes = 8 9\n");
  EXPECT_EQ(Answered(query, {"3"}), "code = 0\ncount = 2\ntypes = 8 9\n");
  EXPECT_EQ(Answered(query, {"4"}), "code = -21\ncount = 4\ntypes = (untouched)\n");
  EXPECT_TRUE(query.parameters.at(0).is_input);
  EXPECT_THAT([&] { query.prepare({"65536"}); },
              ThrowsMessage<BadArgument>("bad count '65536': a number from 0 to 65535 is wanted"));
}

// Paths of a module; the last one is left alone.
int32_t GivePaths(uint16_t* count, OptModuleThreshold* paths) {
  if (*count < 3) {
    return -35;
  }
  *count = 3;
  paths[0] = {-800, -2800, 500, 150};
  paths[1] = {INT32_MAX, INT32_MIN, 0, -1};
  return 0;
}

TEST(Outputs, ListsOfRecordsAreDescribed) {
  const Query query = QUERY(GivePaths, InOut("count"), List("paths"));
  EXPECT_EQ(Answered(query, {"4"}),
            "code = 0\ncount = 3\n"
            "paths = inup -800, indn -2800, outup 500, outdn 150;"
            " inup 2147483647, indn -2147483648, outup 0, outdn -1; (untouched)\n");
  EXPECT_EQ(Answered(query, {"2"}), "code = -35\ncount = 2\npaths = (untouched)\n");
}

// ---- The whole -----------------------------------------------------------------

int32_t calls;

int32_t Speak() {
  ++calls;
  printf("\r\ncall %d", calls);
  return -calls;
}

TEST(Asking, GivesTheValueAndTheTextOfTheFirstCall) {
  calls = 0;
  Answer answer;
  EXPECT_EQ(CaptureConsole([&] { answer = QUERY(Speak).prepare({})(); }), "");
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(answer.value, -1);
  EXPECT_EQ(answer.console, "\r\ncall 1");
}

int32_t WriteLog() {
  return ulogPrintf(devmgrModuRegId, 6, "said");
}

TEST(Asking, LogsOnce) {
  testing::internal::CaptureStderr();
  QUERY(WriteLog).prepare({})();
  ulogPrintf(devmgrModuRegId, 6, "after");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "log devmgr level 6: said\nlog devmgr level 6: after\n");
}

TEST(Asking, SaysWhetherTheValueIsACode) {
  EXPECT_STREQ(QUERY(Speak).prepare({})().label, "code");
  EXPECT_STREQ(VALUE(Speak).prepare({})().label, "value");
}

TEST(Asking, MayBeRepeated) {
  const Query query = QUERY(CountTo, List("numbers"), In("room"), Out("count"));
  const Question question = query.prepare({"2"});
  EXPECT_EQ(DescribeAnswer(question()), "code = 0\nnumbers = 1 2\ncount = 2\n");
  EXPECT_EQ(DescribeAnswer(question()), "code = 0\nnumbers = 1 2\ncount = 2\n");
}

TEST(Row, TellsNameAndParameters) {
  const Query query = QUERY(CountTo, List("numbers"), In("room"), Out("count"));
  EXPECT_STREQ(query.name, "CountTo");
  std::vector<std::string> parameters;
  for (const Parameter& parameter : query.parameters) {
    parameters.push_back(std::string(parameter.is_input ? "in " : "out ") + parameter.name);
  }
  EXPECT_THAT(parameters, ElementsAre("out numbers", "in room", "out count"));
}

// Compiling is the test.
static_assert(Fits<In, uint32_t> && Fits<Out, uint8_t*> && Fits<List, uint16_t*>);
static_assert(!Fits<In, uint64_t> && !Fits<In, uint32_t*> && !Fits<In, const char*>);
static_assert(!Fits<Out, uint32_t> && !Fits<Out, const uint32_t*> && !Fits<Out, char*>);
static_assert(!Fits<List, const uint32_t*> && !Fits<List, char*>);
static_assert(!Fits<TextIn, char*> && !Fits<TextOut, const char*> && !Fits<TextOut, uint8_t*>);
static_assert(Fits<RecordIn, const PortMap*> && !Fits<RecordIn, PortMap*>);
static_assert(Fits<RecordOut, PortMap**> && !Fits<RecordOut, PortMap*>);
static_assert(Fits<CopyOut, OltPortInformation**> && !Fits<CopyOut, OltPortInformation*>);
static_assert(Fits<InOut, uint16_t*> && !Fits<InOut, const uint32_t*> && !Fits<InOut, uint32_t>);
static_assert(ListsAreCounted<>() && ListsAreCounted<List, In, Out>());
static_assert(ListsAreCounted<List, Out, In, List, Out>());
static_assert(!ListsAreCounted<List, In>() && !ListsAreCounted<Out, List>());
static_assert(!ListsAreCounted<List, Out, List, In>());
static_assert(ListsAreCounted<InOut, List>() && ListsAreCounted<InOut, In, List>());
static_assert(Fits<List, OptModuleThreshold*> && !Fits<List, const OptModuleThreshold*>);
static_assert(!Fits<List, OptModuleThreshold**> && !Fits<List, OptModuleThreshold>);
static_assert(!ListsAreCounted<List, InOut>() && !ListsAreCounted<In, List>());

}  // namespace
}  // namespace sysctx
