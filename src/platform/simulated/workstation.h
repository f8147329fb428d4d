#pragma once

#include <map>
#include <optional>

#include "platform/workstation.h"

namespace platform::simulated {

class Faults;
class Journal;
class SystemFacts;
class SystemInformation;

// A computer on which its owner is logged on. Buffers are numbered from 1.
class Workstation final : public platform::Workstation {
  public:
    using Batches = std::vector<std::vector<LoggedOnUser>>;

    Workstation(Journal& journal, Faults& faults, const SystemFacts& facts,
                const SystemInformation& information)
        : journal_(journal), faults_(faults), facts_(facts), information_(information) {}

    std::uint32_t EnumerateUsers(const std::string& server,
                                 UserEnumeration& enumeration) const override;
    void FreeBuffer(std::uintptr_t buffer) const override;
    std::string SystemMessage(std::uint32_t code) const override;

    // One a call; each but the last one answers that there is more. Without them it is the owner
    // alone.
    std::optional<Batches> batches;
    // What the system has a text for.
    std::map<std::uint32_t, std::string> systemMessages{
        {5, "Zugriff verweigert \r\n"}, {53, "Der Netzwerkpfad wurde nicht gefunden. \r\n"}};

    // How many have not been given back.
    int BuffersInUse() const { return given_ - returned_; }

  private:
    Batches Users() const;

    Journal& journal_;
    Faults& faults_;
    const SystemFacts& facts_;
    const SystemInformation& information_;
    mutable int given_ = 0;
    mutable int returned_ = 0;
};

}  // namespace platform::simulated
