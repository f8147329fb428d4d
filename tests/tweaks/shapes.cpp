// The shapes of rows, each on a row of its own, whatever the catalogue holds.
#include <doctest/doctest.h>

#include "platform/messages.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"
#include "tweaks/pagefixture.h"
#include "tweaks/steps.h"

using namespace tweak_tests;
using namespace tweaks;
using registry::HKCU;
using registry::HKLM;

namespace {

struct Shapes {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.services.forms, "frmMain", "", {}};
    toolkit::CheckBox& box = form.Add<toolkit::CheckBox>("chkBox", "");
    toolkit::CheckBox& other = form.Add<toolkit::CheckBox>("chkOther", "");
    toolkit::TextBox& text = form.Add<toolkit::TextBox>("txtText");
    toolkit::ComboBox& combo = form.Add<toolkit::ComboBox>("cboCombo");
    toolkit::Label& label = form.Add<toolkit::Label>("lblLabel(3)", "");
    registry::Registry values{machine.registry, machine.locale};
    PassContext pass{form, values, machine.locale.Signs(), machine.services};

    void Put(std::string_view key, std::string_view value, const char* content) {
        machine.registry.Put(Service::CurrentUser, key, value, TextValue(content));
    }
    auto Of(std::string_view key, std::string_view value) const {
        return machine.registry.Value(Service::CurrentUser, key, value);
    }
    bool HasKey(std::string_view key) const {
        return machine.registry.HasKey(Service::CurrentUser, key);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Shapes, "an edit field may be a text box, a combo box or a label") {
    Put("K", "v", "Wert ä");
    for (const char* control : {"txtText", "cboCombo", "lblLabel(3)"}) {
        CAPTURE(control);
        const Option row{.control = control, .place = {HKCU, "K", "v"}};
        ReadOption(pass, row);
        CHECK(TextOfControl(form, control) == "Wert ä");
    }
    CHECK(combo.Text() == "Wert ä");
    CHECK(label.Caption() == "Wert ä");
    combo.SetText("neu");
    const Option row{
        .control = "cboCombo", .place = {HKCU, "K", "v"}, .always = {TextOf("cboCombo")}};
    WriteOption(pass, row);
    CHECK(Of("K", "v") == BareTextValue("neu"));
}

TEST_CASE_FIXTURE(Shapes, "a text of lower or upper case is folded before it is compared") {
    const Option lower{
        .control = "chkBox", .place = {HKCU, "K", "v"}, .onWhen = {LowerEquals("yes")}};
    const Option upper{
        .control = "chkOther", .place = {HKCU, "K", "v"}, .onWhen = {UpperEquals("YES")}};
    for (const char* content : {"yes", "YES", "yEs"}) {
        box.SetValue(0);
        other.SetValue(0);
        Put("K", "v", content);
        ReadOption(pass, lower);
        ReadOption(pass, upper);
        CHECK(box.Value() == 1);
        CHECK(other.Value() == 1);
    }
    Put("K", "v", "yes ");
    ReadOption(pass, lower);
    ReadOption(pass, upper);
    CHECK(box.Value() == 0);
    CHECK(other.Value() == 0);
}

TEST_CASE_FIXTURE(Shapes, "no number is at least every number, and so is an absent value") {
    const Option row{.control = "chkBox", .place = {HKCU, "K", "v"}, .onWhen = {AtLeast(2)}};
    ReadOption(pass, row);
    CHECK(box.Value() == 1);
    const std::pair<const char*, int> contents[] = {{"1", 0},  {"2", 1},   {"3", 1},    {"-5", 0},
                                                    {"", 1},   {"x", 1},   {"1,99", 0}, {"2,5", 1},
                                                    {" 2", 1}, {"&H1", 0}, {"02", 1}};
    for (const auto& [content, state] : contents) {
        CAPTURE(content);
        Put("K", "v", content);
        box.SetValue(1 - state);
        ReadOption(pass, row);
        CHECK(box.Value() == state);
    }
}

TEST_CASE_FIXTURE(Shapes, "a step goes to its own root, key and value where it names one") {
    const Option row{
        .control = "chkBox",
        .place = {HKCU, "K", "v"},
        .onWhen = {Present()},
        .on = {Dword(1), Text("a").To("w"), Dword(2).In("L"), Text("b").Under(HKLM).In("M").To("x"),
               Binary("c").To("y"), DeleteValue().To("z")},
        .off = {DeleteKey().Under(HKLM).In("M"), DeleteKey()},
    };
    Put("K", "z", "weg");
    box.SetValue(1);
    WriteOption(pass, row);
    CHECK(Of("K", "v") == DwordValue(1));
    CHECK(Of("K", "w") == BareTextValue("a"));
    CHECK(Of("L", "v") == DwordValue(2));
    CHECK(machine.registry.Value(Service::LocalMachine, "M", "x") == BareTextValue("b"));
    CHECK(Of("K", "y")->type == Service::Binary);
    CHECK_FALSE(Of("K", "z"));
    box.SetValue(0);
    WriteOption(pass, row);
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, "M"));
    CHECK_FALSE(HasKey("K"));
    CHECK(HasKey("L"));
}

TEST_CASE_FIXTURE(Shapes, "a box goes along with a check box wherever its step is written") {
    const Option row{
        .control = "chkBox",
        .place = {HKCU, "K", "v"},
        .onWhen = {Present()},
        .on = {Text("1"), TextOf("txtText").Under(HKLM).In("L").To("w")},
        .off = {DeleteValue()},
    };
    text.SetText("hin");
    box.SetValue(1);
    WriteOption(pass, row);
    text.SetText("");
    ReadOption(pass, row);
    CHECK(text.Text() == "hin");
}

TEST_CASE_FIXTURE(Shapes, "a field's own text is written without naming the field again") {
    const Option row{.control = "txtText", .place = {HKCU, "K", "v"}, .always = {TextOfOwn()}};
    text.SetText("selbst");
    WriteOption(pass, row);
    CHECK(Of("K", "v") == BareTextValue("selbst"));
}

TEST_CASE_FIXTURE(Shapes, "each side has its own guard on the option's own place") {
    const Option row{
        .control = "chkBox",
        .place = {HKCU, "K", "v"},
        .on = {DeleteKey()},
        .off = {Text("").To("a"), Text("").To("b")},
        .onGuard = Guard::KeyPresent,
        .offGuard = Guard::KeyAbsent,
    };
    box.SetValue(1);
    WriteOption(pass, row);
    CHECK(machine.journal.Calls("RegDeleteKeyA").empty());
    box.SetValue(0);
    WriteOption(pass, row);
    CHECK(Of("K", "a") == BareTextValue(""));
    CHECK(Of("K", "b") == BareTextValue(""));
    machine.registry.Erase(Service::CurrentUser, "K", "b");
    WriteOption(pass, row);
    CHECK_FALSE(Of("K", "b"));
    box.SetValue(1);
    WriteOption(pass, row);
    CHECK_FALSE(HasKey("K"));
}

TEST_CASE_FIXTURE(Shapes, "a key that others watch over is present only to those who may write") {
    const Option row{.control = "chkBox",
                     .place = {HKCU, "K", "v"},
                     .on = {Dword(1)},
                     .off = {Text("a")},
                     .offGuard = Guard::KeyAbsent};
    machine.registry.MakeKey(Service::CurrentUser, "K");
    machine.registry.Deny(Service::CurrentUser, "K", Service::MaySetValue);
    WriteOption(pass, row);
    CHECK_FALSE(Of("K", "v"));
}

namespace {

constexpr Option NumberRow{
    .control = "cboCombo",
    .place = {HKCU, "K", "v"},
    .always = {NumberOf("cboCombo").IfNumeric("cboCombo", "falsch"),
               NumberOf("cboCombo").In("L").IfNumeric("cboCombo", "auch falsch"),
               Dword(7).To("after")},
};
// Tests one box and writes another.
constexpr Option CrossedRow{
    .control = "txtText",
    .place = {HKCU, "K", "w"},
    .always = {NumberOf("txtText").IfNumeric("cboCombo", "gekreuzt")},
};

}  // namespace

TEST_CASE_FIXTURE(Shapes, "a numeric field is written as a number to all of its keys") {
    const std::pair<const char*, std::uint32_t> contents[] = {
        {"1492", 1492}, {"1e3", 1000}, {"2,5", 2}, {"3,5", 4}, {" 7 ", 7}, {"&H10", 16}};
    for (const auto& [content, number] : contents) {
        CAPTURE(content);
        combo.SetText(content);
        WriteOption(pass, NumberRow);
        CHECK(Of("K", "v") == DwordValue(number));
        CHECK(Of("L", "v") == DwordValue(number));
    }
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Shapes, "a field that is no number is passed over with a message for each key") {
    for (const char* content : {"", "abc"}) {
        CAPTURE(content);
        Shapes fresh;
        fresh.combo.SetText(content);
        fresh.machine.messages.Answer("Fehler", platform::message::Cancel);
        fresh.machine.messages.Answer("Fehler", platform::message::Ok);
        WriteOption(fresh.pass, NumberRow);
        CHECK(fresh.machine.messages.Shown() ==
              std::vector<platform::simulated::ShownMessage>{{"Fehler", "falsch", 1 + 48},
                                                             {"Fehler", "auch falsch", 1 + 48}});
        CHECK_FALSE(fresh.Of("K", "v"));
        CHECK_FALSE(fresh.HasKey("L"));
        // Cancel cancels nothing.
        CHECK(fresh.Of("K", "after") == DwordValue(7));
    }
}

TEST_CASE_FIXTURE(Shapes,
                  "the numeric test looks at the box that is named, not at the written one") {
    text.SetText("12");
    combo.SetText("");
    machine.messages.Answer("Fehler", platform::message::Ok);
    WriteOption(pass, CrossedRow);
    CHECK(machine.messages.Shown().size() == 1);
    CHECK_FALSE(Of("K", "w"));
    combo.SetText("1");
    WriteOption(pass, CrossedRow);
    CHECK(Of("K", "w") == DwordValue(12));
}

TEST_CASE_FIXTURE(Shapes, "a text that does not convert is a failure and writes nothing") {
    const auto failureOf = [&](const char* content) {
        text.SetText(content);
        return FailureOf([&] { WriteOption(pass, CrossedRow); });
    };
    combo.SetText("1");
    CHECK(failureOf("abc") == runtime::TypeMismatch);
    CHECK(failureOf("") == runtime::TypeMismatch);
    CHECK(failureOf("2147483648") == runtime::Overflow);
    CHECK(failureOf("-1") == runtime::InvalidProcedureCall);
    CHECK_FALSE(Of("K", "w"));
    CHECK(failureOf("2147483647") == 0);
    CHECK(Of("K", "w") == DwordValue(2147483647));
}

TEST_CASE_FIXTURE(Shapes, "a field decided by a check box writes that box's side") {
    const Option row{
        .control = "txtText",
        .place = {HKCU, "K", "v"},
        .decidedBy = "chkBox",
        .on = {TextOf("txtText")},
        .off = {Text("")},
    };
    text.SetText("Meldung");
    box.SetValue(1);
    WriteOption(pass, row);
    CHECK(Of("K", "v") == BareTextValue("Meldung"));
    box.SetValue(0);
    WriteOption(pass, row);
    CHECK(Of("K", "v") == BareTextValue(""));
    CHECK(text.Text() == "Meldung");
    Put("K", "v", "gelesen");
    ReadOption(pass, row);
    CHECK(text.Text() == "gelesen");
    CHECK(box.Value() == 0);
}

namespace {

constexpr Option TwoKeysRow{
    .control = "chkBox",
    .place = {HKCU, "10", "v"},
    .laterKey = "11",
    .onWhen = {NotEmpty()},
    .on = {Dword(3).To("level"), TextOf("txtText")},
    .off = {Dword(3).To("level"), Text("")},
};

}  // namespace

TEST_CASE_FIXTURE(Shapes, "of two keys the later one's reading stands, even when it is absent") {
    Put("10", "v", "exe");
    box.SetValue(1);
    text.SetText("alt");
    ReadOption(pass, TwoKeysRow);
    CHECK(box.Value() == 0);
    CHECK(text.Text() == "");
    Put("11", "v", "zip");
    ReadOption(pass, TwoKeysRow);
    CHECK(box.Value() == 1);
    CHECK(text.Text() == "zip");
}

TEST_CASE_FIXTURE(Shapes, "both of two keys are asked, a text twice: whether it is, and what") {
    Put("10", "v", "exe");
    Put("11", "v", "zip");
    ReadOption(pass, TwoKeysRow);
    std::string asked;
    for (const std::string& line : machine.journal.Calls("RegOpenKeyExA")) {
        asked += line.substr(line.find('"'), 4) + ' ';
    }
    CHECK(asked == "\"10\" \"10\" \"11\" \"11\" ");
}

TEST_CASE_FIXTURE(Shapes, "of two keys the first that is there is written, and none is made") {
    box.SetValue(1);
    text.SetText("exe");
    WriteOption(pass, TwoKeysRow);
    CHECK_FALSE(HasKey("10"));
    CHECK_FALSE(HasKey("11"));
    machine.registry.MakeKey(Service::CurrentUser, "11");
    WriteOption(pass, TwoKeysRow);
    CHECK_FALSE(HasKey("10"));
    CHECK(Of("11", "v") == BareTextValue("exe"));
    CHECK(Of("11", "level") == DwordValue(3));
    machine.registry.MakeKey(Service::CurrentUser, "10");
    box.SetValue(0);
    WriteOption(pass, TwoKeysRow);
    CHECK(Of("10", "v") == BareTextValue(""));
    CHECK(Of("10", "level") == DwordValue(3));
    CHECK(Of("11", "v") == BareTextValue("exe"));
}

TEST_CASE_FIXTURE(Shapes,
                  "a condition that does not hold may clear another box and leave its own") {
    const Option row{
        .control = "chkBox",
        .place = {HKCU, "K", "v"},
        .onWhen = {Equals("Yes")},
        .otherwiseClears = "chkOther",
    };
    for (int before : {0, 1}) {
        for (const char* content : {"yes", "No", ""}) {
            CAPTURE(content);
            Put("K", "v", content);
            box.SetValue(before);
            other.SetValue(1);
            ReadOption(pass, row);
            CHECK(box.Value() == before);
            CHECK(other.Value() == 0);
        }
    }
    Put("K", "v", "Yes");
    box.SetValue(0);
    other.SetValue(1);
    ReadOption(pass, row);
    CHECK(box.Value() == 1);
    CHECK(other.Value() == 1);
}

TEST_CASE_FIXTURE(Shapes, "an option without steps is not written") {
    const Option row{
        .control = "chkBox", .place = {HKCU, "K", "v"}, .onWhen = {LowerEquals("yes")}};
    WriteOption(pass, row);
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(Shapes, "a grey check box is written as off") {
    const Option row{
        .control = "chkBox", .place = {HKCU, "K", "v"}, .on = {Dword(1)}, .off = {Dword(0)}};
    box.SetValue(2);
    WriteOption(pass, row);
    CHECK(Of("K", "v") == DwordValue(0));
}
