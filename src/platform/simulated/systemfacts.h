#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/systemfacts.h"

namespace platform::simulated {

class Faults;
class Journal;

class SystemFacts final : public platform::SystemFacts {
  public:
    SystemFacts(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::string WindowsDirectory() const override;
    std::string SystemDirectory() const override;
    std::string TempPath() const override;
    std::string UserName() const override;
    std::string ExpandEnvironment(std::string_view text) const override;
    DiskSpace Space(std::string_view directory) const override;

    // The space of the drive of that capital letter. A drive without has no medium.
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

    Journal& journal_;
    Faults& faults_;
    std::map<char, DiskSpace> spaces_{{'C', {10485760000, 20003880960, 10485760000}}};
};

}  // namespace platform::simulated
