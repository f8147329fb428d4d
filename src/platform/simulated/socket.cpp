#include "platform/simulated/socket.h"

#include <utility>

#include "platform/simulated/faults.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/wording.h"
#include "runtime/encoding.h"
#include "runtime/failure.h"

namespace platform::simulated {
namespace {

bool IsKnown(const std::string& host) {
    constexpr std::size_t LongestPart = 63;
    std::size_t length = 0;
    for (char c : host) {
        length = c == '.' ? 0 : length + 1;
        if (length > LongestPart) return false;
    }
    return true;
}

}  // namespace

void Socket::Connect() {
    const std::string target = remoteHost + ':' + std::to_string(remotePort);
    auto line = journal_.Note([&] { return "Socket.Connect " + target; });
    PassOrThrow(journal_, faults_, line, "Socket.Connect", target);
    if (state_ != Closed) ThrowFault(journal_, line, runtime::InvalidProcedureCall);
    state_ = Connecting;
    auto& answers = servers_[remotePort];
    if (!IsKnown(remoteHost)) {
        state_ = Resolving;
        underWay_.push_back({Failed, "", HostNotFound});
    } else if (answers.empty()) {
        underWay_.push_back({Failed, "", ConnectionRefused});
    } else {
        underWay_.push_back({Connected, "", 0});
        for (std::string& piece : answers.front().pieces) {
            underWay_.push_back({Connected, std::move(piece), 0});
        }
        const auto end = answers.front().end;
        if (end == ServerAnswer::End::Closes) underWay_.push_back({PeerClosing, "", 0});
        if (end == ServerAnswer::End::Resets) underWay_.push_back({Failed, "", ConnectionReset});
        answers.pop_front();
    }
}

void Socket::Close() {
    journal_.Note([] { return std::string("Socket.Close"); });
    state_ = Closed;
    arrived_.clear();
    underWay_.clear();
}

std::string Socket::GetData() {
    auto line = journal_.Note([] { return std::string("Socket.GetData"); });
    PassOrThrow(journal_, faults_, line, "Socket.GetData", "");
    journal_.Finish(line, [&] { return Quoted(runtime::FromWestern(arrived_)); });
    return std::exchange(arrived_, "");
}

void Socket::Serve(std::uint16_t port, ServerAnswer answer) {
    servers_[port].push_back(std::move(answer));
}

bool Socket::RaiseNext() {
    if (underWay_.empty()) return false;
    const Event event = std::move(underWay_.front());
    underWay_.pop_front();
    state_ = event.state;
    arrived_ += event.bytes;
    if (event.error != 0) {
        if (onError) onError(event.error);
    } else if (event.state == PeerClosing) {
        if (onClose) onClose();
    } else if (!event.bytes.empty()) {
        if (onDataArrival) onDataArrival();
    } else if (onConnect) {
        onConnect();
    }
    return true;
}

void Socket::RaiseAll() {
    while (RaiseNext()) {
    }
}

}  // namespace platform::simulated
