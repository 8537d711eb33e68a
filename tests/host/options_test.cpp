// The command line: what it gives and what is refused.
#include "host/options.h"

#include <gmock/gmock.h>

#include <ostream>

namespace sysctx {
namespace {

using Arguments = std::vector<std::string>;

struct Line {
  const char* name;
  Arguments arguments;
  Action action;
  const char* root;
  const char* command;
  uint16_t port;
  friend std::ostream& operator<<(std::ostream& out, const Line& row) { return out << row.name; }
};

class OptionLine : public testing::TestWithParam<Line> {};

TEST_P(OptionLine, IsUnderstood) {
  const Options options = ParseOptions(GetParam().arguments);
  EXPECT_EQ(options.action, GetParam().action);
  EXPECT_EQ(options.root, GetParam().root);
  EXPECT_EQ(options.command, GetParam().command);
  EXPECT_EQ(options.port, GetParam().port);
}

const Line kLines[] = {
    {"Nothing", {}, Action::kTerminal, "", "", 0},
    {"Root", {"--root", "dir"}, Action::kTerminal, "dir", "", 0},
    {"RootAttached", {"--root=dir"}, Action::kTerminal, "dir", "", 0},
    {"RootLikeAnOption", {"--root", "--odd"}, Action::kTerminal, "--odd", "", 0},
    {"Run", {"run", "show context version"}, Action::kRun, "", "show context version", 0},
    {"RunWords", {"run", "show", "context"}, Action::kRun, "", "show context", 0},
    {"RunDashWord", {"run", "show", "--root"}, Action::kRun, "", "show --root", 0},
    {"RootAndRun", {"--root", "dir", "run", "x"}, Action::kRun, "dir", "x", 0},
    {"Serve", {"serve", "--telnet", "2323"}, Action::kServe, "", "", 2323},
    {"ServeAnyPort", {"serve", "--telnet=0"}, Action::kServe, "", "", 0},
    {"ServeHighestPort", {"serve", "--telnet", "65535"}, Action::kServe, "", "", 65535},
    {"ServeRootLast", {"serve", "--telnet", "1", "--root", "d"}, Action::kServe, "d", "", 1},
    {"Help", {"--help"}, Action::kHelp, "", "", 0},
    {"ShortHelp", {"-h"}, Action::kHelp, "", "", 0},
    {"HelpWins", {"--help", "run", "x"}, Action::kHelp, "", "x", 0},
    {"HelpBehindAsk", {"ask", "--help"}, Action::kHelp, "", "", 0},
    {"HelpWinsOverAsk", {"--help", "ask", "q"}, Action::kHelp, "", "", 0},
    {"HelpBehindPack", {"pack", "--help"}, Action::kHelp, "", "", 0},
    {"HelpWinsOverPack", {"--help", "pack", "a"}, Action::kHelp, "", "", 0},
    {"Version", {"--version"}, Action::kVersion, "", "", 0},
};

INSTANTIATE_TEST_SUITE_P(All, OptionLine, testing::ValuesIn(kLines),
                         testing::PrintToStringParamName());

struct Question {
  const char* name;
  Arguments arguments;
  Arguments question;
  const char* root;
  bool debug;
  friend std::ostream& operator<<(std::ostream& out, const Question& row) {
    return out << row.name;
  }
};

class AskLine : public testing::TestWithParam<Question> {};

TEST_P(AskLine, IsUnderstood) {
  const Options options = ParseOptions(GetParam().arguments);
  EXPECT_EQ(options.action, Action::kAsk);
  EXPECT_EQ(options.question, GetParam().question);
  EXPECT_EQ(options.root, GetParam().root);
  EXPECT_EQ(options.debug, GetParam().debug);
}

const Question kQuestions[] = {
    {"Alone", {"ask"}, {}, "", false},
    {"Query", {"ask", "q"}, {"q"}, "", false},
    {"Arguments", {"ask", "q", "7", "", "a b"}, {"q", "7", "", "a b"}, "", false},
    {"EmptyQuery", {"ask", ""}, {""}, "", false},
    {"OptionsInFront", {"--debug", "--root", "d", "ask", "q"}, {"q"}, "d", true},
    {"OptionsBehindAsk", {"ask", "--root=d", "--debug", "q", "1"}, {"q", "1"}, "d", true},
    {"OptionsBehindTheQuery", {"ask", "q", "--debug", "-x"}, {"q", "--debug", "-x"}, "", false},
    {"OptionAlone", {"ask", "--debug"}, {}, "", true},
    {"QueryLikeAWord", {"ask", "run", "ask"}, {"run", "ask"}, "", false},
};

INSTANTIATE_TEST_SUITE_P(All, AskLine, testing::ValuesIn(kQuestions),
                         testing::PrintToStringParamName());

TEST(DebugOption, GoesWithWhatStartsACard) {
  for (const Arguments& arguments : {Arguments{"--debug"}, Arguments{"--debug", "run", "x"},
                                     Arguments{"serve", "--telnet", "0", "--debug"}}) {
    EXPECT_TRUE(ParseOptions(arguments).debug);
  }
  for (const Arguments& arguments : {Arguments{}, Arguments{"run", "x", "--debug"}}) {
    EXPECT_FALSE(ParseOptions(arguments).debug);
  }
}

struct Packing {
  const char* name;
  Arguments arguments;
  Arguments files;
  friend std::ostream& operator<<(std::ostream& out, const Packing& row) { return out << row.name; }
};

class PackLine : public testing::TestWithParam<Packing> {};

TEST_P(PackLine, IsUnderstood) {
  const Options options = ParseOptions(GetParam().arguments);
  EXPECT_EQ(options.action, Action::kPack);
  EXPECT_EQ(options.files, GetParam().files);
}

const Packing kPackings[] = {
    {"Files", {"pack", "a", "b"}, {"a", "b"}},
    {"FilesLikeWords", {"pack", "run", "pack"}, {"run", "pack"}},
    {"BlanksAndPaths", {"pack", "./-a b", ""}, {"./-a b", ""}},
};

INSTANTIATE_TEST_SUITE_P(All, PackLine, testing::ValuesIn(kPackings),
                         testing::PrintToStringParamName());

struct BadLine {
  const char* name;
  Arguments arguments;
  const char* message;
  friend std::ostream& operator<<(std::ostream& out, const BadLine& row) { return out << row.name; }
};

class BadOptionLine : public testing::TestWithParam<BadLine> {};

TEST_P(BadOptionLine, IsRefused) {
  EXPECT_THAT([] { ParseOptions(GetParam().arguments); },
              testing::ThrowsMessage<OptionError>(GetParam().message));
}

const BadLine kBadLines[] = {
    {"UnknownOption", {"--roots", "d"}, "unknown option '--roots' (see sysctx --help)"},
    {"UnknownShortOption", {"-x"}, "unknown option '-x' (see sysctx --help)"},
    {"UnknownWord", {"start"}, "unknown word 'start' (see sysctx --help)"},
    {"WordBehindServe", {"serve", "run2"}, "unknown word 'run2' (see sysctx --help)"},
    {"RootWithoutValue", {"--root"}, "option '--root' needs a value (see sysctx --help)"},
    {"RootEmpty", {"--root", ""}, "option '--root' needs a value (see sysctx --help)"},
    {"RootAttachedEmpty", {"--root="}, "option '--root' needs a value (see sysctx --help)"},
    {"TelnetWithoutValue",
     {"serve", "--telnet"},
     "option '--telnet' needs a value (see sysctx --help)"},
    {"RunWithoutCommand", {"run"}, "'run' needs a command (see sysctx --help)"},
    {"RunBlankCommand", {"run", " \t"}, "'run' needs a command (see sysctx --help)"},
    {"ServeWithoutPort", {"serve"}, "'serve' needs --telnet PORT (see sysctx --help)"},
    {"TelnetWithoutServe", {"--telnet", "23"}, "--telnet goes with 'serve' (see sysctx --help)"},
    {"TelnetWithAsk",
     {"--telnet", "23", "ask", "q"},
     "--telnet goes with 'serve' (see sysctx --help)"},
    {"UnknownOptionBehindAsk", {"ask", "-x", "q"}, "unknown option '-x' (see sysctx --help)"},
    {"DebugWithValue", {"--debug=1"}, "unknown option '--debug=1' (see sysctx --help)"},
    {"PackAlone", {"pack"}, "'pack' needs TEXT-FILE and IMAGE-FILE (see sysctx --help)"},
    {"PackOneFile", {"pack", "a"}, "'pack' needs TEXT-FILE and IMAGE-FILE (see sysctx --help)"},
    {"PackThreeFiles",
     {"pack", "a", "b", "c"},
     "'pack' needs TEXT-FILE and IMAGE-FILE (see sysctx --help)"},
    {"PackOption", {"pack", "a", "-b"}, "unknown option '-b' (see sysctx --help)"},
    {"PackWithRoot",
     {"--root", "d", "pack", "a", "b"},
     "--root does not go with 'pack' (see sysctx --help)"},
    {"PackWithDebug",
     {"--debug", "pack", "a", "b"},
     "--debug does not go with 'pack' (see sysctx --help)"},
    {"PackWithDebugBehind",
     {"pack", "a", "--debug", "b"},
     "--debug does not go with 'pack' (see sysctx --help)"},
    {"PackWithTelnet",
     {"pack", "a", "b", "--telnet", "23"},
     "--telnet goes with 'serve' (see sysctx --help)"},
    {"PortName",
     {"serve", "--telnet", "telnet"},
     "bad port 'telnet': a number from 0 to 65535 is wanted"},
    {"PortTooLarge",
     {"serve", "--telnet", "65536"},
     "bad port '65536': a number from 0 to 65535 is wanted"},
    {"PortNegative",
     {"serve", "--telnet", "-1"},
     "bad port '-1': a number from 0 to 65535 is wanted"},
    {"PortWithTail",
     {"serve", "--telnet", "23x"},
     "bad port '23x': a number from 0 to 65535 is wanted"},
};

INSTANTIATE_TEST_SUITE_P(All, BadOptionLine, testing::ValuesIn(kBadLines),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace sysctx
