#include "platform/win32/socket.h"

#include <winsock2.h>

#include <utility>

#include "platform/win32/eventguard.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {
namespace {

// Each connection has a message of its own, so that one under way is known for what it tells of
// although the system gives the next socket the same number.
constexpr UINT FirstMessage = WM_APP + 0x100;
constexpr UINT LastMessage = WM_APP + 0x1FF;

}  // namespace

bool SocketTraits::Close(Type socket) {
    return closesocket(socket) == 0;
}

Socket::Socket(platform::Messages& messages)
    : messages_(messages),
      lastMessage_(LastMessage),
      window_([this](UINT message, WPARAM, LPARAM lParam) { Receive(message, lParam); }) {}

Socket::~Socket() {
    Close();
    if (started_) WSACleanup();
}

void Socket::Connect() {
    if (state_ != Closed) throw runtime::Failure(runtime::InvalidProcedureCall);
    Start();
    lastMessage_ = lastMessage_ == LastMessage ? FirstMessage : lastMessage_ + 1;
    message_ = lastMessage_;
    const ULONG address = inet_addr(ToAnsi(remoteHost).c_str());
    if (address == INADDR_NONE) {
        Resolve();
    } else {
        ConnectTo(address);
    }
}

void Socket::Start() {
    if (started_) return;
    WSADATA data;
    if (WSAStartup(MAKEWORD(2, 2), &data) != 0) {
        throw runtime::Failure(runtime::CannotCreateObject);
    }
    started_ = true;
}

void Socket::Resolve() {
    state_ = Resolving;
    if (!host_) host_ = std::make_unique<char[]>(MAXGETHOSTSTRUCT);
    lookup_ = WSAAsyncGetHostByName(window_.Get(), message_, ToAnsi(remoteHost).c_str(),
                                    host_.get(), MAXGETHOSTSTRUCT);
    if (!lookup_) PostError(WSAGetLastError());
}

void Socket::ConnectTo(ULONG address) {
    state_ = Connecting;
    sockaddr_in server = {};
    server.sin_family = AF_INET;
    server.sin_port = htons(remotePort);
    server.sin_addr.s_addr = address;
    socket_.Reset(socket(AF_INET, SOCK_STREAM, IPPROTO_TCP));
    if (!socket_ || WSAAsyncSelect(socket_.Get(), window_.Get(), message_,
                                   FD_CONNECT | FD_READ | FD_CLOSE) != 0) {
        PostError(WSAGetLastError());
    } else if (connect(socket_.Get(), reinterpret_cast<sockaddr*>(&server), sizeof server) != 0 &&
               WSAGetLastError() != WSAEWOULDBLOCK) {
        PostError(WSAGetLastError());
    }
}

// Comes as a failed answer would, when the caller has returned.
void Socket::PostError(int number) {
    PostMessageW(window_.Get(), message_, 0, MAKELPARAM(FD_CONNECT, number));
}

void Socket::Close() {
    DropLookup();
    socket_.Close();
    arrived_.clear();
    message_ = 0;
    state_ = Closed;
}

// A system that cannot call a lookup back writes its answer later, into memory that is left to it
// for good then.
void Socket::DropLookup() {
    if (!lookup_) return;
    const bool ended = WSACancelAsyncRequest(std::exchange(lookup_, nullptr)) == 0 ||
                       WSAGetLastError() == WSAEALREADY;
    if (!ended) static_cast<void>(host_.release());
}

std::string Socket::GetData() {
    return std::exchange(arrived_, "");
}

// The number of a failure stands in the upper half of both kinds of answer.
void Socket::Receive(UINT message, LPARAM lParam) {
    if (message_ == 0 || message != message_ || state_ == PeerClosing || state_ == Failed) return;
    if (HIWORD(lParam) != 0) {
        Fail(HIWORD(lParam));
    } else if (state_ == Resolving) {
        Resolved();
    } else if (LOWORD(lParam) == FD_CONNECT) {
        state_ = Connected;
        Raise(onConnect);
    } else if (LOWORD(lParam) == FD_READ) {
        if (TakeSome() > 0) Raise(onDataArrival);
    } else if (LOWORD(lParam) == FD_CLOSE) {
        ServerClosed();
    }
}

void Socket::Resolved() {
    lookup_ = nullptr;
    const auto* host = reinterpret_cast<const hostent*>(host_.get());
    ConnectTo(*reinterpret_cast<const ULONG*>(host->h_addr_list[0]));
}

void Socket::Fail(int number) {
    lookup_ = nullptr;
    state_ = Failed;
    if (onError) GuardEvent(messages_, [&] { onError(number); });
}

// What is left over is told of again.
int Socket::TakeSome() {
    char bytes[512];
    const int count = recv(socket_.Get(), bytes, sizeof bytes, 0);
    if (count > 0) arrived_.append(bytes, static_cast<std::size_t>(count));
    return count;
}

// Nothing is told of any more, so everything is taken that has arrived before.
void Socket::ServerClosed() {
    const UINT connection = message_;
    bool more = false;
    int count = TakeSome();
    for (; count > 0; count = TakeSome()) more = true;
    // A connection that broke off meanwhile has not been closed by the server.
    const int error = count < 0 ? WSAGetLastError() : 0;
    if (error != 0 && error != WSAEWOULDBLOCK) {
        Fail(error);
        return;
    }
    if (more) Raise(onDataArrival);
    // Whoever has got the bytes may have closed.
    if (message_ != connection) return;
    state_ = PeerClosing;
    Raise(onClose);
}

void Socket::Raise(const std::function<void()>& event) const {
    if (event) GuardEvent(messages_, event);
}

}  // namespace platform::win32
