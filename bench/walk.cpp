// Measures the walk of the clean-up through a tree of its own, against bare loops of FindFirstFileW
// over the same tree: interleaved pairs, medians. First without a screen, through two sizes of
// tree; then with the work that each file brings there, of which the bare loop makes the same
// calls. Each hit is asked for once more by both. Call: walk [pairs]
#include <windows.h>

#include <shlwapi.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/folderobjects.h"
#include "cleanup/folderwalk.h"
#include "cleanup/knownlinks.h"
#include "cleanup/tempfilesframe.h"
#include "platform/display.h"
#include "platform/machinewith.h"
#include "platform/simulated/machine.h"
#include "platform/win32/folders.h"
#include "platform/win32/machine.h"
#include "platform/win32/text.h"
#include "platform/win32/windows/windowhost.h"
#include "processortime.h"
#include "toolkit/form.h"

namespace {

constexpr int FilesInFolder = 100;
constexpr int FilesForAHit = 5;
constexpr int FewFolders = 20;
constexpr int ManyFolders = 100;
constexpr int FoldersWithScreen = 10;

[[noreturn]] void Fail(const char* what) {
    std::printf("walk: %s (error %lu)\n", what, GetLastError());
    std::exit(1);
}

constexpr wchar_t TreeName[] = L"QuillmoreWalk";

// What runs that were ended from outside have left would make each search in this prefix long.
void RemoveLeftovers(const std::filesystem::path& temp) {
    std::vector<std::filesystem::path> left;
    for (const auto& entry : std::filesystem::directory_iterator(temp)) {
        if (entry.path().filename().wstring().starts_with(TreeName)) left.push_back(entry.path());
    }
    for (const auto& tree : left) std::filesystem::remove_all(tree);
}

// A folder of folders with empty files, taken away at the end.
class Tree {
  public:
    explicit Tree(int folders) {
        wchar_t temp[MAX_PATH];
        if (!GetTempPathW(MAX_PATH, temp)) Fail("no folder for the tree");
        RemoveLeftovers(temp);
        root = std::wstring(temp) + TreeName + std::to_wstring(GetCurrentProcessId()) + L" " +
               std::to_wstring(GetTickCount());
        Make(root);
        for (int folder = 0; folder < folders; ++folder) {
            const std::wstring path = root + L"\\" + std::to_wstring(folder);
            Make(path);
            for (int file = 0; file < FilesInFolder; ++file) {
                const wchar_t* type = file % FilesForAHit == 0 ? L".tmp" : L".txt";
                const std::wstring name = path + L"\\Datei " + std::to_wstring(file) + type;
                const HANDLE made = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                                FILE_ATTRIBUTE_NORMAL, nullptr);
                if (made == INVALID_HANDLE_VALUE) Fail("a file cannot be made");
                CloseHandle(made);
                made_.push_back(name);
            }
        }
    }
    ~Tree() {
        for (const std::wstring& file : made_) DeleteFileW(file.c_str());
        for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder) {
            RemoveDirectoryW(folder->c_str());
        }
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    std::wstring root;
    int Files() const { return static_cast<int>(made_.size()); }

  private:
    void Make(const std::wstring& path) {
        if (!CreateDirectoryW(path.c_str(), nullptr)) Fail("a folder cannot be made");
        folders_.push_back(path);
    }

    std::vector<std::wstring> folders_;
    std::vector<std::wstring> made_;
};

using Visit = std::function<void(const std::wstring& path)>;

int BareLoop(const std::wstring& folder, const Visit& visitFolder, const Visit& visitFile) {
    if (visitFolder) visitFolder(folder);
    std::vector<std::wstring> folders;
    int files = 0;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) Fail("a folder cannot be read");
    do {
        if (!std::wcscmp(data.cFileName, L".") || !std::wcscmp(data.cFileName, L"..")) continue;
        if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            folders.push_back(folder + L"\\" + data.cFileName);
        } else {
            ++files;
            const bool isHit = std::wstring_view(data.cFileName).ends_with(L".tmp");
            if (!isHit && !visitFile) continue;
            const std::wstring path = folder + L"\\" + data.cFileName;
            WIN32_FILE_ATTRIBUTE_DATA now;
            if (isHit && !GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &now)) {
                Fail("a file has gone");
            }
            if (visitFile) visitFile(path);
        }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    for (const std::wstring& below : folders) files += BareLoop(below, visitFolder, visitFile);
    return files;
}

// The calls that a walk with a screen makes, on two plain windows.
struct BareScreen {
    BareScreen() {
        const auto label = [&](int top) {
            return CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOPREFIX, 10, top, 400,
                                 13, owner, nullptr, nullptr, nullptr);
        };
        summary = label(10);
        current = label(40);
        for (HWND window : {owner, summary, current}) {
            SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        }
        ShowWindow(owner, SW_SHOW);
        UpdateWindow(owner);
    }
    ~BareScreen() {
        DestroyWindow(owner);
        DeleteObject(font);
    }
    BareScreen(const BareScreen&) = delete;
    BareScreen& operator=(const BareScreen&) = delete;

    void Enter() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        GetAsyncKeyState(VK_ESCAPE);
    }
    void Show(const std::wstring& path) {
        ++files;
        const std::wstring counts = L"Gescannte Dateien: " + std::to_wstring(files) +
                                    L" - davon Tempdateien: " +
                                    std::to_wstring(files / FilesForAHit);
        SetWindowTextW(summary, counts.c_str());
        char buffer[MAX_PATH + 1] = "";
        WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, buffer, MAX_PATH, nullptr, nullptr);
        const HDC context = GetDC(owner);
        const HGDIOBJ before = SelectObject(context, font);
        PathCompactPathA(context, buffer, 300);
        SelectObject(context, before);
        ReleaseDC(owner, context);
        SetWindowTextA(current, buffer);
        UpdateWindow(current);
        GetAsyncKeyState(VK_ESCAPE);
    }

    HWND owner = CreateWindowW(L"STATIC", L"Bare", WS_OVERLAPPEDWINDOW, 100, 100, 666, 528, nullptr,
                               nullptr, nullptr, nullptr);
    // The program's own, since painting it is what takes the time.
    HFONT font = CreateFontW(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                             OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                             DEFAULT_PITCH, L"Tahoma");
    HWND summary = nullptr;
    HWND current = nullptr;
    int files = 0;
};

struct Walks {
    bench::Costs ours;
    bench::Costs bare;
};

// Each of the two is told how many files it saw.
Walks Compare(int pairs, int files, const std::function<int()>& ours,
              const std::function<int()>& bare) {
    const std::wstring own = bench::ProcessOf("walk.exe");
    Walks walks;
    const auto measure = [&](const std::function<int()>& walk) {
        int seen = 0;
        const bench::Cost cost = bench::CostOf(own, [&] { seen = walk(); });
        if (seen != files) Fail("a walk has not seen all files");
        return cost;
    };
    // The first of each warms up what both need.
    measure(ours);
    measure(bare);
    for (int pair = 0; pair < pairs; ++pair) {
        walks.ours.Add(measure(ours));
        walks.bare.Add(measure(bare));
    }
    return walks;
}

// The frame on a form of the given machine, and a walk through a folder with it.
struct Walk {
    explicit Walk(platform::Machine& on)
        : machine(on),
          form(on.forms, "frmMain", "Quillmore", {1500, 1500, 9990, 7920}),
          frame(form, on) {}

    int Through(const std::wstring& root) {
        frame.InitFilesView();
        cleanup::KnownLinks links;
        cleanup::FolderWalk walk(frame, machine, links);
        walk.Begin();
        // As a search does: its rows are painted at the end.
        frame.lvwFiles.LockWindow();
        walk.ScanFolder(cleanup::GetFolder(machine.folders, platform::win32::FromWide(root)),
                        false);
        frame.lvwFiles.UnlockWindow();
        if (frame.lvwFiles.Count() * FilesForAHit != walk.ScannedFiles()) Fail("rows are missing");
        return walk.ScannedFiles();
    }

    platform::Machine& machine;
    toolkit::Form form;
    cleanup::TempFilesFrame frame;
};

// No screen shows no path.
class NoDisplay final : public platform::Display {
  public:
    toolkit::Size Size() const override { return {}; }
    std::string CompactPath(const toolkit::Form&, std::string_view, int) const override {
        return "";
    }
};

Walks WithoutScreen(int pairs, int folderCount) {
    const Tree tree(folderCount);
    platform::simulated::Machine simulated;
    simulated.journal.Record(false);
    platform::win32::Folders folders;
    NoDisplay display;
    platform::Machine machine =
        platform::With(simulated.services, {.folders = &folders, .display = &display});
    Walk walk(machine);
    return Compare(
        pairs, tree.Files(), [&] { return walk.Through(tree.root); },
        [&] { return BareLoop(tree.root, nullptr, nullptr); });
}

Walks WithScreen(int pairs) {
    const Tree tree(FoldersWithScreen);
    platform::win32::Messages messages;
    platform::win32::WindowHost host(messages);
    platform::win32::Machine windows(host);
    platform::simulated::Machine simulated;
    simulated.journal.Record(false);
    // A row's own texts are not the screen's work.
    platform::Machine machine =
        platform::With(windows.services,
                       {.shell = &simulated.services.shell, .locale = &simulated.services.locale});
    Walk walk(machine);
    walk.form.SetLayout(walk.frame.Layout());
    walk.form.Load();
    walk.form.Show();
    BareScreen screen;
    host.DoEvents();
    return Compare(
        pairs, tree.Files(), [&] { return walk.Through(tree.root); },
        [&] {
            return BareLoop(
                tree.root, [&](const std::wstring&) { screen.Enter(); },
                [&](const std::wstring& path) { screen.Show(path); });
        });
}

}  // namespace

int main(int count, char** arguments) {
    const int pairs = count > 1 ? std::atoi(arguments[1]) : 21;
    const auto eachFile = [](const Walks& walks, int folders) {
        return 1000 * bench::Median(walks.ours.processor) / (folders * FilesInFolder);
    };
    const Walks few = WithoutScreen(pairs, FewFolders);
    const Walks many = WithoutScreen(pairs, ManyFolders);
    char sizes[100];
    std::snprintf(sizes, sizeof sizes, "%.1f and %.1f µs a file of %d and %d",
                  eachFile(few, FewFolders), eachFile(many, ManyFolders),
                  FewFolders * FilesInFolder, ManyFolders * FilesInFolder);
    bench::Report("walk", "clean-up walk without screen", many.ours, many.bare, sizes);
    const Walks shown = WithScreen(pairs);
    bench::Report("walk_with_screen", "clean-up walk with its screen", shown.ours, shown.bare);
    return 0;
}
