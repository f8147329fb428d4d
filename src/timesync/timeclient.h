#pragma once

#include <string>

#include "timesync/timeserver.h"

namespace platform {
class Clock;
class Socket;
class SystemClock;
}  // namespace platform
namespace toolkit {
class FormHost;
}

namespace timesync {

// Asks a time server and sets the clock when the answer is complete, which is when the server
// closes the connection. A connection or an answer that comes to nothing does so in silence.
class TimeClient {
  public:
    // Takes the socket for itself. Bytes that arrive give the screen its default pointer back.
    TimeClient(toolkit::FormHost& forms, platform::Socket& socket, platform::Clock& clock,
               platform::SystemClock& systemClock, TimeServer server);
    ~TimeClient();
    TimeClient(const TimeClient&) = delete;
    TimeClient& operator=(const TimeClient&) = delete;

    // Asks for a connection and returns at once; an answer still pending is dropped.
    // Throws what Socket::Connect throws.
    void Request();

    // Only ApplyTimeAnswerChecked looks at these two: whether a connection was started, and the
    // seconds since midnight when it stood.
    bool answerExpected = false;
    float connectTime = 0;

  private:
    // Throws what Socket::GetData throws.
    void WSock1_DataArrival();
    void WSock1_Close();
    void WSock1_Error(int number);

    toolkit::FormHost& forms_;
    platform::Socket& WSock1_;
    platform::Clock& clock_;
    platform::SystemClock& systemClock_;
    TimeServer server_;
    // The bytes received so far.
    std::string received_;
};

}  // namespace timesync
