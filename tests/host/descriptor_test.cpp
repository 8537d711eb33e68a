// Reading from a descriptor.
#include "host/descriptor.h"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

namespace sysctx {
namespace {

// Each message sent is a read of its own.
class ReadingUpTo : public testing::Test {
 protected:
  ReadingUpTo() {
    int ends[2] = {-1, -1};
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends), 0);
    reader_ = Descriptor(ends[0]);
    writer_ = Descriptor(ends[1]);
  }

  void Send(const char* text) {
    ASSERT_EQ(send(writer_.get(), text, strlen(text), MSG_NOSIGNAL),
              static_cast<ssize_t>(strlen(text)));
  }

  std::string Read(size_t size) {
    std::string text(size, '#');
    const ssize_t got = ReadUpTo(reader_.get(), text.data(), size);
    EXPECT_GE(got, 0);
    return got < 0 ? "" : text.substr(0, static_cast<size_t>(got));
  }

  Descriptor reader_;
  Descriptor writer_;
};

TEST_F(ReadingUpTo, GoesOnUntilAllIsThere) {
  Send("ab");
  Send("cd");
  Send("ef");
  EXPECT_EQ(Read(4), "abcd");
  EXPECT_EQ(Read(0), "");
  EXPECT_EQ(Read(2), "ef");
}

TEST_F(ReadingUpTo, StopsAtTheEnd) {
  Send("ab");
  writer_ = Descriptor();
  EXPECT_EQ(Read(4), "ab");
  EXPECT_EQ(Read(4), "");
}

TEST_F(ReadingUpTo, FailsWithTheReason) {
  char byte = '#';
  EXPECT_EQ(ReadUpTo(-1, &byte, 1), -1);
  EXPECT_EQ(errno, EBADF);
  EXPECT_EQ(byte, '#');
}

int signalled_writer = -1;

void SendFromHandler(int) {
  send(signalled_writer, "late", 4, MSG_NOSIGNAL);
}

// The alarm interrupts the read that waits.
TEST_F(ReadingUpTo, GoesOnAfterASignal) {
  signalled_writer = writer_.get();
  struct sigaction action = {};
  action.sa_handler = SendFromHandler;  // without SA_RESTART
  struct sigaction before = {};
  ASSERT_EQ(sigaction(SIGALRM, &action, &before), 0);
  alarm(1);
  EXPECT_EQ(Read(4), "late");
  sigaction(SIGALRM, &before, nullptr);
}

}  // namespace
}  // namespace sysctx
