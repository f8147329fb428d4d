// What both time sources tell: a server of the Time Protocol, and a computer on the network.
#include <array>
#include <ctime>
#include <optional>

#include "fuzz/target.h"
#include "timesync/frame.h"
#include "timesync/timeanswer.h"

namespace fuzz {
namespace {

using timesync_test::Frame;
using timesync_test::ShownMessage;

// The C library's count of seconds, which knows the same calendar from another side.
platform::LocalTime PartsOfSeconds(std::time_t seconds) {
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

constexpr std::time_t From1900To1970 = 2208988800;
constexpr std::time_t From1900To1990 = 2840140800;
constexpr std::time_t East = 3600;

// Seconds from 1970 on in the four bytes that are left without blanks at both ends; nothing for any
// other answer, and before 1922, of which 32 bits from 1990 on tell nothing.
std::optional<std::time_t> SecondsIn(std::string answer, bool& tooEarly) {
    answer.erase(answer.find_last_not_of(' ') + 1);
    answer.erase(0, std::min(answer.find_first_not_of(' '), answer.size()));
    if (answer.size() != 4) return std::nullopt;
    std::time_t seconds = 0;
    for (const char byte : answer) seconds = seconds << 8 | static_cast<unsigned char>(byte);
    tooEarly = seconds - From1900To1990 < INT32_MIN;
    if (tooEarly) return std::nullopt;
    return seconds - From1900To1970;
}

void CheckEnd(const Frame& frame) {
    Require(frame.Runs(), "the shown clock stands still");
    Require(frame.machine.forms.ScreenPointer() == toolkit::DefaultPointer, "the hourglass stays");
    Require(frame.machine.registry.Dump().empty() && frame.machine.settingsStore.All().empty(),
            "something else is written");
}

void CheckServer(Input& bytes) {
    platform::simulated::ServerAnswer answer;
    using End = platform::simulated::ServerAnswer::End;
    answer.end = std::array{End::Closes, End::Closes, End::Resets, End::Stays}[bytes.Below(4)];
    const bool behindTheBox = bytes.Flag();
    const bool isRefused = bytes.Below(16) == 15;
    std::string all;
    while (!bytes.AtEnd()) {
        answer.pieces.emplace_back(bytes.Piece());
        all += answer.pieces.back();
        // An empty piece is no event.
        if (answer.pieces.back().empty()) answer.pieces.pop_back();
    }
    bool tooEarly = false;
    auto seconds = SecondsIn(all, tooEarly);
    if (answer.end != End::Closes || isRefused) seconds.reset();

    Frame frame;
    const platform::LocalTime before = frame.machine.clock.now;
    if (!isRefused) frame.machine.socket.Serve(37, answer);
    if (behindTheBox) {
        frame.machine.messages.WhileOpen("Einstellungen aktualisiert",
                                         [&] { frame.machine.socket.RaiseAll(); });
    }
    frame.Press();
    frame.machine.socket.RaiseAll();
    Require(frame.machine.clock.now == (seconds ? PartsOfSeconds(*seconds + East) : before),
            "the clock is set otherwise");
    Require(frame.ClockCalls().size() == (seconds ? 1 : 0), "the clock is set more often");
    Require(frame.Shown() == std::vector{timesync_test::Success}, "another message");
    Require(frame.machine.socket.State() != platform::Socket::PeerClosing, "the socket stays open");
    CheckEnd(frame);
}

// The form that looks at the answer more closely.
void CheckChecked(Input& bytes) {
    Frame frame;
    frame.machine.network.dialUpConnections = static_cast<std::uint32_t>(bytes.Below(3));
    const std::string answer(bytes.Rest());
    const platform::LocalTime before = frame.machine.clock.now;
    bool tooEarly = false;
    const auto seconds = SecondsIn(answer, tooEarly);
    frame.synchronization.Stop_tmrUhrzeit();
    const int failure = FailureOf([&] { frame.synchronization.ApplyTimeAnswerChecked(answer); });
    Require(failure == (tooEarly ? runtime::Overflow : 0), "another failure");
    Require(frame.machine.clock.now == (seconds ? PartsOfSeconds(*seconds + East) : before),
            "the clock is set otherwise");
    Require(frame.Shown().size() == (seconds ? 1 : 0), "no message, or more than one");
    if (seconds) CheckEnd(frame);
}

// Small numbers and any.
std::uint32_t TakePart(Input& bytes) {
    const std::uint8_t small = bytes.Byte();
    return small < 250 ? small : bytes.Number();
}

// The local moment that a computer tells of, in seconds from 1970 on; nothing where it is none that
// can be set.
std::optional<std::time_t> MomentOf(const platform::TimeOfDay& told, int& failure) {
    const auto minutes =
        static_cast<std::int32_t>(told.minutes - static_cast<std::uint32_t>(told.timezone));
    const auto whole = [](std::uint32_t part) { return static_cast<std::int32_t>(part); };
    for (const std::int32_t part : {whole(told.year), whole(told.month), whole(told.day),
                                    whole(told.hours), minutes, whole(told.seconds)}) {
        if (part < -32768 || part > 32767) failure = runtime::Overflow;
    }
    if (failure != 0) return std::nullopt;
    std::tm parts{};
    parts.tm_year = whole(told.year) - 1900;
    parts.tm_mon = whole(told.month) - 1;
    parts.tm_mday = whole(told.day);
    parts.tm_hour = whole(told.hours);
    parts.tm_min = minutes;
    parts.tm_sec = whole(told.seconds);
    const std::time_t seconds = timegm(&parts);
    const int reached = PartsOfSeconds(seconds).year;
    if (told.year < 100 || told.year > 9999 || reached < 100 || reached > 9999) {
        failure = runtime::InvalidProcedureCall;
        return std::nullopt;
    }
    return seconds;
}

void CheckComputer(Input& bytes) {
    platform::TimeOfDay told;
    told.year = bytes.Flag() ? bytes.Number(2) : TakePart(bytes);
    told.month = TakePart(bytes);
    told.day = TakePart(bytes);
    told.hours = TakePart(bytes);
    told.minutes = TakePart(bytes);
    told.seconds = TakePart(bytes);
    told.timezone = static_cast<std::int32_t>(bytes.Flag() ? -TakePart(bytes) : TakePart(bytes));
    const bool refuses = bytes.Below(8) == 7;
    int failure = 0;
    const auto moment = MomentOf(told, failure);
    // Half a day around 1899-12-30 stands for no date.
    constexpr std::time_t zero = -2209161600;
    const bool isNone = moment && *moment >= zero - 43200 && *moment <= zero + 43200;

    Frame frame;
    frame.machine.network.SetTimeOf("\\\\zeit", told);
    frame.UseServer("zeit");
    const platform::LocalTime before = frame.machine.clock.now;
    if (refuses) frame.machine.faults.FailAll("SetLocalDate", runtime::PermissionDenied);
    frame.Press();
    const bool isSet = moment && !isNone && !refuses;
    Require(frame.machine.clock.now == (isSet ? PartsOfSeconds(*moment) : before),
            "the clock is set otherwise");
    if (isSet) {
        Require(frame.Shown() == std::vector{timesync_test::Success, timesync_test::Success},
                "another message");
    } else if (isNone) {
        Require(frame.Shown() == std::vector{timesync_test::ServerFailure}, "another message");
    } else {
        const int number = failure != 0 ? failure : runtime::PermissionDenied;
        Require(frame.Shown().size() == 1 &&
                    frame.Shown()[0].text.ends_with(" [" + std::to_string(number) + ']'),
                "another failure");
    }
    CheckEnd(frame);
}

}  // namespace

FUZZ_TARGET(timeanswers) {
    Input bytes(input);
    switch (bytes.Below(4)) {
        case 0:
            return CheckChecked(bytes);
        case 1:
            return CheckServer(bytes);
        default:
            return CheckComputer(bytes);
    }
}

}  // namespace fuzz
