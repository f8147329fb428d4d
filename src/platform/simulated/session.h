#pragma once

#include <vector>

#include "platform/session.h"

namespace platform::simulated {

class Faults;
class Journal;

// Records what was asked for; no session ends.
class Session final : public platform::Session {
  public:
    Session(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    void ExitSession(std::int32_t action, std::int32_t force) override;

    struct Request {
        std::int32_t action = 0;
        std::int32_t force = 0;
        bool operator==(const Request&) const = default;
    };
    std::vector<Request> requests;

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
