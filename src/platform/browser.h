#pragma once

#include <memory>
#include <string_view>

namespace platform {

// One window of Internet Explorer, reached through its automation object. It stays open when the
// object is let go. Each method throws Failure AutomationError when the browser refuses.
class BrowserWindow {
  public:
    virtual ~BrowserWindow() = default;

    virtual void SetVisible(bool visible) = 0;
    virtual void Navigate(std::string_view address) = 0;
    // Pixels.
    virtual void SetWidth(int width) = 0;
    virtual void SetHeight(int height) = 0;
};

class Browser {
  public:
    virtual ~Browser() = default;

    // Creates the object "InternetExplorer.Application"; its window is hidden at first.
    // Throws Failure CannotCreateObject when there is none.
    virtual std::unique_ptr<BrowserWindow> CreateInternetExplorer() = 0;
};

}  // namespace platform
