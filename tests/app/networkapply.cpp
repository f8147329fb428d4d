// A write pass that ends at a number of the page DFÜ.
#include <doctest/doctest.h>

#include "app/program.h"
#include "runtime/encoding.h"

using namespace app_test;
using platform::Registry;
using platform::simulated::DwordValue;

namespace {

struct Applying : Program {
    Applying() {
        REQUIRE(Start());
        FillNumbers();
    }

    std::string Log() { return runtime::FromWestern(machine.files.Content(LogPath).value_or("")); }
    auto OfTcp(const char* value) {
        return machine.registry.Value(Registry::LocalMachine, TcpKey, value);
    }
    std::size_t Records() {
        std::size_t count = 0;
        const std::string log = Log();
        for (std::size_t at = log.find("Procedure: "); at != std::string::npos;
             at = log.find("Procedure: ", at + 1)) {
            ++count;
        }
        return count;
    }
    bool LogHas(const char* words) { return Log().find(words) != std::string::npos; }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const auto& message : machine.messages.Shown()) titles.push_back(message.title);
        return titles;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Applying, "a window size that is no number ends the pass with one log record") {
    for (const char* text : {"abc", ""}) {
        CAPTURE(text);
        Applying program;
        program.Text("txtRWIN").SetText(text);
        program.form->WriteRegistry();
        CHECK(program.Records() == 1);
        CHECK(program.LogHas("Number: 13\r\n\r\nProcedure: WriteRegistry\r\n"));
        CHECK(program.LogHas("Description: Typen unverträglich\r\n"));
        CHECK(program.LogHas("Source: Quillmore\r\n"));
        CHECK(program.Titles() == std::vector<std::string>{"Fehler 13"});
        CHECK_FALSE(program.OfTcp("TcpWindowSize"));
        CHECK_FALSE(program.OfTcp("DefaultTTL"));
        CHECK_FALSE(program.OfTcp("IPEnableRouter"));
        CHECK(program.form->Pointer() == toolkit::Hourglass);
    }
}

TEST_CASE_FIXTURE(Applying, "what stands before the window size is written all the same") {
    Text("txtRWIN").SetText("abc");
    Check("chkLargeSystemCache").SetValue(1);
    form->WriteRegistry();
    CHECK(machine.registry.Value(Registry::LocalMachine, MemoryKey, "LargeSystemCache") ==
          DwordValue(1));
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Applying, "a number too large and one below zero are logged by their numbers") {
    const std::pair<const char*, const char*> texts[] = {{"2147483648", "Number: 6\r\n"},
                                                         {"-1", "Number: 5\r\n"}};
    for (const auto& [text, number] : texts) {
        Applying program;
        program.Text("txtTTL").SetText(text);
        program.form->WriteRegistry();
        CHECK(program.Records() == 1);
        CHECK(program.LogHas(number));
        CHECK(program.LogHas("Procedure: WriteRegistry"));
        CHECK(program.OfTcp("TcpWindowSize") == DwordValue(64));
        CHECK_FALSE(program.OfTcp("DefaultTTL"));
    }
}

TEST_CASE_FIXTURE(Applying, "the message of success follows a pass that ended at a number") {
    Text("txtRWIN").SetText("abc");
    machine.messages.Answer("Einstellungen speichern", platform::message::Yes);
    machine.messages.Answer("Systemwiederherstellungspunkt", platform::message::No);
    machine.messages.Answer("Einstellungen gespeichert", platform::message::No);
    Press("cmdApply");
    CHECK(Titles() == std::vector<std::string>{"Einstellungen speichern",
                                               "Systemwiederherstellungspunkt", "Fehler 13",
                                               "Einstellungen gespeichert"});
    CHECK(Records() == 1);
    CHECK(form->Pointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Applying,
                  "the hourglass of a failed pass stands until the window gets another pointer") {
    Text("txtRWIN").SetText("abc");
    form->WriteRegistry();
    Press("cmdSynchronizeDateTime");
    Press("cmdFreeMemory");
    CHECK(form->ShownPointer() == toolkit::Hourglass);
    // It sets the window's own pointer, as the passes do.
    form->Find<controls::chameleonButton>("cmdClearIECache").onClick();
    CHECK(form->ShownPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Applying, "a pass that comes to its end takes the hourglass away again") {
    Text("txtRWIN").SetText("abc");
    form->WriteRegistry();
    Text("txtRWIN").SetText("4711");
    form->WriteRegistry();
    CHECK(Records() == 1);
    CHECK(OfTcp("DefaultTTL") == DwordValue(64));
    CHECK(form->Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Applying, "a complaint about a number is no failure") {
    Combo("cboMTU").SetText("abc");
    form->WriteRegistry();
    CHECK(Titles() == std::vector<std::string>{"Fehler", "Fehler", "Fehler"});
    CHECK(Records() == 0);
    CHECK(OfTcp("DefaultTTL") == DwordValue(64));
    CHECK(form->Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Applying,
                  "a complaint that cannot be shown does not keep the pass from going on") {
    Combo("cboMTU").SetText("abc");
    machine.faults.FailOn("Fehler", runtime::OutOfMemory);
    form->WriteRegistry();
    CHECK(machine.journal.Calls("MessageBox").size() == 3);
    CHECK(machine.messages.Shown().empty());
    CHECK(Records() == 0);
    CHECK(OfTcp("DefaultTTL") == DwordValue(64));
    CHECK(form->Pointer() == toolkit::DefaultPointer);
}
