#include "timesync/timeclient.h"

#include <utility>

#include "platform/clock.h"
#include "platform/socket.h"
#include "runtime/failure.h"
#include "timesync/timeanswer.h"
#include "toolkit/form.h"

namespace timesync {

TimeClient::TimeClient(toolkit::FormHost& forms, platform::Socket& socket, platform::Clock& clock,
                       platform::SystemClock& systemClock, TimeServer server)
    : forms_(forms),
      WSock1_(socket),
      clock_(clock),
      systemClock_(systemClock),
      server_(std::move(server)) {
    WSock1_.onConnect = [this] { connectTime = clock_.SecondsSinceMidnight(); };
    WSock1_.onDataArrival = [this] { WSock1_DataArrival(); };
    WSock1_.onClose = [this] { WSock1_Close(); };
    WSock1_.onError = [this](int number) { WSock1_Error(number); };
}

TimeClient::~TimeClient() {
    WSock1_.onConnect = WSock1_.onDataArrival = WSock1_.onClose = nullptr;
    WSock1_.onError = nullptr;
}

void TimeClient::Request() {
    answerExpected = true;
    WSock1_.Close();
    received_.clear();
    WSock1_.remoteHost = server_.host;
    WSock1_.remotePort = server_.port;
    WSock1_.Connect();
}

void TimeClient::WSock1_DataArrival() {
    received_ += WSock1_.GetData();
    forms_.SetScreenPointer(toolkit::DefaultPointer);
}

void TimeClient::WSock1_Close() {
    runtime::Skip([&] { WSock1_.Close(); });
    runtime::Skip([&] { ApplyTimeAnswer(received_, systemClock_); });
}

void TimeClient::WSock1_Error(int number) {
    if (number > 0 && WSock1_.State() != platform::Socket::Closed) WSock1_.Close();
}

}  // namespace timesync
