// The shell as a telnet client sees it, over a pair of connected sockets.
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <optional>
#include <string>
#include <thread>

#include "host/descriptor.h"
#include "host/records.h"
#include "host/session.h"

namespace sysctx {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr int kPatienceMilliseconds = 60000;

class TelnetSession : public testing::Test {
 protected:
  TelnetSession() {
    signal(SIGPIPE, SIG_IGN);  // as the server does: the client may go first
    InstallRecords();
    last_call = {};
    int ends[2] = {-1, -1};
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    client_ = Descriptor(ends[0]);
    thread_ = std::thread([end = ends[1]] { Session().Serve(end); });
    Answer();
  }
  ~TelnetSession() override {
    client_ = Descriptor();
    thread_.join();
  }

  // What arrives up to the next prompt, or another text that must come. Without any: up to
  // the end of the session.
  std::string Answer(const std::optional<std::string>& until = "\r\nsysctx> ") {
    std::string text;
    char buffer[4096];
    pollfd waiting = {client_.get(), POLLIN, 0};
    bool has_ended = false;
    const auto is_complete = [&] { return until ? text.ends_with(*until) : has_ended; };
    while (!is_complete() && !has_ended && poll(&waiting, 1, kPatienceMilliseconds) > 0) {
      const ssize_t got = read(client_.get(), buffer, sizeof buffer);
      has_ended = got <= 0;
      text.append(buffer, has_ended ? 0 : static_cast<size_t>(got));
    }
    if (!is_complete()) {
      ADD_FAILURE() << "no " << (until ? "'" + *until + "'" : "end") << " behind:\n" << text;
    }
    return text;
  }

  void Type(const std::string& keys) {
    ASSERT_EQ(send(client_.get(), keys.data(), keys.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(keys.size()));
  }

  std::string Ask(const std::string& keys) {
    Type(keys);
    return Answer();
  }

  // Help ends with the prompt and the line so far.
  std::string Help(const std::string& line) {
    Type(line + "?");
    std::string text = Answer("\r\nsysctx> " + line);
    Type("\x15");  // Ctrl-U
    return text;
  }

  Descriptor client_;
  std::thread thread_;
};

TEST_F(TelnetSession, RunsCommands) {
  EXPECT_EQ(Ask("show context version\r\n"),
            "show context version\r\n"
            "\r\nVersion:\r\n 0. version = KT3300V4.0\r\n 1. version = KT2200V4.0\r\n\r\n"
            "\r\nsysctx> ");
  EXPECT_EQ(last_call.record, &version_record);
}

TEST_F(TelnetSession, Abbreviates) {
  EXPECT_THAT(Ask("sh con ver | inc KT22\r\n"), HasSubstr("\r\n 1. version = KT2200V4.0\r\n"));
}

TEST_F(TelnetSession, Completes) {
  Type("sh\tlo\t");
  EXPECT_EQ(Answer("long "), "sh\b\bshow lo\b\blong ");
  Type("\x15");
}

TEST_F(TelnetSession, HelpsWithEveryWord) {
  EXPECT_THAT(Help("show "), HasSubstr("  context              context info.\r\n"));
  EXPECT_THAT(Help("sh"), HasSubstr("  show                 show info.\r\n"));
  EXPECT_THAT(Help("upload ftp context "), HasSubstr("  <A.B.C.D>            The address.\r\n"));
}

TEST_F(TelnetSession, HelpsWithEveryArgumentAlsoAfterACall) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_THAT(Help("upload ftp context 1.2.3.4 "),
                HasSubstr("  <username>           The user.\r\n"));
    EXPECT_THAT(Help("upload ftp context 1.2.3.4 me pass "),
                HasSubstr("  <filename>           The file.\r\n"));
    Ask("upload ftp context 1.2.3.4 me\r\n");
    EXPECT_THAT(last_call.arguments, ElementsAre("1.2.3.4", "me"));
  }
}

TEST_F(TelnetSession, HelpBehindAWholeCommandDoesNotRunIt) {
  Type("show context version ?");
  EXPECT_THAT(Answer("sysctx> show context version "), HasSubstr("  <cr>\r\n"));
  Type("\x15");
  EXPECT_EQ(last_call.record, nullptr);
}

TEST_F(TelnetSession, HelpBehindQuitDoesNotQuit) {
  Type("quit ?");
  EXPECT_THAT(Answer("sysctx> quit "), HasSubstr("  <cr>\r\n"));
  Type("\x15");
  EXPECT_THAT(Ask("show failure\r\n"), HasSubstr("failed"));
}

TEST_F(TelnetSession, SaysWhatIsWrong) {
  EXPECT_THAT(Ask("hide\r\n"), HasSubstr("\r\nInvalid command \"hide\"\r\n"));
  EXPECT_THAT(Ask("h\r\n"), HasSubstr("\r\nAmbiguous command \"h\": help history\r\n"));
  EXPECT_THAT(Ask("show context version 1\r\n"),
              HasSubstr("\r\nInvalid argument \"1\": the command takes none\r\n"));
}

TEST_F(TelnetSession, RemembersLines) {
  Ask("show failure\r\n");
  EXPECT_THAT(Ask("\x1b[A\r\n"), HasSubstr("failed"));
  EXPECT_THAT(Ask("history\r\n"), HasSubstr("  0. show failure\r\n"));
}

// Whether it is run, refused or not understood.
TEST_F(TelnetSession, ForgetsLinesWithPasswords) {
  Ask("show failure\r\n");
  for (const char* line :
       {"upload ftp context 1.2.3.4 me s3cret file", "up f c 1.2.3.4 me s3cret",
        "upload fpt context 1.2.3.4 me s3cret file", "uplaod ftp context 1.2.3.4 me s3cret file",
        "upload ftp context 1.2.3.4 me s3cret file | sort",
        "upload ftp context 1.2.3.4 me s3cret file |",
        "upload ftp context 1.2.3.4 me s3cret file | include",
        "upload ftp context 1.2.3.4 me 's3cret file"}) {
    SCOPED_TRACE(line);
    Ask(std::string(line) + "\r\n");
    Type("\x1b[A");
    EXPECT_EQ(Answer("show failure"), "show failure");
    Type("\x15");
    EXPECT_THAT(Ask("history\r\n"),
                HasSubstr("Command history:\r\n  0. show failure\r\n\r\nsysctx> "));
  }
  EXPECT_THAT(last_call.arguments, Not(testing::IsEmpty()));
}

TEST_F(TelnetSession, NoPrivilegedModeIsThere) {
  EXPECT_THAT(Ask("enable\r\n"), HasSubstr("Invalid command \"enable\""));
  EXPECT_THAT(Help(""), Not(HasSubstr("configure")));
}

class TelnetLeaving : public TelnetSession, public testing::WithParamInterface<const char*> {};

TEST_P(TelnetLeaving, EndsTheSession) {
  Type(GetParam());
  Answer(std::nullopt);
  char byte = 0;
  EXPECT_EQ(recv(client_.get(), &byte, 1, MSG_DONTWAIT), 0);
}

INSTANTIATE_TEST_SUITE_P(All, TelnetLeaving, testing::Values("quit\r\n", "exit\r\n", "\x04"));

}  // namespace
}  // namespace sysctx
