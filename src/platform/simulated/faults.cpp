#include "platform/simulated/faults.h"

#include "runtime/failure.h"
#include "runtime/text.h"

namespace platform::simulated {

void Faults::FailNth(int n, FaultCode code) {
    countdown_ = n > 0 ? n : 0;
    countedCode_ = code;
    andAllBehind_ = false;
}

void Faults::FailFrom(int n, FaultCode code) {
    FailNth(n, code);
    andAllBehind_ = true;
}

void Faults::FailAll(std::string call, int code) {
    calls_[std::move(call)] = code;
}

void Faults::FailOn(std::string subject, int code) {
    subjects_.emplace_back(std::move(subject), code);
}

void Faults::Clear() {
    *this = Faults{};
}

std::optional<int> Faults::Check(std::string_view call, std::string_view subject) {
    if (watching_) asked_.emplace_back(call);
    if (countdown_ > 0 && --countdown_ == 0) {
        if (andAllBehind_) countdown_ = 1;
        return call.starts_with("Reg") ? countedCode_.registry : countedCode_.failure;
    }
    if (auto found = calls_.find(call); found != calls_.end()) return found->second;
    for (const auto& [start, code] : subjects_) {
        if (runtime::EqualsIgnoringCase(subject.substr(0, start.size()), start)) return code;
    }
    return std::nullopt;
}

void ThrowFault(Journal& journal, Journal::Place line, int code) {
    journal.Finish(line, [&] { return "failure " + std::to_string(code); });
    throw runtime::Failure(code);
}

void PassOrThrow(Journal& journal, Faults& faults, Journal::Place line, std::string_view call,
                 std::string_view subject) {
    if (auto code = faults.Check(call, subject)) ThrowFault(journal, line, *code);
}

}  // namespace platform::simulated
