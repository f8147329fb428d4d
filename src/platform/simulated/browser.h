#pragma once

#include "platform/browser.h"

namespace platform::simulated {

class Faults;
class Journal;

// Internet Explorer without a window. The journal names its members as a script would call them.
class Browser final : public platform::Browser {
  public:
    Browser(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::unique_ptr<BrowserWindow> CreateInternetExplorer() override;

  private:
    Journal& journal_;
    Faults& faults_;
};

}  // namespace platform::simulated
