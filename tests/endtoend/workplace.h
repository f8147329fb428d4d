#pragma once

#include <string>

#include "endtoend/files.h"
#include "endtoend/program.h"

namespace endtoend {

// A machine in a known state and a folder of its own with the program in it: the registry is the
// baseline's, the settings store holds nothing. The folder goes with this object; the registry is
// put back by the next one, and behind the last.
class Workplace {
  public:
    enum class Warning { Fresh, Accepted };

    explicit Workplace(Warning warning = Warning::Accepted,
                       const std::string& executable = "Quillmore.exe");
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    const std::string& Folder() const { return folder_; }
    std::string Executable() const { return folder_ + '\\' + executable_; }

    // The log beside the program; empty when there is none.
    std::string Log() const { return ReadFile(folder_ + "\\Quillmore.log"); }

    // What Windows the program is to find, in Wine's words: "winxp", "win2k".
    void PretendWindows(const std::string& version) const;

    // Writes the text into the settings store, as the program itself stores it.
    void Store(const std::string& section, const std::string& key, const std::string& text) const;
    // What is stored; "(absent)" when nothing is.
    std::string Stored(const std::string& section, const std::string& key) const;

  private:
    std::string executable_;
    std::string folder_;
};

// The program on this workplace, started and open.
class OpenProgram : public Program {
  public:
    explicit OpenProgram(const Workplace& workplace, const std::string& arguments = "");
};

}  // namespace endtoend
