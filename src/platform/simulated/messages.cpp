#include "platform/simulated/messages.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {
namespace {

// The first entry with that title, taken out of the queue.
template <typename Entry>
std::optional<Entry> TakeFirst(std::deque<std::pair<std::string, Entry>>& queue,
                               std::string_view title) {
    auto found = std::find_if(queue.begin(), queue.end(),
                              [&](const auto& entry) { return entry.first == title; });
    if (found == queue.end()) return std::nullopt;
    Entry entry = std::move(found->second);
    queue.erase(found);
    return entry;
}

bool IsQuestion(int style) {
    constexpr int Buttons = 0x0F;
    return (style & Buttons) != 0;
}

}  // namespace

int Messages::Show(std::string_view text, int style, std::string_view title) {
    auto line = journal_.Note([&] {
        return "MessageBox " + Quoted(title) + " " + std::to_string(style) + " " + Quoted(text);
    });
    if (faults_.Check("MessageBox", title)) {
        journal_.Finish(line, [] { return std::string("0"); });
        return 0;
    }
    shown_.push_back({std::string(title), std::string(text), style});
    if (auto action = TakeFirst(actions_, title); action && *action) (*action)();
    std::optional<int> answer = TakeFirst(answers_, title);
    if (!answer) {
        const auto standing = standingAnswers_.find(title);
        if (standing != standingAnswers_.end()) answer = standing->second;
    }
    if (!answer && IsQuestion(style)) {
        throw std::logic_error("nobody answers the message box \"" + std::string(title) +
                               "\": " + std::string(text));
    }
    int code = answer.value_or(message::Ok);
    journal_.Finish(line, [&] { return std::to_string(code); });
    return code;
}

void Messages::Answer(std::string title, int answer) {
    answers_.emplace_back(std::move(title), answer);
}

void Messages::AnswerAll(std::string title, int answer) {
    standingAnswers_.insert_or_assign(std::move(title), answer);
}

void Messages::WhileOpen(std::string title, std::function<void()> action) {
    actions_.emplace_back(std::move(title), std::move(action));
}

}  // namespace platform::simulated
