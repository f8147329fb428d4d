#include "kit/runs.h"

#include <cstdlib>
#include <map>

#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace kit {
namespace {

using platform::win32::FileHandle;
using platform::win32::KernelHandle;
using platform::win32::ToWide;

// As much as a command line may have, and some room.
constexpr std::size_t LongestLine = 30000;
constexpr std::size_t MostCases = 40;
constexpr wchar_t VerdictFile[] = L"verdicts.txt";

// The suite takes a comma for the end of a sentence.
std::string Escaped(const std::string& sentence) {
    std::string escaped;
    for (const char character : sentence) {
        if (character == ',') escaped += '\\';
        escaped += character;
    }
    return escaped;
}

// A process with all that it starts, which ends with this.
class Process {
  public:
    Process(std::wstring commandLine, const std::wstring& folder)
        : job_(CreateJobObjectW(nullptr, nullptr)) {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(job_.Get(), JobObjectExtendedLimitInformation, &limits,
                                sizeof limits);
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION started = {};
        if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                            nullptr, folder.c_str(), &startup, &started)) {
            return;
        }
        const KernelHandle thread(started.hThread);
        process_.Reset(started.hProcess);
        AssignProcessToJobObject(job_.Get(), process_.Get());
        AllowSetForegroundWindow(started.dwProcessId);
        ResumeThread(thread.Get());
    }
    ~Process() {
        if (process_) TerminateProcess(process_.Get(), 1);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    bool Started() const { return static_cast<bool>(process_); }
    bool Ends(DWORD milliseconds) const {
        return WaitForSingleObject(process_.Get(), milliseconds) == WAIT_OBJECT_0;
    }

  private:
    KernelHandle job_;
    KernelHandle process_;
};

// The lines that a process appends to its file, while it does so.
class Lines {
  public:
    explicit Lines(std::wstring path) : path_(std::move(path)) {}

    // Those that have come since.
    std::vector<std::string> Next() {
        const FileHandle file(CreateFileW(path_.c_str(), GENERIC_READ,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, 0, nullptr));
        std::vector<std::string> lines;
        if (!file) return lines;
        SetFilePointer(file.Get(), static_cast<LONG>(read_), nullptr, FILE_BEGIN);
        char piece[4096];
        DWORD length = 0;
        while (ReadFile(file.Get(), piece, sizeof piece, &length, nullptr) && length > 0) {
            read_ += length;
            pending_.append(piece, length);
        }
        for (auto end = pending_.find('\n'); end != std::string::npos; end = pending_.find('\n')) {
            lines.push_back(pending_.substr(0, end - (end > 0 && pending_[end - 1] == '\r')));
            pending_.erase(0, end + 1);
        }
        return lines;
    }

  private:
    std::wstring path_;
    DWORD read_ = 0;
    std::string pending_;
};

class Batch {
  public:
    Batch(const Runs& runs, const std::vector<Tried*>& cases, DWORD began, std::size_t of,
          std::size_t& done)
        : runs_(runs), began_(began), of_(of), done_(done) {
        for (Tried* each : cases) byName_[each->is.sentence] = each;
    }

    void Run(const std::wstring& commandLine) {
        const std::wstring path = runs_.folder + VerdictFile;
        DeleteFileW(path.c_str());
        Lines lines(path);
        {
            Process process(commandLine, runs_.folder);
            if (!process.Started()) return;
            DWORD last = GetTickCount();
            for (bool ended = false; !ended;) {
                ended = process.Ends(50);
                for (const std::string& line : lines.Next()) {
                    Hear(line);
                    last = GetTickCount();
                }
                if (ended || runs_.stops()) break;
                if (GetTickCount() - last > runs_.oneCase || GetTickCount() - began_ > runs_.all) {
                    if (now_) End(Verdict::Hung);
                    break;
                }
            }
        }
        if (now_ && !runs_.stops()) End(Verdict::Crashed);
        DeleteFileW(path.c_str());
    }

  private:
    void End(Verdict verdict) {
        now_->verdict = verdict;
        now_ = nullptr;
        runs_.progress(++done_, of_);
    }
    void Hear(const std::string& line) {
        const auto first = line.find('\t');
        const auto second = line.find('\t', first + 1);
        if (second == std::string::npos) return;
        const std::string what = line.substr(0, first);
        const std::string text = line.substr(first + 1, second - first - 1);
        if (what == "start") {
            const auto found = byName_.find(text);
            now_ = found == byName_.end() ? nullptr : found->second;
        } else if (now_ && what == "fault") {
            now_->notes.push_back(text);
        } else if (now_) {
            now_->milliseconds = std::atof(line.c_str() + second);
            End(what == "passed" ? Verdict::Passed : Verdict::Failed);
        }
    }

    const Runs& runs_;
    DWORD began_;
    std::size_t of_;
    std::size_t& done_;
    std::map<std::string, Tried*> byName_;
    Tried* now_ = nullptr;
};

// The next ones of one suite that fit into one process.
std::vector<Tried*> NextOf(const std::vector<Tried*>& cases, std::string& sentences) {
    std::vector<Tried*> batch;
    for (Tried* each : cases) {
        const std::string sentence = Escaped(each->is.sentence);
        if (batch.size() == MostCases || sentences.size() + sentence.size() > LongestLine) break;
        if (!batch.empty() && each->is.suite != batch[0]->is.suite) break;
        if (!batch.empty()) sentences += ',';
        sentences += sentence;
        batch.push_back(each);
    }
    return batch;
}

}  // namespace

void RunAll(const Runs& runs, std::vector<Tried*> cases) {
    const DWORD began = GetTickCount();
    const std::size_t of = cases.size();
    std::size_t done = 0;
    while (!cases.empty() && !runs.stops() && GetTickCount() - began < runs.all) {
        std::string sentences;
        const std::vector<Tried*> batch = NextOf(cases, sentences);
        const std::size_t before = done;
        Batch(runs, batch, began, of, done)
            .Run(L'"' + runs.programs + L"test_" + ToWide(batch[0]->is.suite) +
                 L".exe\" -r=verdicts --out=verdicts.txt -tc=\"" + ToWide(sentences) + L'"');
        if (done == before && !runs.stops()) {
            for (Tried* each : batch) {
                each->verdict = Verdict::Crashed;
                each->notes = {"der Prüfling kam nicht bis zu diesem Fall"};
            }
            done += batch.size();
        }
        std::erase_if(cases, [](const Tried* each) { return each->verdict != Verdict::NotTried; });
    }
    for (Tried* each : cases) {
        each->notes = {runs.stops() ? "abgebrochen" : "die Zeit war um"};
    }
}

}  // namespace kit
