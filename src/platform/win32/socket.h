#pragma once

#include <memory>

#include "platform/socket.h"
#include "platform/win32/handle.h"
#include "platform/win32/hiddenwindow.h"

namespace platform {
class Messages;
}

namespace platform::win32 {

// The system's number of a socket, as winsock2.h has it, which may not come before windows.h.
struct SocketTraits {
    using Type = UINT_PTR;
    static Type None() { return ~Type{0}; }
    static bool Close(Type socket);
};

class Socket final : public platform::Socket {
  public:
    explicit Socket(platform::Messages& messages);
    ~Socket() override;

    int State() const override { return state_; }
    void Connect() override;
    void Close() override;
    std::string GetData() override;

  private:
    void Start();
    void DropLookup();
    void Resolve();
    void ConnectTo(ULONG address);
    void PostError(int number);
    void Receive(UINT message, LPARAM lParam);
    void Resolved();
    void Fail(int number);
    // As recv.
    int TakeSome();
    void ServerClosed();
    void Raise(const std::function<void()>& event) const;

    platform::Messages& messages_;
    bool started_ = false;
    int state_ = Closed;
    // The message by which the current connection is told of; 0 when there is none.
    UINT message_ = 0;
    UINT lastMessage_;
    HANDLE lookup_ = nullptr;
    std::unique_ptr<char[]> host_;
    Owned<SocketTraits> socket_;
    std::string arrived_;
    HiddenWindow window_;
};

}  // namespace platform::win32
