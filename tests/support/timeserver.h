#pragma once

#include <windows.h>

#include <winsock2.h>

#include <cstdint>
#include <vector>

#include "support/serveranswer.h"

namespace contract {

// A server on 127.0.0.1 in a thread of its own. It answers one connection after the other, each
// with the next answer, and refuses when there is none left.
class TimeServer {
  public:
    explicit TimeServer(std::vector<ServerAnswer> answers);
    ~TimeServer();
    TimeServer(const TimeServer&) = delete;
    TimeServer& operator=(const TimeServer&) = delete;

    std::uint16_t Port() const { return port_; }

  private:
    static DWORD WINAPI Run(void* self);
    void AnswerAll();
    bool WaitForClient() const;

    std::vector<ServerAnswer> answers_;
    SOCKET listener_;
    std::uint16_t port_ = 0;
    volatile LONG stopping_ = 0;
    std::vector<SOCKET> kept_;
    HANDLE thread_;
};

}  // namespace contract
