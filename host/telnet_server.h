// The shell on a loopback port, for several telnet clients at once.
#pragma once

#include <atomic>
#include <cstdint>
#include <list>
#include <thread>

#include "host/descriptor.h"

namespace sysctx {

class TelnetServer {
 public:
  // Listens on 127.0.0.1; port 0 lets the system choose one. Throws
  // std::runtime_error when the port cannot be had.
  explicit TelnetServer(uint16_t port);
  TelnetServer(const TelnetServer&) = delete;
  TelnetServer& operator=(const TelnetServer&) = delete;
  ~TelnetServer();

  uint16_t port() const { return port_; }

  // Serves clients until SIGINT or SIGTERM comes, or has come since the server
  // was made.
  void Run();

 private:
  struct Client {
    Descriptor socket;  // a second descriptor of the session's socket
    std::atomic<bool> done = false;
    std::thread thread;
  };

  void Accept();
  void Start(Descriptor socket);
  void JoinFinished();
  void JoinAll();

  Descriptor listener_;
  uint16_t port_ = 0;
  Descriptor signals_;  // readable when SIGINT or SIGTERM has come
  std::list<Client> clients_;
};

}  // namespace sysctx
