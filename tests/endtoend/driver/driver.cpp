// Drives a running program from scripts; README.md beside this file lists the commands.
#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "endtoend/driver/picture.h"
#include "endtoend/lists.h"
#include "endtoend/looks.h"
#include "endtoend/program.h"
#include "endtoend/registrydump.h"
#include "endtoend/registryfile.h"
#include "endtoend/registrystate.h"
#include "platform/win32/text.h"

namespace {

using endtoend::Application;
using endtoend::Failed;
using platform::win32::FromWide;
using Words = std::vector<std::string>;

// The command line could not be understood.
struct Misused {};

// Whatever stands on the desktop, of any process.
const Application desktop(0);

void Print(const std::string& line) {
    std::printf("%s\n", line.c_str());
}

// On one line, as one column of a table.
std::string Flat(std::string text) {
    const std::map<char, std::string> marks = {{'\r', "\\r"}, {'\n', "\\n"}, {'\t', "\\t"}};
    std::string flat;
    for (const char character : text) {
        const auto mark = marks.find(character);
        flat += mark == marks.end() ? std::string(1, character) : mark->second;
    }
    return flat;
}

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw Failed("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void StartProgram(const Words& words) {
    std::string arguments;
    for (std::size_t at = 1; at < words.size(); ++at) {
        arguments += (at > 1 ? " " : "") + words[at];
    }
    endtoend::Program program(words[0], arguments);
    endtoend::Until("a window of the program", [&] {
        if (!program.Running()) throw Failed("the program ended at once");
        return !program.Forms().empty() || program.Box().window;
    });
    Print(std::to_string(program.Process()));
    program.LetGo();
}

void ClickTab(const Words& words) {
    const auto plain = [](const std::string& caption) {
        const std::size_t begin = caption.find_first_not_of(' ');
        return begin == std::string::npos ? "" : caption.substr(begin);
    };
    int page = 0;
    for (const std::string& caption : desktop.TabCaptions()) {
        if (plain(caption) == plain(words[0])) return desktop.OpenTab(page);
        ++page;
    }
    throw Failed("there is no tab " + words[0]);
}

const std::map<std::string, int> AnswerWords = {
    {"yes", IDYES}, {"no", IDNO}, {"ok", IDOK}, {"cancel", IDCANCEL}};

void AnswerBox(const Words& words) {
    const auto button = AnswerWords.find(words[1]);
    if (button == AnswerWords.end()) throw Misused();
    Print(desktop.Answer(words[0], button->second).text);
}

void ShowBox(const Words&) {
    endtoend::MessageBox box;
    endtoend::Until("a message box", [&] {
        box = desktop.Box();
        return box.window != nullptr;
    });
    Print(box.title);
    Print(box.text);
    std::string buttons;
    for (const auto& [word, id] : AnswerWords) {
        for (const int shown : box.buttons) {
            if (shown == id) buttons += (buttons.empty() ? "" : " ") + word;
        }
    }
    Print(buttons);
}

void DumpWindow(HWND window) {
    const std::string windowClass = endtoend::ClassOf(window);
    const LONG type = GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
    const bool hasCheck = windowClass == "Button" && type != BS_GROUPBOX && type > BS_DEFPUSHBUTTON;
    const std::string checked =
        hasCheck ? std::to_string(endtoend::Send(window, BM_GETCHECK)) : "-";
    RECT area = {};
    GetWindowRect(window, &area);
    Print(endtoend::NameOf(window) + '\t' + windowClass + '\t' + Flat(endtoend::TextOf(window)) +
          '\t' + checked + '\t' + (IsWindowEnabled(window) ? "enabled" : "disabled") + '\t' +
          (IsWindowVisible(window) ? "visible" : "hidden") + '\t' + std::to_string(area.left) +
          ',' + std::to_string(area.top) + ',' + std::to_string(area.right) + ',' +
          std::to_string(area.bottom));
}

void DumpAll(const Words&) {
    for (HWND form : desktop.TopLevel()) {
        if (endtoend::NameOf(form).empty()) continue;
        DumpWindow(form);
        for (HWND window : endtoend::WindowsBelow(form)) {
            if (!endtoend::NameOf(window).empty()) DumpWindow(window);
        }
    }
}

void ShowLooks(const Words& words) {
    const Words crooked = endtoend::Crooked(desktop, desktop.Wait(words[0]));
    for (const std::string& line : crooked) Print(line);
    if (!crooked.empty()) throw Failed(std::to_string(crooked.size()) + " things are crooked");
}

void Shoot(const Words& words) {
    HWND window = desktop.Box().window;
    if (!window && !desktop.Forms().empty()) window = desktop.Forms().front();
    if (!window) throw Failed("there is no form and no message box");
    endtoend::WritePicture(window, words[0]);
}

void WriteRegistryDump(const Words& words) {
    std::ofstream file(words[0], std::ios::binary);
    if (!file) throw Failed("cannot write " + words[0]);
    for (const auto& [path, value] : endtoend::SnapshotOfMachine()) {
        file << path << (value ? '\t' + Flat(endtoend::Describe(value)) : "") << '\n';
    }
}

// The catalogue lies beside the driver.
void PutBaselineOf(const Words& words) {
    wchar_t path[MAX_PATH];
    const std::string own = FromWide({path, GetModuleFileNameW(nullptr, path, MAX_PATH)});
    const std::string folder = own.substr(0, own.find_last_of('\\'));
    endtoend::PutBaseline(FileText(words[0]), FileText(folder + "\\catalogue.tsv"));
}

int NumberIn(const std::string& word) {
    char* end = nullptr;
    const long number = std::strtol(word.c_str(), &end, 10);
    if (word.empty() || *end) throw Misused();
    return static_cast<int>(number);
}

endtoend::Rows RowsOf(const Words& words) {
    return endtoend::Rows(desktop.Wait(words[0]));
}

void ShowRows(const Words& words) {
    const endtoend::Rows rows = RowsOf(words);
    const auto line = [](std::string start, const Words& texts) {
        for (const std::string& text : texts) start += '\t' + Flat(text);
        Print(start);
    };
    line("row\ttick\tselected", rows.Headers());
    for (int row = 0; row < rows.Count(); ++row) {
        line(std::to_string(row) + '\t' + (rows.Ticked(row) ? 'x' : '-') + '\t' +
                 (rows.Selected(row) ? "selected" : "-"),
             rows.Texts(row));
    }
}

void TickRow(const Words& words) {
    if (words[2] != "0" && words[2] != "1") throw Misused();
    RowsOf(words).SetTicked(NumberIn(words[1]), words[2] == "1");
}

void ChooseOfRow(const Words& words) {
    RowsOf(words).PressRightButton(NumberIn(words[1]));
    endtoend::ChooseFromMenu(desktop, NumberIn(words[2]));
}

void ShowLines(const Words& words) {
    for (const std::string& line : endtoend::LinesOf(desktop.Wait(words[0]))) Print(Flat(line));
}

void ShowProgress(const Words& words) {
    const HWND bar = desktop.Wait(words[0]);
    Print(std::to_string(endtoend::Send(bar, PBM_GETPOS)) + ' ' +
          std::to_string(endtoend::Send(bar, PBM_GETRANGE, FALSE)));
}

void SetCheckBox(const Words& words) {
    if (words[1] != "0" && words[1] != "1") throw Misused();
    desktop.SetChecked(words[0], words[1] == "1");
}

struct Command {
    std::size_t words;
    void (*run)(const Words&);
};

const std::map<std::string, Command> Commands = {
    {"start", {1, StartProgram}},
    {"wait", {1, [](const Words& words) { desktop.Wait(words[0]); }}},
    {"gone", {1, [](const Words& words) { desktop.WaitGone(words[0]); }}},
    {"click", {1, [](const Words& words) { desktop.Click(words[0]); }}},
    {"tab", {1, ClickTab}},
    {"check", {2, SetCheckBox}},
    {"text", {2, [](const Words& words) { desktop.SetText(words[0], words[1]); }}},
    {"get", {1, [](const Words& words) { Print(desktop.Text(words[0])); }}},
    {"checked", {1, [](const Words& words) { Print(desktop.Checked(words[0]) ? "1" : "0"); }}},
    {"box", {0, ShowBox}},
    {"answer", {2, AnswerBox}},
    {"rows", {1, ShowRows}},
    {"row", {2, [](const Words& words) { RowsOf(words).Click(NumberIn(words[1])); }}},
    {"double", {2, [](const Words& words) { RowsOf(words).DoubleClick(NumberIn(words[1])); }}},
    {"tick", {3, TickRow}},
    {"header", {2, [](const Words& words) { RowsOf(words).ClickHeader(NumberIn(words[1])); }}},
    {"menu", {3, ChooseOfRow}},
    {"lines", {1, ShowLines}},
    {"progress", {1, ShowProgress}},
    {"dump", {0, DumpAll}},
    {"looks", {1, ShowLooks}},
    {"shot", {1, Shoot}},
    {"registry", {1, WriteRegistryDump}},
    {"baseline", {1, PutBaselineOf}},
    {"close",
     {0,
      [](const Words&) {
          desktop.Close();
          desktop.WaitGone("frmMain");
      }}},
};

Words CommandLine() {
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    Words line;
    for (int at = 1; at < count; ++at) line.push_back(FromWide(words[at]));
    LocalFree(words);
    return line;
}

int RunCommand(Words words) {
    if (words.empty()) throw Misused();
    const auto command = Commands.find(words[0]);
    if (command == Commands.end()) throw Misused();
    words.erase(words.begin());
    const bool takesMore = command->first == "start";
    const std::size_t wanted = command->second.words;
    if (words.size() < wanted || (words.size() > wanted && !takesMore)) throw Misused();
    command->second.run(words);
    return 0;
}

}  // namespace

int main() {
    try {
        return RunCommand(CommandLine());
    } catch (const Misused&) {
        std::fprintf(stderr, "driver: not understood; the commands are in driver/README.md\n");
        return 2;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "driver: %s\n", failure.what());
        return 1;
    }
}
