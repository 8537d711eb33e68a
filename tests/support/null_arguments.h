// Null arguments of the functions that read a section into a record.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/console.h"
#include "support/faults.h"
#include "support/text.h"
#include "sys_context/context.h"

namespace test {

// Expects that `read` refuses them with -2, whichever are missing, without opening
// or taking anything. It says `refusal`, in which {file}, {section} and {record} are
// pointers, whatever the debug switch says. That nothing was written to `record` is
// for the caller to see.
template <typename Record, typename Read>
void ExpectNullArgumentsRefused(Console& console, const std::string& refusal, Record* record,
                                Read read) {
  const char some_file[] = "/definitions.ini";
  const char some_section[] = "Sec";
  constexpr unsigned kAll = 7;
  for (const int32_t debug : {0, 1}) {
    for (unsigned given = 0; given < kAll; ++given) {
      const char* const file = (given & 1) != 0 ? some_file : nullptr;
      const char* const section = (given & 2) != 0 ? some_section : nullptr;
      Record* const into = (given & 4) != 0 ? record : nullptr;
      ddDebugPrint = debug;
      Faults faults;
      EXPECT_EQ(read(file, section, into), -2);
      EXPECT_EQ(faults.opens.count(), 0);
      EXPECT_EQ(faults.allocations.count(), 0);
      const std::string text = With(With(refusal, "{file}", Hex(file)), "{section}", Hex(section));
      EXPECT_EQ(console.Text(), With(text, "{record}", Hex(into))) << "given, as bits: " << given;
      if (testing::Test::HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

}  // namespace test
