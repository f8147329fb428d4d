#include "endtoend/everyoptioncontrols.h"

#include <windows.h>

#include <algorithm>

#include "endtoend/dialogue.h"
#include "endtoend/optiontablewords.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

// For a message: long texts by their ends only.
std::string Short(const std::string& text) {
    if (text.size() <= 60) return '"' + text + '"';
    return '"' + text.substr(0, 30) + "\" … " + std::to_string(text.size()) + " bytes";
}

const std::string& PageOf(const std::string& control) {
    static const std::map<std::string, std::string> pages = [] {
        std::map<std::string, std::string> found;
        for (const Fact& fact : Facts()) found[fact.control] = fact.page;
        found["chkWinLogOn"] = found.at("txtWinLogOnC");
        found["txtExtensions"] = found.at("chkIEExtensions");
        return found;
    }();
    return pages.at(control);
}

// Every text must come to its end before the next control is looked at.
bool FollowsAnother(const std::string& name) {
    return name == "txtRWIN";
}

MessageBox WaitAnyBox(const Application& program, const std::string& title) {
    MessageBox box;
    Until("the message box \"" + title + "\"", [&] {
        box = program.Box();
        return box.window != nullptr;
    });
    return box;
}

bool Fits(const std::string& text, const std::string& expected) {
    constexpr char anything[] = "…";
    if (!expected.starts_with(anything)) return expected.empty() || text == expected;
    return text.ends_with(expected.substr(sizeof anything - 1));
}

}  // namespace

void ReplaceText(HWND window, const std::string& text) {
    Send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(platform::win32::ToWide(text).c_str()),
         4 * Patience);
}

OptionControls::OptionControls(const Application& program) : program_(program) {
    for (HWND window : WindowsBelow(program.Wait("frmMain"))) windows_[NameOf(window)] = window;
}

HWND OptionControls::Window(const std::string& name) const {
    const auto found = windows_.find(name);
    if (found == windows_.end()) throw Failed("there is no " + name);
    return found->second;
}

ControlStates OptionControls::Shown() const {
    ControlStates states = DesignStates();
    for (auto& [name, state] : states) {
        const HWND window = Window(name);
        if (name.starts_with("chk")) {
            state = Send(window, BM_GETCHECK) == BST_CHECKED ? "1" : "0";
        } else {
            state = TextOf(window);
        }
    }
    return states;
}

bool OptionControls::IsToChange(const std::string& name, const std::string& wanted) const {
    const HWND window = Window(name);
    if (name.starts_with("lbl") || !IsWindowEnabled(window)) return false;
    if (!name.starts_with("chk")) return TextOf(window) != wanted;
    return (Send(window, BM_GETCHECK) == BST_CHECKED) != (wanted == "1");
}

void OptionControls::SetOne(const std::string& name, const std::string& wanted) const {
    if (!IsToChange(name, wanted)) return;
    const HWND window = Window(name);
    if (!name.starts_with("chk")) {
        ReplaceText(window, wanted);
    } else {
        if (!IsWindowVisible(window)) throw Failed(name + " is not to be seen");
        Send(window, BM_CLICK);
    }
}

void OptionControls::Set(const ControlStates& wanted) const {
    const std::vector<std::string> tabs = program_.TabCaptions();
    for (std::size_t page = 0; page < tabs.size(); ++page) {
        const bool any = std::any_of(wanted.begin(), wanted.end(), [&](const auto& entry) {
            return PageOf(entry.first) == tabs[page] && IsToChange(entry.first, entry.second);
        });
        if (!any) continue;
        program_.OpenTab(static_cast<int>(page));
        for (const bool following : {false, true}) {
            for (const auto& [name, state] : wanted) {
                if (PageOf(name) == tabs[page] && FollowsAnother(name) == following) {
                    SetOne(name, state);
                }
            }
        }
    }
}

std::vector<std::string> WrongStates(const ControlStates& expected, const ControlStates& shown) {
    std::vector<std::string> wrong;
    for (const auto& [name, state] : expected) {
        const std::string& found = shown.at(name);
        if (found == state) continue;
        wrong.push_back(name + " shows " + Short(found) + ", not " + Short(state));
    }
    return wrong;
}

void AnswerBoxes(const Application& program, const std::vector<ExpectedBox>& boxes) {
    for (const auto& [title, text, button] : boxes) {
        const MessageBox box = WaitAnyBox(program, title);
        if (box.title != title || !Fits(box.text, text)) {
            throw Failed("the box \"" + box.title + "\" came, \"" + box.text + "\", not \"" +
                         title + "\", \"" + text + '"');
        }
        program.Answer(title, button);
    }
}

ExpectedBox FailureBox(int failure, const std::string& procedure) {
    return {"Fehler " + std::to_string(failure), "…Prozedur: " + procedure, IDOK};
}

std::vector<ExpectedBox> BoxesOfPass(const PassOutcome& outcome) {
    std::vector<ExpectedBox> boxes = {{RestorePointTitle, "", IDNO}};
    // Cancel cancels nothing.
    for (const std::string& complaint : outcome.complaints) {
        boxes.push_back({"Fehler", complaint, IDCANCEL});
    }
    if (outcome.failure) boxes.push_back(FailureBox(outcome.failure, "WriteRegistry"));
    boxes.push_back({DoneTitle, "", IDNO});
    return boxes;
}

void ApplyOptions(const Application& program, const ControlStates& controls,
                  const std::string& password, const PassOutcome& outcome) {
    program.Click("cmdApply");
    AnswerBoxes(program, {{ConfirmTitle, "", IDYES}});
    if (controls.at("chkAutoLogin") == "1" && !controls.at("txtALPassword").empty()) {
        program.Wait("frmPassword");
        program.SetText("frmPassword.txtPasswort", password);
        program.Click("frmPassword.cmdOK");
        if (password != controls.at("txtALPassword")) {
            AnswerBoxes(program, {{WrongPasswordTitle, "", IDOK}});
            return;
        }
    }
    AnswerBoxes(program, BoxesOfPass(outcome));
}

}  // namespace endtoend
