// Uploads to a real FTP server, which runs as a child process.
#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/descriptor.h"
#include "host/equipment.h"
#include "support/temporary_folder.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

using test::ReadWhole;
using test::TemporaryFolder;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kUser = "operator";
constexpr const char* kPassword = "s3cret:word@with/signs";
constexpr int kPatienceMilliseconds = 60000;

class FtpServer {
 public:
  explicit FtpServer(const std::string& folder, const char* mode = "full") {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) {
      abort();
    }
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      prctl(PR_SET_PDEATHSIG, SIGTERM);  // a test that is killed leaves no server
      execl(SYSCTX_PYTHON, SYSCTX_PYTHON, FTP_SERVER, folder.c_str(), kUser, kPassword, mode,
            nullptr);
      _exit(127);
    }
    close(ends[1]);
    FILE* output = fdopen(ends[0], "r");
    pollfd waiting = {ends[0], POLLIN, 0};  // for the one line that the server writes
    if (poll(&waiting, 1, kPatienceMilliseconds) != 1 || fscanf(output, "%hu", &port_) != 1) {
      ADD_FAILURE() << "the FTP server did not start";
    }
    fclose(output);
  }
  FtpServer(const FtpServer&) = delete;
  FtpServer& operator=(const FtpServer&) = delete;
  ~FtpServer() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }

  uint16_t port() const { return port_; }

 private:
  pid_t process_;
  uint16_t port_ = 0;
};

// A port on which nobody speaks: connections are refused, or accepted by the system when
// it listens.
class SilentPort {
 public:
  explicit SilentPort(bool listens) : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), size);
    if (listens) {
      listen(socket_.get(), 4);
    }
    getsockname(socket_.get(), reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
  }

  uint16_t port() const { return port_; }

 private:
  Descriptor socket_;
  uint16_t port_ = 0;
};

class Ftp : public testing::Test {
 protected:
  ~Ftp() override { SetEquipment({}); }

  // Uploads to 127.0.0.1; what it says goes to said_.
  int32_t Upload(uint16_t port, const char* user, const char* password, const char* file,
                 const std::string& content) {
    Equipment facts;
    facts.ftp_port = port;
    facts.ftp_timeout_seconds = timeout_seconds_;
    SetEquipment(facts);
    testing::internal::CaptureStderr();
    const int32_t result = upload_buf_by_ftp("127.0.0.1", user, password, file, content.data(),
                                             static_cast<uint32_t>(content.size()));
    said_ = testing::internal::GetCapturedStderr();
    return result;
  }

  TemporaryFolder folder_;
  int timeout_seconds_ = 60;
  std::string said_;
};

TEST_F(Ftp, StoresTheBuffer) {
  const FtpServer server(folder_.path());
  const std::string content("[Version]\r\nbytes \0 and \xFF\n", 25);
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "copy.ini", content), 0);
  EXPECT_EQ(ReadWhole(folder_.Path("copy.ini")), content);
  EXPECT_EQ(said_, "");
}

TEST_F(Ftp, StoresALargeBufferAndReplacesAFile) {
  const FtpServer server(folder_.path());
  std::string content;
  for (int i = 0; i < 300000; ++i) {
    content += std::to_string(i) + "\n";
  }
  folder_.Write("copy.ini", "older and shorter");
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "copy.ini", content), 0);
  EXPECT_TRUE(ReadWhole(folder_.Path("copy.ini")) == content);
}

TEST_F(Ftp, StoresAnEmptyBuffer) {
  const FtpServer server(folder_.path());
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "empty.ini", ""), 0);
  EXPECT_EQ(access(folder_.Path("empty.ini").c_str(), F_OK), 0);
}

TEST_F(Ftp, FileNameIsTakenAsItIs) {
  const FtpServer server(folder_.path());
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "a b%20#c?d;type=a", "text"), 0);
  EXPECT_EQ(ReadWhole(folder_.Path("a b%20#c?d;type=a")), "text");
}

// The server's file is there until its new bytes come.
TEST_F(Ftp, EarlyFailuresLeaveTheServersFile) {
  const FtpServer server(folder_.path());
  const std::string file = folder_.Write("copy.ini", "older");
  EXPECT_EQ(Upload(server.port(), kUser, "wr0ng:word", "copy.ini", "text"), -1);
  EXPECT_EQ(Upload(server.port(), "nobody", kPassword, "copy.ini", "text"), -1);
  EXPECT_EQ(ReadWhole(file), "older");
}

TEST_F(Ftp, ServerWithoutDataConnectionKeepsItsFile) {
  const FtpServer server(folder_.path(), "no-data");
  const std::string file = folder_.Write("copy.ini", "older");
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "copy.ini", "text"), -1);
  EXPECT_EQ(ReadWhole(file), "older");
}

// Passive mode: the server refuses to come to the card.
TEST_F(Ftp, DataConnectionIsTheCards) {
  const FtpServer server(folder_.path(), "passive");
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "copy.ini", "text"), 0);
  EXPECT_EQ(ReadWhole(folder_.Path("copy.ini")), "text");
}

// An older server knows only the older of the two passive modes.
TEST_F(Ftp, ServerWithoutExtendedPassiveMode) {
  const FtpServer server(folder_.path(), "no-extended");
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "copy.ini", "text"), 0);
  EXPECT_EQ(ReadWhole(folder_.Path("copy.ini")), "text");
}

TEST_F(Ftp, WrongPasswordFailsAndIsNotTold) {
  const FtpServer server(folder_.path());
  EXPECT_EQ(Upload(server.port(), kUser, "wr0ng:word", "copy.ini", "text"), -1);
  EXPECT_NE(access(folder_.Path("copy.ini").c_str(), F_OK), 0);
  EXPECT_EQ(said_, "sysctx: FTP upload: Login denied\n");
  EXPECT_THAT(said_, Not(HasSubstr("wr0ng")));
}

TEST_F(Ftp, UnknownUserFails) {
  const FtpServer server(folder_.path());
  EXPECT_EQ(Upload(server.port(), "nobody", kPassword, "copy.ini", "text"), -1);
  EXPECT_NE(access(folder_.Path("copy.ini").c_str(), F_OK), 0);
}

TEST_F(Ftp, MissingFolderFails) {
  const FtpServer server(folder_.path());
  EXPECT_EQ(Upload(server.port(), kUser, kPassword, "missing/copy.ini", "text"), -1);
}

TEST_F(Ftp, ServerThatIsDownFails) {
  const SilentPort refusing(false);
  EXPECT_EQ(Upload(refusing.port(), kUser, kPassword, "copy.ini", "text"), -1);
  EXPECT_THAT(said_, testing::StartsWith("sysctx: FTP upload: "));
  EXPECT_THAT(said_, Not(HasSubstr("s3cret")));
}

TEST_F(Ftp, SilentServerFailsAfterTheTimeout) {
  const SilentPort silent(true);
  timeout_seconds_ = 1;
  EXPECT_EQ(Upload(silent.port(), kUser, kPassword, "copy.ini", "text"), -1);
  EXPECT_THAT(said_, HasSubstr("imeout"));
}

TEST_F(Ftp, AddressThatIsNoneFails) {
  const FtpServer server(folder_.path());
  Equipment facts;
  facts.ftp_port = server.port();
  SetEquipment(facts);
  for (const char* address :
       {"", "a b", "127.0.0.1/x", "user@127.0.0.1", "127.0.0.1:99", "localhost", "::1", "[::1]",
        "::ffff:127.0.0.1", "127.1", "2130706433", "0x7f.0.0.1", "127.0.0.01", "127.0.0.1.",
        "127.0.0.1 ", " 127.0.0.1", "127.0.0.256", "1.2.3.4.5"}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(upload_buf_by_ftp(address, kUser, kPassword, "f", "text", 4), -1) << address;
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "sysctx: FTP upload: address or file name cannot be used\n");
  }
  EXPECT_NE(access(folder_.Path("f").c_str(), F_OK), 0);
}

TEST_F(Ftp, NullArgumentsFail) {
  EXPECT_EQ(upload_buf_by_ftp(nullptr, "u", "p", "f", "text", 4), -1);
  EXPECT_EQ(upload_buf_by_ftp("127.0.0.1", nullptr, "p", "f", "text", 4), -1);
  EXPECT_EQ(upload_buf_by_ftp("127.0.0.1", "u", nullptr, "f", "text", 4), -1);
  EXPECT_EQ(upload_buf_by_ftp("127.0.0.1", "u", "p", nullptr, "text", 4), -1);
  EXPECT_EQ(upload_buf_by_ftp("127.0.0.1", "u", "p", "f", nullptr, 4), -1);
}

}  // namespace
}  // namespace sysctx
