// Uploads to a real FTP server, which runs as a child process.
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "host/descriptor.h"
#include "host/equipment.h"
#include "host/temporary_folder.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kUser = "operator";
constexpr const char* kPassword = "s3cret:word@with/signs";

class FtpServer {
 public:
  explicit FtpServer(const std::string& folder) {
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) {
      abort();
    }
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      execl(SYSCTX_PYTHON, SYSCTX_PYTHON, FTP_SERVER, folder.c_str(), kUser, kPassword, nullptr);
      _exit(127);
    }
    close(ends[1]);
    FILE* output = fdopen(ends[0], "r");
    if (fscanf(output, "%hu", &port_) != 1) {
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

// A port on which connections are accepted by the system, but nobody speaks.
class SilentPort {
 public:
  SilentPort() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), size);
    listen(socket_.get(), 4);
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
    facts.ftp_timeout_seconds = 2;
    SetEquipment(facts);
    testing::internal::CaptureStderr();
    const int32_t result = upload_buf_by_ftp("127.0.0.1", user, password, file, content.data(),
                                             static_cast<uint32_t>(content.size()));
    said_ = testing::internal::GetCapturedStderr();
    return result;
  }

  TemporaryFolder folder_;
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
  uint16_t port = 0;
  { port = SilentPort().port(); }
  EXPECT_EQ(Upload(port, kUser, kPassword, "copy.ini", "text"), -1);
  EXPECT_THAT(said_, testing::StartsWith("sysctx: FTP upload: "));
  EXPECT_THAT(said_, Not(HasSubstr("s3cret")));
}

TEST_F(Ftp, SilentServerFailsAfterTheTimeout) {
  const SilentPort silent;
  const time_t before = time(nullptr);
  EXPECT_EQ(Upload(silent.port(), kUser, kPassword, "copy.ini", "text"), -1);
  EXPECT_LE(time(nullptr) - before, 10);
}

TEST_F(Ftp, AddressThatIsNoneFails) {
  SetEquipment({});
  for (const char* address : {"", "a b", "127.0.0.1/x", "user@127.0.0.1", "127.0.0.1:99"}) {
    EXPECT_EQ(upload_buf_by_ftp(address, kUser, kPassword, "f", "text", 4), -1) << address;
  }
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
