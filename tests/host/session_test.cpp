// The shell as it is used on the local terminal and by "run": how records
// become commands, and what a line does.
#include "host/session.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ostream>

#include "host/records.h"
#include "host/registry.h"
#include "host/tree.h"

namespace sysctx {

Call last_call;

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

int32_t Record(CommandRecord* self, void*, int32_t argc, char** argv) {
  last_call = {self, std::vector<std::string>(argv, argv + argc), argv[argc] == nullptr};
  return 0;
}

int32_t PrintVersions(CommandRecord* self, void* vty, int32_t argc, char** argv) {
  vty_out(vty, "\r\nVersion:");
  vty_out(vty, "\r\n%2d. ver", 0);  // a line may come in pieces
  vty_out(vty, "sion = %s", "KT3300V4.0");
  vty_out(vty, "\r\n%2d. version = %s", 1, "KT2200V4.0");
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n");
  return Record(self, vty, argc, argv);
}

int32_t Fail(CommandRecord* self, void* vty, int32_t argc, char** argv) {
  vty_out(vty, "failed\r\n");
  Record(self, vty, argc, argv);
  return -1;
}

int32_t PrintLong(CommandRecord*, void* vty, int32_t, char**) {
  const std::string text(99999, 'x');
  return vty_out(vty, "%s.", text.c_str()) == 100000 ? 0 : -1;
}

constexpr const char* kVersionOutput =
    "\r\nVersion:\r\n 0. version = KT3300V4.0\r\n 1. version = KT2200V4.0\r\n\r\n";

}  // namespace

CommandRecord version_record = {"show context version",
                                PrintVersions,
                                "show info.\ncontext info.\nversion info.\n",
                                "version_record",
                                {}};
CommandRecord index_record = {
    "show context detail index <indexno>",
    Record,
    "show info.\ncontext info.\ndetail info.\nindex info.\nplease input index no.\n",
    "index_record",
    {}};
CommandRecord upload_record = {
    "upload ftp context <A.B.C.D> <username> <password> <filename> ",
    Record,
    "Upload file.\nUse ftp.\nContext file.\nThe address.\nThe user.\nThe password.\nThe file.\n",
    "upload_record",
    {}};
CommandRecord failing_record = {"show failure", Fail, "show info.\nfails.\n", "failing_record", {}};
CommandRecord long_record = {"show long", PrintLong, nullptr, "long_record", {}};

void InstallRecords() {
  for (CommandRecord* record : {&version_record, &index_record, &upload_record, &failing_record}) {
    EXPECT_EQ(install_element(10, record), 0);
  }
  EXPECT_EQ(vk_install_element(10, &long_record, 3, 0), 0);
}

namespace {

class Shell : public testing::Test {
 protected:
  static void SetUpTestSuite() { InstallRecords(); }

  Shell() { last_call = {}; }

  // Runs a line; what it writes goes to output_.
  Outcome Run(const std::string& line) {
    char* text = nullptr;
    size_t size = 0;
    FILE* out = open_memstream(&text, &size);
    const Outcome outcome = session_.Run(line, out);
    fclose(out);
    output_.assign(text, size);
    free(text);
    return outcome;
  }

  Session session_;
  std::string output_;
};

TEST_F(Shell, OutputIsWhatTheHandlerWrote) {
  const Outcome outcome = Run("show context version");
  EXPECT_TRUE(outcome.ran);
  EXPECT_EQ(outcome.result, 0);
  EXPECT_EQ(outcome.message, "");
  EXPECT_EQ(output_, kVersionOutput);
  EXPECT_EQ(last_call.record, &version_record);
  EXPECT_THAT(last_call.arguments, IsEmpty());
}

TEST_F(Shell, AnyLengthIsWritten) {
  EXPECT_EQ(Run("show long").result, 0);
  EXPECT_EQ(output_, std::string(99999, 'x') + ".");
}

TEST_F(Shell, WordsMayBeAbbreviatedAndInAnyCase) {
  EXPECT_TRUE(Run("sh con ver").ran);
  EXPECT_EQ(output_, kVersionOutput);
  EXPECT_TRUE(Run("  SHOW   Context  v ").ran);
  EXPECT_EQ(output_, kVersionOutput);
}

TEST_F(Shell, ResultIsTheHandlers) {
  const Outcome outcome = Run("show failure");
  EXPECT_TRUE(outcome.ran);
  EXPECT_EQ(outcome.result, -1);
  EXPECT_FALSE(outcome.quit);
  EXPECT_EQ(output_, "failed\r\n");
}

TEST_F(Shell, HandlerGetsItsArgumentsOnly) {
  EXPECT_TRUE(Run("show context detail index 17").ran);
  EXPECT_EQ(last_call.record, &index_record);
  EXPECT_THAT(last_call.arguments, ElementsAre("17"));
  EXPECT_TRUE(last_call.is_terminated);
}

TEST_F(Shell, QuotedArgumentIsOne) {
  EXPECT_TRUE(Run("upload ftp context 1.2.3.4 me 'pass | word' file").ran);
  EXPECT_THAT(last_call.arguments, ElementsAre("1.2.3.4", "me", "pass | word", "file"));
}

// Handlers judge the number of their arguments, all but the first.
TEST_F(Shell, TooFewAndTooManyArgumentsReachTheHandler) {
  EXPECT_TRUE(Run("upload ftp context 1.2.3.4").ran);
  EXPECT_THAT(last_call.arguments, ElementsAre("1.2.3.4"));
  EXPECT_TRUE(Run("upload ftp context 1.2.3.4 me").ran);
  EXPECT_THAT(last_call.arguments, ElementsAre("1.2.3.4", "me"));
  EXPECT_TRUE(Run("upload ftp context 1.2.3.4 me pass file more words").ran);
  EXPECT_THAT(last_call.arguments, ElementsAre("1.2.3.4", "me", "pass", "file", "more", "words"));
  EXPECT_TRUE(Run("show context detail index 1 2").ran);
  EXPECT_THAT(last_call.arguments, ElementsAre("1", "2"));
}

TEST_F(Shell, FirstArgumentIsAskedFor) {
  // Twice, since the first run relaxes what libcli asks for.
  for (const char* before : {"show context version", "upload ftp context 1.2.3.4 me"}) {
    Run(before);
    last_call = {};
    const Outcome outcome = Run("upload ftp context");
    EXPECT_FALSE(outcome.ran);
    EXPECT_EQ(last_call.record, nullptr);
    EXPECT_EQ(outcome.message,
              "Incomplete command, missing required argument 'A.B.C.D' for command 'context'\n");
  }
}

struct Refused {
  const char* name;
  const char* line;
  const char* message;
  friend std::ostream& operator<<(std::ostream& out, const Refused& row) { return out << row.name; }
};

class ShellRefusal : public Shell, public testing::WithParamInterface<Refused> {};

TEST_P(ShellRefusal, RunsNothingAndSaysWhy) {
  const Outcome outcome = Run(GetParam().line);
  EXPECT_FALSE(outcome.ran);
  EXPECT_EQ(outcome.message, GetParam().message);
  EXPECT_EQ(output_, "");
  EXPECT_EQ(last_call.record, nullptr);
}

constexpr Refused kRefusedLines[] = {
    {"Unknown", "hide", "Invalid command \"hide\"\n"},
    {"UnknownSecondWord", "show nothing", "Invalid command \"show nothing\"\n"},
    {"Ambiguous", "h", "Ambiguous command \"h\": help history\n"},
    {"AmbiguousFilter", "show long | e x", "Ambiguous command \"e\": exclude egrep\n"},
    {"Incomplete", "show context", "Incomplete command\n"},
    {"ArgumentForNone", "show context version 1",
     "Invalid argument \"1\": the command takes none\n"},
    {"UnknownFilter", "show long | sort", "Invalid command \"sort\"\n"},
    {"EmptyFilter", "show long |", "Empty command given\n"},
    {"FilterWithoutPattern", "show long | include",
     "Incomplete command, missing required argument 'search_pattern' for command 'include'\n"},
};

INSTANTIATE_TEST_SUITE_P(All, ShellRefusal, testing::ValuesIn(kRefusedLines),
                         testing::PrintToStringParamName());

TEST_F(Shell, RemovedCommandsAreUnknown) {
  for (const char* line : {"enable", "disable", "configure terminal", "logout"}) {
    EXPECT_FALSE(Run(line).ran) << line;
  }
}

struct Filtered {
  const char* name;
  const char* line;
  const char* output;
  friend std::ostream& operator<<(std::ostream& out, const Filtered& row) {
    return out << row.name;
  }
};

class ShellFilter : public Shell, public testing::WithParamInterface<Filtered> {};

TEST_P(ShellFilter, WorksOnLines) {
  EXPECT_TRUE(Run(GetParam().line).ran);
  EXPECT_EQ(output_, GetParam().output);
}

constexpr Filtered kFilteredLines[] = {
    {"Include", "show context version | include KT33", " 0. version = KT3300V4.0\r\n"},
    {"IncludeAbbreviated", "sh con ver | inc KT33", " 0. version = KT3300V4.0\r\n"},
    {"IncludeNothing", "show context version | include KT99", ""},
    {"IncludeTwice", "show context version | include KT | include 22",
     " 1. version = KT2200V4.0\r\n"},
    {"Exclude", "show context version | exclude KT33",
     "\r\nVersion:\r\n 1. version = KT2200V4.0\r\n\r\n"},
    {"ExcludeAbbreviated", "show context version | ex KT33",
     "\r\nVersion:\r\n 1. version = KT2200V4.0\r\n\r\n"},
    {"Begin", "show context version | begin 1.", " 1. version = KT2200V4.0\r\n\r\n"},
    {"Between", "show context version | between Version 0.",
     "Version:\r\n 0. version = KT3300V4.0\r\n"},
    {"Grep", "show context version | grep ^.1", " 1. version = KT2200V4.0\r\n"},
    {"GrepIgnoringCase", "show context version | grep -i kt22", " 1. version = KT2200V4.0\r\n"},
    {"Egrep", "show context version | egrep \"KT(22|44)\"", " 1. version = KT2200V4.0\r\n"},
    {"Count", "show context version | count", "3\r\n"},
    {"UnfinishedLastLine", "show long | count", "1\r\n"},
};

INSTANTIATE_TEST_SUITE_P(All, ShellFilter, testing::ValuesIn(kFilteredLines),
                         testing::PrintToStringParamName());

TEST_F(Shell, FiltersEndWithTheirCommand) {
  Run("show context version | include KT33");
  Run("show context version");
  EXPECT_EQ(output_, kVersionOutput);
}

TEST_F(Shell, BadPatternRunsNothing) {
  EXPECT_FALSE(Run("show context version | grep [").ran);
  EXPECT_EQ(output_, "Invalid pattern \"[\"\r\n");
}

TEST_F(Shell, QuitAndExitLeave) {
  for (const char* line : {"quit", "exit", "q"}) {
    const Outcome outcome = Run(line);
    EXPECT_TRUE(outcome.ran && outcome.quit) << line;
    EXPECT_EQ(outcome.result, 0);
  }
}

TEST_F(Shell, HelpListsEveryCommand) {
  EXPECT_TRUE(Run("help").ran);
  EXPECT_EQ(output_,
            "Commands available:\r\n"
            "  show context version                                           version info.\r\n"
            "  show context detail index <indexno>                            index info.\r\n"
            "  upload ftp context <A.B.C.D> <username> <password> <filename>  Context file.\r\n"
            "  show failure                                                   fails.\r\n"
            "  show long                                                      \r\n"
            "  help                                                           Show available "
            "commands\r\n"
            "  history                                                        Show a list of "
            "previously run commands\r\n"
            "  quit                                                           Leave the shell\r\n"
            "  exit                                                           Leave the shell\r\n");
}

TEST_F(Shell, HistoryKeepsTheLast256Lines) {
  for (int i = 0; i < 300; ++i) {
    session_.AddHistory("show line " + std::to_string(i));
  }
  EXPECT_TRUE(Run("history").ran);
  EXPECT_THAT(output_, HasSubstr("\r\n  0. show line 44\r\n"));
  EXPECT_THAT(output_, HasSubstr("\r\n255. show line 299\r\n"));
}

struct Question {
  const char* name;
  const char* line;
  const char* answer;
  friend std::ostream& operator<<(std::ostream& out, const Question& row) {
    return out << row.name;
  }
};

class ShellQuestion : public Shell, public testing::WithParamInterface<Question> {};

TEST_P(ShellQuestion, ListsWhatMayComeNext) {
  EXPECT_EQ(DescribeChoices(ChoicesAfter(session_.cli(), GetParam().line)), GetParam().answer);
}

constexpr Question kQuestions[] = {
    {"Empty", "",
     "  show                 show info.\n  upload               Upload file.\n"
     "  help                 Show available commands\n"
     "  history              Show a list of previously run commands\n"
     "  quit                 Leave the shell\n  exit                 Leave the shell\n"},
    {"MiddleOfAWord", "sh", "  show                 show info.\n"},
    {"TwoFit", "h",
     "  help                 Show available commands\n"
     "  history              Show a list of previously run commands\n"},
    {"AfterABlank", "show ",
     "  context              context info.\n  failure              fails.\n"
     "  long                 \n"},
    {"AfterAnAbbreviation", "sh con ",
     "  version              version info.\n  detail               detail info.\n"},
    {"WholeCommand", "show context version ", "  <cr>\n"},
    {"WholeCommandWithoutBlank", "show context version", "  version              version info.\n"},
    {"BehindAWholeCommand", "show context version x ", ""},
    {"FirstArgument", "upload ftp context ", "  <A.B.C.D>            The address.\n"},
    {"SecondArgument", "upload ftp context 1.2.3.4 ", "  <username>           The user.\n  <cr>\n"},
    {"MiddleOfThirdArgument", "upload ftp context 1.2.3.4 me pa",
     "  <password>           The password.\n"},
    {"LastArgument", "upload ftp context 1.2.3.4 me pass ",
     "  <filename>           The file.\n  <cr>\n"},
    {"BehindTheArguments", "upload ftp context 1.2.3.4 me pass file ", "  <cr>\n"},
    {"Unknown", "hide ", ""},
    {"AmbiguousBefore", "h x", ""},
    {"Filters", "show long | ",
     "  begin                Begin with lines that match\n"
     "  between              Between lines that match\n  count                Count of lines\n"
     "  exclude              Exclude lines that match\n"
     "  include              Include lines that match\n"
     "  grep                 Include lines that match regex (options: -v, -i, -e)\n"
     "  egrep                Include lines that match extended regex\n"},
    {"FilterArgument", "show long | include ", "  <search_pattern>     Search pattern\n"},
};

INSTANTIATE_TEST_SUITE_P(All, ShellQuestion, testing::ValuesIn(kQuestions),
                         testing::PrintToStringParamName());

TEST_F(Shell, QuestionInALineIsAnswered) {
  EXPECT_TRUE(Run("sh con ?").ran);
  EXPECT_EQ(output_, "  version              version info.\n  detail               detail info.\n");
  EXPECT_EQ(last_call.record, nullptr);
  EXPECT_FALSE(Run("hide ?").ran);
}

TEST(Registry, RecordsWithoutUseAreRefused) {
  const auto nothing = [](CommandRecord*, void*, int32_t, char**) -> int32_t { return 0; };
  CommandRecord no_text = {nullptr, nothing, "", "r", {}};
  CommandRecord no_handler = {"show x", nullptr, "", "r", {}};
  CommandRecord no_words = {"  ", nothing, "", "r", {}};
  CommandRecord argument_first = {"<x> show", nothing, "", "r", {}};
  CommandRecord word_behind_argument = {"show <x> detail", nothing, "", "r", {}};
  const size_t before = InstalledCommands().size();
  for (CommandRecord* record :
       {&no_text, &no_handler, &no_words, &argument_first, &word_behind_argument}) {
    EXPECT_EQ(install_element(10, record), -1);
  }
  EXPECT_EQ(install_element(10, nullptr), -1);
  EXPECT_EQ(InstalledCommands().size(), before);
}

TEST(Registry, RecordInstalledTwiceIsOneCommand) {
  InstallRecords();
  const size_t before = InstalledCommands().size();
  InstallRecords();
  EXPECT_EQ(InstalledCommands().size(), before);
}

}  // namespace
}  // namespace sysctx
