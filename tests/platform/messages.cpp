#include "platform/simulated/messages.h"

#include <doctest/doctest.h>

#include <stdexcept>

#include "platform/simulated/machine.h"

using platform::simulated::ShownMessage;
namespace message = platform::message;

namespace {

struct Boxes {
    platform::simulated::Machine machine;
    platform::simulated::Messages& messages = machine.messages;
};

constexpr int Question = message::YesNo + message::Question;

}  // namespace

TEST_CASE_FIXTURE(Boxes, "a box with only OK needs no answer") {
    CHECK(messages.Show("Text", message::Information, "Titel") == message::Ok);
    CHECK(messages.Shown() == std::vector<ShownMessage>{{"Titel", "Text", 64}});
    CHECK(machine.journal.Text() == "MessageBox \"Titel\" 64 \"Text\" -> 1\n");
}

TEST_CASE_FIXTURE(Boxes, "answers to one title queue up, other titles wait for their own") {
    messages.Answer("A", message::Yes);
    messages.Answer("B", message::Cancel);
    messages.Answer("A", message::No);
    CHECK(messages.Show("t", Question, "A") == message::Yes);
    CHECK(messages.Show("t", Question, "A") == message::No);
    CHECK(messages.Show("t", message::OkCancel, "B") == message::Cancel);
}

TEST_CASE_FIXTURE(Boxes, "a standing answer serves every box of its title behind the single ones") {
    messages.AnswerAll("A", message::Cancel);
    messages.Answer("A", message::Yes);
    CHECK(messages.Show("t", Question, "A") == message::Yes);
    CHECK(messages.Show("t", Question, "A") == message::Cancel);
    CHECK(messages.Show("t", Question, "A") == message::Cancel);
    CHECK_THROWS_AS(messages.Show("t", Question, "B"), std::logic_error);
}

TEST_CASE_FIXTURE(Boxes, "a question that nobody answers is a mistake in the test") {
    messages.Answer("Andere", message::Yes);
    for (int style : {Question, message::OkCancel + message::Exclamation}) {
        try {
            messages.Show("Wirklich?", style, "Frage");
            FAIL("the question was answered");
        } catch (const std::logic_error& error) {
            CHECK(std::string(error.what()) ==
                  "nobody answers the message box \"Frage\": Wirklich?");
        }
    }
}

TEST_CASE_FIXTURE(Boxes, "an action runs while the box of its title is open") {
    messages.WhileOpen("Frage", [&] {
        CHECK(messages.Shown().back().title == "Frage");
        machine.tray.SetIcon();
    });
    messages.Answer("Frage", message::Yes);
    messages.Show("t", message::Information, "Andere");
    CHECK_FALSE(machine.tray.hasIcon);
    CHECK(messages.Show("t", Question, "Frage") == message::Yes);
    CHECK(machine.journal.Text() ==
          "MessageBox \"Andere\" 64 \"t\" -> 1\n"
          "MessageBox \"Frage\" 36 \"t\" -> 6\n"
          "Tray.SetIcon\n");
}

TEST_CASE_FIXTURE(Boxes, "an action may move time and give the answer itself") {
    int ticks = 0;
    machine.clock.StartTimer(1000, [&] { ++ticks; });
    messages.WhileOpen("Frage", [&] {
        machine.clock.Advance(2000);
        messages.Answer("Frage", message::No);
    });
    CHECK(messages.Show("t", Question, "Frage") == message::No);
    CHECK(ticks == 2);
}

TEST_CASE_FIXTURE(Boxes, "an action runs once") {
    int runs = 0;
    messages.WhileOpen("T", [&] { ++runs; });
    messages.Show("t", message::Critical, "T");
    messages.Show("t", message::Critical, "T");
    CHECK(runs == 1);
    CHECK(messages.Shown().size() == 2);
}
