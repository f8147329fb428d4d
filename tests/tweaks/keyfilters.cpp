#include "tweaks/keyfilters.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "toolkit/combobox.h"
#include "toolkit/form.h"

namespace {

constexpr const char* WithBackspace[] = {"cboMTU",  "cboHTTP10", "cboHTTP11",
                                         "txtRWIN", "txtTTL",    "txtTimeOut"};
constexpr const char* DigitsOnly[] = {"txtLevelValue", "txtStartmenu"};

struct Fields {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};

    Fields() {
        for (const char* name : WithBackspace) Add(name);
        for (const char* name : DigitsOnly) Add(name);
        tweaks::ConnectKeyFilters(form, machine.beeper);
    }

    void Add(std::string name) {
        if (name.starts_with("cbo")) {
            form.Add<toolkit::ComboBox>(name);
        } else {
            form.Add<toolkit::TextBox>(name);
        }
    }

    // What is left of a typed character.
    char16_t Typed(std::string_view name, char16_t character) {
        toolkit::Control* control = form.FindControl(name);
        if (auto* box = dynamic_cast<toolkit::ComboBox*>(control)) {
            box->onKeyPress(character);
        } else {
            form.Find<toolkit::TextBox>(name).onKeyPress(character);
        }
        return character;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fields, "each filtered field lets the ten digits through, without a sound") {
    for (const auto& control : form.Controls()) {
        CAPTURE(control->Name());
        for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
            CHECK(Typed(control->Name(), digit) == digit);
        }
    }
    CHECK(machine.beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "every other key is swallowed with one beep") {
    for (const auto& control : form.Controls()) {
        CAPTURE(control->Name());
        // The neighbours of the digits, letters, the signs of numbers, digits of other scripts.
        for (const char16_t character : {u'/', u':', u'a', u'Z', u'-', u'+', u',', u'.', u' ', u'²',
                                         u'٣', u'０', u'\t', u'\r', u'\x1B', u'\x7F', u'\xFFFF'}) {
            CAPTURE(static_cast<unsigned>(character));
            const int before = machine.beeper.beeps;
            CHECK(Typed(control->Name(), character) == 0);
            CHECK(machine.beeper.beeps == before + 1);
        }
    }
}

TEST_CASE_FIXTURE(Fields, "Backspace passes in the fields of the network and of the waiting time") {
    for (const char* name : WithBackspace) {
        CAPTURE(name);
        CHECK(Typed(name, 8) == 8);
    }
    CHECK(machine.beeper.beeps == 0);
}

TEST_CASE_FIXTURE(Fields, "Backspace is refused beside the sliders") {
    for (const char* name : DigitsOnly) {
        CAPTURE(name);
        CHECK(Typed(name, 8) == 0);
    }
    CHECK(machine.beeper.beeps == 2);
    CHECK(machine.journal.Lines() == std::vector<std::string>{"MessageBeep", "MessageBeep"});
}

TEST_CASE_FIXTURE(Fields, "a text set by the program is not filtered") {
    form.Find<toolkit::ComboBox>("cboMTU").SetText("abc");
    form.Find<toolkit::TextBox>("txtTTL").SetText("abc");
    CHECK(form.Find<toolkit::ComboBox>("cboMTU").Text() == "abc");
    CHECK(form.Find<toolkit::TextBox>("txtTTL").Text() == "abc");
    CHECK(machine.beeper.beeps == 0);
}

TEST_CASE("fields that the form lacks are passed over, and other fields stay free") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmMain", "", {});
    auto& level = form.Add<toolkit::TextBox>("txtLevelValue");
    auto& name = form.Add<toolkit::TextBox>("txtALUserName");
    auto& other = form.Add<toolkit::CheckBox>("txtRWIN", "");
    tweaks::ConnectKeyFilters(form, machine.beeper);
    CHECK(level.onKeyPress);
    CHECK_FALSE(name.onKeyPress);
    CHECK(other.Value() == 0);
}
