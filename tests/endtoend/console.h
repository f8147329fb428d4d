#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "endtoend/workplace.h"

namespace endtoend {

// What a run of the console program came to. The texts are the bytes as they were written.
struct ConsoleRun {
    DWORD code = 0;
    std::string out;
    std::string err;
};

// A text of so many lines; the last one has an end too, or there is none.
std::vector<std::string> LinesOf(const std::string& text);

// The console program in a workplace's folder, which is where it works, without a console: each of
// its streams is a file that lies elsewhere. Whatever Windows the registry speaks of, it finds the
// right one, until it is told otherwise.
class Console {
  public:
    explicit Console(const Workplace& workplace);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    // `arguments` is the command line behind the program's name, to the letter. Throws Failed when
    // it does not end.
    ConsoleRun Run(const std::string& arguments, const std::string& input = "") const;

    // A file in the folder.
    std::string Path(const std::string& file) const { return folder_ + '\\' + file; }

    // The folder's files, sorted.
    std::vector<std::string> Files() const;

    // In Wine's words: "winxp", "win2k".
    void PretendWindows(const std::string& version) const;

  private:
    std::string folder_;
    std::string streams_;
};

}  // namespace endtoend
