// One thread per client, each with a session of its own. The main thread waits
// for clients and for the signals that end the program.
#include "host/telnet_server.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/socket.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/session.h"

namespace sysctx {
namespace {

constexpr size_t kMostClients = 32;
constexpr int kListenBacklog = 8;
constexpr int kMillisecondsBetweenCleanups = 1000;

Descriptor Listen(uint16_t port) {
  Descriptor listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const int on = 1;
  setsockopt(listener.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  if (bind(listener.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
      listen(listener.get(), kListenBacklog) != 0) {
    throw std::runtime_error("port " + std::to_string(port) + ": " + strerror(errno));
  }
  return listener;
}

uint16_t PortOf(const Descriptor& listener) {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  getsockname(listener.get(), reinterpret_cast<sockaddr*>(&address), &size);
  return ntohs(address.sin_port);
}

// From here on, the start of the library included, the signals that end the program are read from a
// descriptor; the threads started later inherit the mask.
Descriptor CatchEndingSignals() {
  signal(SIGPIPE, SIG_IGN);  // a client may vanish while it is written to
  sigset_t ending;
  sigemptyset(&ending);
  sigaddset(&ending, SIGINT);
  sigaddset(&ending, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &ending, nullptr);
  return Descriptor(signalfd(-1, &ending, SFD_CLOEXEC));
}

void ServeClient(int socket) {
  try {
    Session().Serve(socket);
  } catch (const std::exception& error) {
    fprintf(stderr, "sysctx: telnet session: %s\n", error.what());
  }
}

}  // namespace

TelnetServer::TelnetServer(uint16_t port)
    : listener_(Listen(port)), port_(PortOf(listener_)), signals_(CatchEndingSignals()) {}

TelnetServer::~TelnetServer() {
  JoinAll();
}

void TelnetServer::Run() {
  pollfd waiting[] = {{listener_.get(), POLLIN, 0}, {signals_.get(), POLLIN, 0}};
  while (waiting[1].revents == 0) {
    const int ready = poll(waiting, 2, kMillisecondsBetweenCleanups);
    if (ready < 0 && errno != EINTR) {
      throw std::runtime_error(std::string("waiting for clients: ") + strerror(errno));
    }
    JoinFinished();
    if (ready > 0 && waiting[0].revents != 0) {
      Accept();
    }
  }
  JoinAll();
}

void TelnetServer::Accept() {
  Descriptor socket(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!socket.IsOpen()) {
    return;  // the client has gone again, or descriptors have run out
  }
  if (clients_.size() >= kMostClients) {
    constexpr std::string_view kRefusal = "Too many sessions\r\n";
    send(socket.get(), kRefusal.data(), kRefusal.size(), MSG_NOSIGNAL);
    return;
  }
  Start(std::move(socket));
}

// The session closes its descriptor when it ends; with the second one the
// server can still end the session, whatever number was given away since.
void TelnetServer::Start(Descriptor socket) {
  Client& client = clients_.emplace_back();
  client.socket = Descriptor(fcntl(socket.get(), F_DUPFD_CLOEXEC, 0));
  if (!client.socket.IsOpen()) {
    clients_.pop_back();
    return;
  }
  const int number = socket.Release();
  client.thread = std::thread([&client, number] {
    ServeClient(number);
    shutdown(client.socket.get(), SHUT_RDWR);
    client.done = true;
  });
}

void TelnetServer::JoinFinished() {
  clients_.remove_if([](Client& client) {
    if (!client.done) {
      return false;
    }
    client.thread.join();
    return true;
  });
}

void TelnetServer::JoinAll() {
  for (Client& client : clients_) {
    shutdown(client.socket.get(), SHUT_RDWR);
    client.thread.join();
  }
  clients_.clear();
}

}  // namespace sysctx
