#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/systemfacts.h"

namespace platform::simulated {

class Faults;
class Journal;
class SystemInformation;

class SystemFacts final : public platform::SystemFacts {
  public:
    SystemFacts(Journal& journal, Faults& faults, SystemInformation& information)
        : journal_(journal), faults_(faults), information_(information) {}

    std::string WindowsDirectory() const override;
    std::string SystemDirectory() const override;
    std::string TempPath() const override;
    std::string UserName() const override;
    std::string ExpandEnvironment(std::string_view text) const override;
    DiskSpace Space(std::string_view directory) const override;

    // The space of the drive of that capital letter, a volume of SystemInformation. Without this
    // the user may fill all that is free.
    void SetSpace(char drive, DiskSpace space);

    std::string windowsDirectory = "C:\\WINDOWS";
    std::string systemDirectory = "C:\\WINDOWS\\system32";
    std::string tempPath = "C:\\DOKUME~1\\Besitzer\\LOKALE~1\\Temp\\";
    std::string userName = "Besitzer";
    // The variables of the process, found in any case.
    std::map<std::string, std::string> environment{{"ProgramFiles", "C:\\Programme"},
                                                   {"SystemRoot", "C:\\WINDOWS"},
                                                   {"windir", "C:\\WINDOWS"}};

  private:
    const std::string* Variable(std::string_view name) const;
    DiskSpace SpaceOf(char drive) const;

    Journal& journal_;
    Faults& faults_;
    SystemInformation& information_;
    // Of drives on which the user may not fill all of it.
    std::map<char, std::uint64_t> free_;
};

}  // namespace platform::simulated
