#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/lines.h"
#include "endtoend/optiontable.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

// What differs from what the page should have left, a line each.
std::vector<std::string> WrongEffects(const std::vector<Effect>& effects) {
    std::vector<std::string> wrong;
    for (const auto& [place, expected] : effects) {
        const auto found = ReadValue(place);
        if (found == expected) continue;
        wrong.push_back(place.key + '|' + place.name + " is " + Describe(found) + ", not " +
                        Describe(expected));
    }
    return wrong;
}

// All that the page must have written when its boxes stand as in the baseline, or the other way
// round and with the typed texts.
std::vector<Effect> EffectsOfSystemPage(bool changed) {
    std::vector<Effect> effects;
    for (const CheckBoxFacts& box : CheckBoxesOfSystemPage()) {
        const auto& side = box.checked != changed ? box.on : box.off;
        effects.insert(effects.end(), side.begin(), side.end());
    }
    for (const TextBoxFacts& box : TextBoxesOfSystemPage()) {
        effects.push_back({box.place, BareText(changed ? box.typed : box.shown)});
    }
    for (const TextBoxFacts& box : TextBoxesOfAutoLogin()) {
        effects.push_back({box.place, std::nullopt});
        if (changed) effects.back().value = BareText(box.typed);
    }
    return effects;
}

void SetSystemPage(const Program& program, bool changed) {
    for (const CheckBoxFacts& box : CheckBoxesOfSystemPage()) {
        program.SetChecked(box.control, box.checked != changed);
    }
    for (const auto* boxes : {&TextBoxesOfSystemPage(), &TextBoxesOfAutoLogin()}) {
        for (const TextBoxFacts& box : *boxes) {
            program.SetText(box.control, changed ? box.typed : box.shown);
        }
    }
}

std::vector<std::string> WrongControls(const Program& program, bool changed) {
    std::vector<std::string> wrong;
    for (const CheckBoxFacts& box : CheckBoxesOfSystemPage()) {
        if (program.Checked(box.control) != (box.checked != changed)) wrong.push_back(box.control);
    }
    for (const auto* boxes : {&TextBoxesOfSystemPage(), &TextBoxesOfAutoLogin()}) {
        for (const TextBoxFacts& box : *boxes) {
            const std::string text = program.Text(box.control);
            if (text == (changed ? box.typed : box.shown)) continue;
            wrong.push_back(std::string(box.control) + " shows " + text);
        }
    }
    return wrong;
}

void ApplyWithPassword(const Program& program, const std::string& password) {
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    program.Wait("frmPassword");
    program.SetText("frmPassword.txtPasswort", password);
    program.Click("frmPassword.cmdOK");
    FinishApply(program);
}

TEST_CASE("page System shows what the baseline holds") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    CHECK(Joined(WrongControls(program, false)) == "");
    for (const CheckBoxFacts& box : CheckBoxesOfSystemPage()) {
        CAPTURE(box.control);
        CHECK(WithoutMarks(program.Text(box.control)) == box.caption);
        // Only the graphics driver, which this machine lacks, disables its box.
        CHECK(IsWindowEnabled(program.Find(box.control)) ==
              (box.control != std::string("chkEnableAGP4x")));
    }
    CHECK(program.SliderPosition("sldStartmenu") == 400);
    CHECK(program.Text("txtLevelValue") == "255");
    CHECK(program.Text("lblSP") == "Service Pack 3");
    CHECK(program.Text("txtProductId") == "");
    CHECK(TextOf(program.Find("frmMain")) == "Quillmore v2.38");
    CHECK_FALSE(program.PointerIsChanged("frmMain"));
}

TEST_CASE("every option of page System writes its exact bytes") {
    const Workplace workplace;
    CreateKey("HKLM", GraphicsDriverKey);
    {
        const OpenProgram program(workplace);
        SetSystemPage(program, true);
        ApplyWithPassword(program, "Geheim€ß");
        CHECK(Joined(WrongEffects(EffectsOfSystemPage(true))) == "");
        CHECK_FALSE(program.PointerIsChanged("frmMain"));
        program.CloseAndWait();
    }
    const OpenProgram program(workplace);
    CHECK(Joined(WrongControls(program, true)) == "");
    SetSystemPage(program, false);
    Apply(program);
    CHECK(Joined(WrongEffects(EffectsOfSystemPage(false))) == "");
    CHECK(workplace.Log() == "");
}

TEST_CASE("an Apply on the untouched baseline changes no more than the form of the values") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    Apply(program);
    std::vector<Effect> effects = EffectsOfSystemPage(false);
    // Without the driver's key its box stays disabled, and the key is not created.
    std::erase_if(effects, [](const Effect& effect) { return effect.place.name == "EnableVia4x"; });
    CHECK(Joined(WrongEffects(effects)) == "");
    CHECK_FALSE(KeyExists("HKLM", GraphicsDriverKey));
}

TEST_CASE("Auto-Login is on when its value is there, whatever it holds") {
    const Workplace workplace;
    const ValuePlace place = CheckBoxesOfSystemPage()[9].on[0].place;
    WriteValue(place, TerminatedText("0"));
    WriteValue(TextBoxesOfAutoLogin()[0].place, TerminatedText("Jürgen"));
    const OpenProgram program(workplace);
    CHECK(program.Checked("chkAutoLogin"));
    CHECK(program.Text("txtALUserName") == "Jürgen");
    Apply(program);
    CHECK(Describe(ReadValue(place)) == "text \"1\" 2 bytes");
}

TEST_CASE("the version boxes take three and four characters from the keyboard") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.Type("txtWindowsVersion", "5.1234");
    program.Type("txtOSBuild", "260012");
    CHECK(program.Text("txtWindowsVersion") == "5.1");
    CHECK(program.Text("txtOSBuild") == "2600");
}

TEST_CASE("the start menu's slider follows its box, and a text that is no number leaves it") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.Type("txtStartmenu", "120");
    CHECK(program.SliderPosition("sldStartmenu") == 120);
    program.SetText("txtStartmenu", "bald");
    CHECK(program.SliderPosition("sldStartmenu") == 120);
    CHECK(program.Text("txtStartmenu") == "bald");
}

}  // namespace
}  // namespace endtoend
