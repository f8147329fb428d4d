#include "support/timeserver.h"

#include <utility>

namespace contract {
namespace {

void Send(SOCKET client, const ServerAnswer& answer) {
    // Each piece on its way at once, not together with the next.
    const BOOL on = TRUE;
    setsockopt(client, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on), sizeof on);
    for (const std::string& piece : answer.pieces) {
        Sleep(answer.pause);
        if (send(client, piece.data(), static_cast<int>(piece.size()), 0) < 0) return;
    }
    Sleep(answer.pause);
}

// A connection that is closed without lingering is broken off.
void BreakOff(SOCKET client) {
    const linger none = {1, 0};
    setsockopt(client, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&none), sizeof none);
    closesocket(client);
}

}  // namespace

TimeServer::TimeServer(std::vector<ServerAnswer> answers) : answers_(std::move(answers)) {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
    listener_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in here = {};
    here.sin_family = AF_INET;
    here.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof here;
    bind(listener_, reinterpret_cast<sockaddr*>(&here), size);
    listen(listener_, 5);
    getsockname(listener_, reinterpret_cast<sockaddr*>(&here), &size);
    port_ = ntohs(here.sin_port);
    thread_ = CreateThread(nullptr, 0, Run, this, 0, nullptr);
}

TimeServer::~TimeServer() {
    InterlockedExchange(&stopping_, 1);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    for (SOCKET client : kept_) closesocket(client);
    WSACleanup();
}

DWORD WINAPI TimeServer::Run(void* self) {
    static_cast<TimeServer*>(self)->AnswerAll();
    return 0;
}

void TimeServer::AnswerAll() {
    for (const ServerAnswer& answer : answers_) {
        if (!WaitForClient()) break;
        const SOCKET client = accept(listener_, nullptr, nullptr);
        Send(client, answer);
        switch (answer.end) {
            case ServerAnswer::End::Closes:
                closesocket(client);
                break;
            case ServerAnswer::End::Resets:
                BreakOff(client);
                break;
            case ServerAnswer::End::Stays:
                kept_.push_back(client);
                break;
        }
    }
    closesocket(listener_);
}

bool TimeServer::WaitForClient() const {
    while (!stopping_) {
        fd_set listening;
        FD_ZERO(&listening);
        FD_SET(listener_, &listening);
        timeval step = {0, 20000};
        if (select(0, &listening, nullptr, nullptr, &step) > 0) return true;
    }
    return false;
}

}  // namespace contract
