#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/messages.h"

namespace platform::simulated {

class Faults;
class Journal;

struct ShownMessage {
    std::string title;
    std::string text;
    int style = 0;

    bool operator==(const ShownMessage&) const = default;
};

// Message boxes answered from a script.
class Messages final : public platform::Messages {
  public:
    Messages(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    int Show(std::string_view text, int style, std::string_view title) override;

    // The next box with that title is answered so. Several answers for one title queue up.
    // A box with only OK needs no answer; a question without one is a mistake in the test
    // (std::logic_error).
    void Answer(std::string title, int answer);
    // Every box with that title is answered so when no single answer waits for it.
    void AnswerAll(std::string title, int answer);
    // Runs while the next box with that title is open, before it is answered.
    void WhileOpen(std::string title, std::function<void()> action);

    const std::vector<ShownMessage>& Shown() const { return shown_; }

  private:
    Journal& journal_;
    Faults& faults_;
    std::deque<std::pair<std::string, int>> answers_;
    std::map<std::string, int, std::less<>> standingAnswers_;
    std::deque<std::pair<std::string, std::function<void()>>> actions_;
    std::vector<ShownMessage> shown_;
};

}  // namespace platform::simulated
