#include "timesync/timeanswer.h"

#include <limits>
#include <string>

#include "platform/systemclock.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "timesync/date.h"

namespace timesync {
namespace {

constexpr std::size_t AnswerLength = 4;
// From 1900-01-01 to 1990-01-01, in seconds.
constexpr std::int64_t BaseOfConversion = 2840140800;
constexpr Date BaseDate = Date{32874} * 24 * 60 * 60;

}  // namespace

std::optional<std::int32_t> SecondsOfAnswer(std::string_view answer) {
    const std::string bytes = runtime::Trim(answer);
    if (bytes.size() != AnswerLength) return std::nullopt;
    std::int64_t seconds = 0;
    for (char byte : bytes) seconds = seconds * 256 + static_cast<std::uint8_t>(byte);
    seconds -= BaseOfConversion;
    // The greatest count, in 2036, still fits; only what is too early does not.
    if (seconds < std::numeric_limits<std::int32_t>::min()) {
        throw runtime::Failure(runtime::Overflow);
    }
    return static_cast<std::int32_t>(seconds);
}

void SetClockFrom1990(platform::SystemClock& clock, std::int64_t seconds) {
    clock.SetSystemTime(PartsOf(BaseDate + seconds));
}

void ApplyTimeAnswer(std::string_view answer, platform::SystemClock& clock) {
    if (const auto seconds = SecondsOfAnswer(answer)) SetClockFrom1990(clock, *seconds);
}

}  // namespace timesync
