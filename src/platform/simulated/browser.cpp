#include "platform/simulated/browser.h"

#include <string>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/failure.h"

namespace platform::simulated {
namespace {

class Window final : public BrowserWindow {
  public:
    Window(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    void SetVisible(bool visible) override { Call("Visible", visible ? "1" : "0"); }
    void Navigate(std::string_view address) override { Call("Navigate", Quoted(address)); }
    void SetWidth(int width) override { Call("Width", std::to_string(width)); }
    void SetHeight(int height) override { Call("Height", std::to_string(height)); }

  private:
    void Call(const char* member, const std::string& argument) {
        const std::string call = std::string("InternetExplorer.") + member;
        auto line = journal_.Note([&] { return call + ' ' + argument; });
        if (!faults_.Check(call, "")) return;
        ThrowFault(journal_, line, runtime::AutomationError);
    }

    Journal& journal_;
    Faults& faults_;
};

}  // namespace

std::unique_ptr<BrowserWindow> Browser::CreateInternetExplorer() {
    auto line = journal_.Note([] { return std::string("CreateObject InternetExplorer"); });
    if (faults_.Check("CreateObject", "InternetExplorer.Application")) {
        ThrowFault(journal_, line, runtime::CannotCreateObject);
    }
    return std::make_unique<Window>(journal_, faults_);
}

}  // namespace platform::simulated
