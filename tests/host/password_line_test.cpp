// Lines that may hold a password: no history keeps them.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "host/records.h"
#include "host/session.h"
#include "host/tree.h"

namespace sysctx {
namespace {

struct Row {
  const char* name;
  const char* line;
  bool may_hold;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class LineWithPassword : public testing::TestWithParam<Row> {
 protected:
  static void SetUpTestSuite() { InstallRecords(); }
};

TEST_P(LineWithPassword, IsTold) {
  EXPECT_EQ(MayHoldPassword(Session().cli(), GetParam().line), GetParam().may_hold);
}

TEST_P(LineWithPassword, IsNotRemembered) {
  Session session;
  session.AddHistory("show context version");
  session.AddHistory(GetParam().line);
  session.AddHistory("show failure");
  EXPECT_STREQ(session.cli()->history[0], "show context version");
  EXPECT_STREQ(session.cli()->history[1], GetParam().may_hold ? "show failure" : GetParam().line);
}

constexpr Row kRows[] = {
    {"Upload", "upload ftp context 1.2.3.4 me s3cret file", true},
    {"InTheMiddle", "upload ftp context 1.2.3.4 me s3cret", true},
    {"Abbreviated", "up f c 1.2.3.4 me s3cret file", true},
    {"OneLetter", "u f c 1.2.3.4 me s3cret file", true},
    {"OtherCase", "UpLoad FTP context 1.2.3.4 me s3cret file", true},
    {"BlanksInFront", " \t upload ftp context 1.2.3.4 me s3cret file", true},
    {"Quoted", "\"upload\" ftp context 1.2.3.4 me s3cret file", true},
    {"Filtered", "upload ftp context 1.2.3.4 me s3cret file | include x", true},
    {"WrongSecondWord", "upload fpt context 1.2.3.4 me s3cret file", true},
    {"WordsJoined", "uploadftp context 1.2.3.4 me s3cret file", true},
    {"Misspelt", "uplaod ftp context 1.2.3.4 me s3cret file", true},
    {"OtherWordUnknown", "hide", true},
    {"BehindABar", "| upload ftp context 1.2.3.4 me s3cret file", true},
    {"Show", "show context version", false},
    {"ShowAbbreviated", "sh con ver", false},
    {"ShowMisspeltBehind", "show contxet version", false},
    {"ShowFiltered", "show context version | include KT33", false},
    {"UnknownFilter", "show long | sort", false},
    {"Ambiguous", "h", false},
    {"Builtin", "history", false},
};

INSTANTIATE_TEST_SUITE_P(All, LineWithPassword, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace sysctx
