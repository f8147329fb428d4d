// What the labels of the page " Utilities" and their neighbours start, seen by what is started.
#include <doctest/doctest.h>

#include <algorithm>
#include <regex>

#include "endtoend/launchedtools.h"
#include "endtoend/lines.h"
#include "endtoend/looks.h"
#include "endtoend/pages.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr char NormalWindow[] = "1";

constexpr char CheckTitle[] = "Überprüfung der Windows XP Systemdateien";

// The program on its page of tools.
struct OpenPage {
    Workplace workplace;
    OpenProgram program{workplace};

    OpenPage() { program.OpenTab(UtilitiesPage); }

    // Comes back when all that the click leads to has been done.
    void ClickThrough(const std::string& name) const { Send(program.Wait(name), BM_CLICK); }

    // What was posted before has been done when the window has changed its page twice.
    void Settle() const {
        program.OpenTab(ShortcutsPage);
        program.OpenTab(UtilitiesPage);
    }
};

std::string InLowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    });
    return text;
}

// The console that its host was given in quotes, in lower case. What the shell finds through the
// working directory it may hand over without a path.
std::string ConsoleOf(const Started& started) {
    const std::size_t quote = started.commandLine.find('"') + 1;
    const std::string file =
        started.commandLine.substr(quote, started.commandLine.rfind('"') - quote);
    return InLowerCase(file.find('\\') == std::string::npos ? started.folder + '\\' + file : file);
}

// One record of the log for a program that is not there; date, time and support line aside.
constexpr char MissingProgram[] =
    "Quillmore v2\\.38 Programm Error Log\r\n\r\n"
    "[^\r\n]+\r\n\r\n\r\n"
    "Date / Time: [^\r\n]+\r\n\r\n"
    "Description: Datei nicht gefunden\r\n\r\n"
    "Source: Quillmore\r\n\r\n"
    "Number: 53\r\n\r\n"
    "Procedure: LoadExtern\r\n\r\n\r\n"
    "\\*{51}\r\n\r\n\r\n\r\n";

void AnswerMissing(const Program& program) {
    const MessageBox box = program.Answer("Fehler 53", IDOK);
    CHECK(box.text == "Datei nicht gefunden\r\n\r\nQuelle: Quillmore\r\nProzedur: LoadExtern");
}

TEST_CASE_FIXTURE(OpenPage, "the frame of tools holds these 24 labels and no others") {
    std::vector<Tool> tools(std::begin(Programs), std::end(Programs));
    tools.insert(tools.end(), std::begin(Consoles), std::end(Consoles));
    tools.insert(tools.end(), std::begin(Checks), std::end(Checks));
    tools.push_back(System);
    std::vector<std::string> expected;
    for (const Tool& tool : tools) expected.push_back(std::string(tool.label) + tool.caption);
    RECT frame = {};
    GetWindowRect(program.Wait("fraPrograms"), &frame);
    std::vector<std::string> found;
    for (const Look& look : VisibleControls(program.Find("frmMain"))) {
        RECT common = {};
        if (look.Is("Static") && IntersectRect(&common, &look.area, &frame)) {
            found.push_back(look.name + look.text);
        }
    }
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    CHECK(found.size() == 24);
    CHECK(Joined(found) == Joined(expected));
}

TEST_CASE_FIXTURE(OpenPage, "a label of a program starts it by its path, without quotes") {
    const auto standIns = At<StandIn>(Programs);
    for (std::size_t at = 0; at < standIns.size(); ++at) {
        CAPTURE(Programs[at].label);
        program.Click(Programs[at].label);
        CHECK(Describe(standIns[at]->WaitStart()) ==
              Describe({WindowsFolder() + Programs[at].file, workplace.Folder(), NormalWindow}));
    }
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "a label of a console has the shell open it in the console's folder") {
    const ConsoleHost host;
    const auto files = At<Document>(Consoles);
    for (const Tool& console : Consoles) {
        CAPTURE(console.label);
        program.Click(console.label);
        const Started started = host->WaitStart();
        CHECK(InLowerCase(started.folder) == InLowerCase(FolderOf(PathOfTool(console))));
        CHECK(ConsoleOf(started) == InLowerCase(PathOfTool(console)));
        CHECK(started.show == NormalWindow);
    }
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "the system's files are checked after Yes and not after No") {
    const StandIn checker(WindowsFolder() + "\\System32\\sfc.exe");
    program.Click("lblSFC");
    const MessageBox box = program.Answer(CheckTitle, IDNO);
    CHECK(box.text ==
          "Für diesen Vorgang benötigen Sie die Windows XP Installations CD\r\n\r\n"
          "Möchten Sie fortfahren?");
    CHECK(box.buttons == std::vector{IDYES, IDNO});
    Settle();
    CHECK_FALSE(checker.WasStarted());
    program.Click("lblSFC");
    program.Answer(CheckTitle, IDYES);
    CHECK(Describe(checker.WaitStart()) ==
          Describe({checker.Path() + " /scannow", workplace.Folder(), NormalWindow}));
}

TEST_CASE_FIXTURE(OpenPage, "the main window stands still as long as the restore tool is open") {
    const StandIn tool(SystemFolder() + "\\restore\\rstrui.exe");
    const Hold open;
    program.Click("lblRestorePoint");
    CHECK(Describe(tool.WaitStart()) == Describe({tool.Path(), workplace.Folder(), NormalWindow}));
    CHECK_FALSE(program.Responds("frmMain"));
    open.LetGo();
    Settle();
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "the label of the system leaves the program running and logs nothing") {
    ClickThrough("lblSystem");
    CHECK_FALSE(program.Box().window);
    CHECK(program.Running());
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "a program that is missing is reported under the name LoadExtern") {
    const auto places = At<EmptyPlace>(Programs);
    const EmptyPlace checker(WindowsFolder() + "\\System32\\sfc.exe");
    std::string records;
    for (const Tool& tool : Programs) {
        CAPTURE(tool.label);
        program.Click(tool.label);
        AnswerMissing(program);
        records += MissingProgram;
    }
    program.Click("lblSFC");
    program.Answer(CheckTitle, IDYES);
    AnswerMissing(program);
    CHECK(std::regex_match(workplace.Log(), std::regex(records + MissingProgram)));
}

TEST_CASE_FIXTURE(OpenPage, "a console that is missing is passed over in silence") {
    const ConsoleHost host;
    for (const Tool& console : Consoles) {
        CAPTURE(console.label);
        ClickThrough(console.label);
        CHECK_FALSE(program.Box().window);
    }
    CHECK_FALSE(host->WasStarted());
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "a restore tool that is missing is passed over in silence") {
    const EmptyPlace tool(SystemFolder() + "\\restore\\rstrui.exe");
    ClickThrough("lblRestorePoint");
    CHECK_FALSE(program.Box().window);
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "the button of the lock starts it through the shell") {
    const StandIn runner(SystemFolder() + "\\rundll32.exe");
    program.Click("cmdLockWS");
    CHECK(Describe(runner.WaitStart()) == Describe({RunnerCommand("user32.dll,LockWorkStation"),
                                                    WindowsFolder() + "\\System32", NormalWindow}));
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "a lock that cannot be started is passed over in silence") {
    const EmptyPlace runner(SystemFolder() + "\\rundll32.exe");
    ClickThrough("cmdLockWS");
    CHECK_FALSE(program.Box().window);
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "the help is handed to the browser, whether the file is there or not") {
    const StandIn runner(SystemFolder() + "\\rundll32.exe");
    const std::string help = workplace.Folder() + "\\Anleitung.mht";
    const Started expected = {"rundll32.exe url.dll,FileProtocolHandler " + help,
                              workplace.Folder(), "0"};
    REQUIRE(ReadFile(help).empty());
    program.Click("cmdHilfe");
    CHECK(Describe(runner.WaitStart()) == Describe(expected));
    WriteFile(help, "Anleitung");
    program.Click("cmdHilfe");
    CHECK(Describe(runner.WaitStart()) == Describe(expected));
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(OpenPage, "help that cannot be started says why and logs nothing") {
    const EmptyPlace runner(SystemFolder() + "\\rundll32.exe");
    program.Click("cmdHilfe");
    const MessageBox box = program.Answer("Quillmore Hilfe", IDOK);
    CHECK(box.text == "Die Hilfe kann nicht aufgerufen werden: Datei nicht gefunden");
    CHECK(workplace.Log() == "");
}

}  // namespace
}  // namespace endtoend
