#pragma once

#include <string>

#include "platform/browser.h"

namespace platform::win32 {

class Browser final : public platform::Browser {
  public:
    // `programId` names the automation object.
    explicit Browser(std::wstring programId = L"InternetExplorer.Application")
        : programId_(std::move(programId)) {}

    std::unique_ptr<BrowserWindow> CreateInternetExplorer() override;

  private:
    std::wstring programId_;
};

}  // namespace platform::win32
