#include "platform/win32/browser.h"

#include <windows.h>

#include <oleauto.h>

#include "platform/win32/com.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {
namespace {

struct ObjectTraits {
    using Type = IDispatch*;
    static Type None() { return nullptr; }
    static bool Close(Type object) {
        object->Release();
        return true;
    }
};
using Object = Owned<ObjectTraits>;

// A text of automation's own kind, in the form of an argument.
class TextArgument {
  public:
    explicit TextArgument(std::string_view text) {
        value.vt = VT_BSTR;
        value.bstrVal = MakeAutomationText(ToWide(text));
    }
    ~TextArgument() { FreeAutomationText(value.bstrVal); }
    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;

    VARIANT value = {};
};

VARIANT Number(LONG number) {
    VARIANT value = {};
    value.vt = VT_I4;
    value.lVal = number;
    return value;
}

VARIANT Truth(bool truth) {
    VARIANT value = {};
    value.vt = VT_BOOL;
    value.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return value;
}

class DocumentWindow final : public BrowserWindow {
  public:
    explicit DocumentWindow(const wchar_t* programId) {
        void* made = nullptr;
        if (!CreateObject(programId, IID_IDispatch, &made)) {
            throw runtime::Failure(runtime::CannotCreateObject);
        }
        object_.Reset(static_cast<IDispatch*>(made));
    }

    void SetVisible(bool visible) override {
        Invoke(L"Visible", DISPATCH_PROPERTYPUT, Truth(visible));
    }
    void Navigate(std::string_view address) override {
        const TextArgument argument(address);
        Invoke(L"Navigate", DISPATCH_METHOD, argument.value);
    }
    void SetWidth(int width) override { Invoke(L"Width", DISPATCH_PROPERTYPUT, Number(width)); }
    void SetHeight(int height) override { Invoke(L"Height", DISPATCH_PROPERTYPUT, Number(height)); }

  private:
    void Invoke(std::wstring member, WORD kind, VARIANT argument) {
        LPOLESTR name = member.data();
        DISPID id = DISPID_UNKNOWN;
        DISPID put = DISPID_PROPERTYPUT;
        DISPPARAMS arguments = {&argument, nullptr, 1, 0};
        if (kind == DISPATCH_PROPERTYPUT) {
            arguments.rgdispidNamedArgs = &put;
            arguments.cNamedArgs = 1;
        }
        if (FAILED(object_.Get()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id)) ||
            FAILED(object_.Get()->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &arguments,
                                         nullptr, nullptr, nullptr))) {
            throw runtime::Failure(runtime::AutomationError);
        }
    }

    // Before the object: it must outlive it.
    ComApartment apartment_;
    Object object_;
};

}  // namespace

std::unique_ptr<BrowserWindow> Browser::CreateInternetExplorer() {
    return std::make_unique<DocumentWindow>(programId_.c_str());
}

}  // namespace platform::win32
