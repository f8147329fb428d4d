#pragma once

#include <map>

#include "platform/workstation.h"

namespace platform::simulated {

class Faults;
class Journal;

// A computer on which its owner is logged on. Buffers are numbered from 1.
class Workstation final : public platform::Workstation {
  public:
    Workstation(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::uint32_t EnumerateUsers(const std::string& server,
                                 UserEnumeration& enumeration) const override;
    void FreeBuffer(std::uintptr_t buffer) const override;
    std::string SystemMessage(std::uint32_t code) const override;

    // One a call; each but the last one answers that there is more.
    std::vector<std::vector<LoggedOnUser>> batches{
        {{"Besitzer", "QUILLMORE-PC", "", "QUILLMORE-PC"}}};
    // What the system has a text for.
    std::map<std::uint32_t, std::string> systemMessages{
        {5, "Zugriff verweigert \r\n"}, {53, "Der Netzwerkpfad wurde nicht gefunden. \r\n"}};

    // How many have not been given back.
    int BuffersInUse() const { return given_ - returned_; }

  private:
    Journal& journal_;
    Faults& faults_;
    mutable int given_ = 0;
    mutable int returned_ = 0;
};

}  // namespace platform::simulated
