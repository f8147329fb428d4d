#pragma once

#include <string>
#include <vector>

#include "platform/win32/handle.h"

// Tools of the system, taken away or replaced for the time of a test. Only this Windows is touched,
// and what was there comes back, also after a run that was broken off.
namespace endtoend {

// The first call of a run forgets with whose programs an earlier one, which was broken off, has
// replaced the system's. Before anything is started.
void ForgetLeftOverrides();

// "C:\windows\system32", as the system writes it.
std::string SystemFolder();
std::string WindowsFolder();

// The path of the folder in which the path lies.
std::string FolderOf(const std::string& path);

// Whether there is a file or folder.
bool Exists(const std::string& path);

// Makes the file, and the folders above it. Throws Failed when it cannot be written.
void WriteFile(const std::string& path, const std::string& bytes);

// The size of a file, 0 where there is none. Other than reading it, to ask is in nobody's way.
unsigned SizeOf(const std::string& path);

// The place of one file, which is empty as long as this object lives.
class EmptyPlace {
  public:
    explicit EmptyPlace(const std::string& path);
    ~EmptyPlace();
    EmptyPlace(const EmptyPlace&) = delete;
    EmptyPlace& operator=(const EmptyPlace&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
    std::vector<std::string> madeFolders_;
};

// How a stand-in was started.
struct Started {
    std::string commandLine;
    std::string folder;
    // The way its window is to be shown: "1" normal, "0" hidden, "-" not told.
    std::string show;

    bool operator==(const Started&) const = default;
};

std::string Describe(const Started& started);

// The suite's recorder at the place of a tool, also of one that Wine brings along. A record is
// taken once. The constructor throws Failed unless a start of the path really starts the recorder:
// some of the tools must never run here.
class StandIn {
  public:
    explicit StandIn(const std::string& path);
    ~StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

    const std::string& Path() const { return place_.Path(); }

    Started WaitStart() const;

    // Whether it runs or has left a record.
    bool WasStarted() const;

  private:
    std::string Record() const;
    void Prove() const;

    EmptyPlace place_;
};

// How the shell starts the system's runner of library functions, which it finds in the working
// directory.
inline std::string RunnerCommand(const std::string& arguments) {
    return '"' + WindowsFolder() + "\\System32\\rundll32.exe\" " + arguments;
}

// A file with one line that stands for a document of the system's.
class Document {
  public:
    explicit Document(const std::string& path);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

  private:
    EmptyPlace place_;
};

// As long as this object lives and has not let go, stand-ins run on after their record. It comes
// after the stand-ins, whose proof could not end otherwise.
class Hold {
  public:
    Hold();
    ~Hold() { LetGo(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    void LetGo() const;

  private:
    platform::win32::KernelHandle mayEnd_;
};

}  // namespace endtoend
