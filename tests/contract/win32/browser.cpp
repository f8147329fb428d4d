#include "platform/win32/browser.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <oleauto.h>

#include <string>
#include <vector>

#include "platform/win32/text.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

using platform::win32::FromWide;

constexpr CLSID StandInId = {0x51c7c0de, 0x6a1f, 0x4b0e, {0x9d, 1, 2, 3, 4, 5, 6, 7}};
constexpr wchar_t StandInName[] = L"QuillmoreContract.Browser";

// An automation object that notes what it is told, in place of a browser. Its factory is itself.
class StandIn final : public IDispatch, public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** made) override {
        if (id == IID_IDispatch) {
            *made = static_cast<IDispatch*>(this);
        } else if (id == IID_IClassFactory || id == IID_IUnknown) {
            *made = static_cast<IClassFactory*>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** made) override {
        return QueryInterface(id, made);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) override {
        if (std::wstring(*names) == unknown) return DISP_E_UNKNOWNNAME;
        members.push_back(FromWide(*names));
        *ids = static_cast<DISPID>(members.size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        const VARIANT& value = arguments->rgvarg[0];
        std::string text = members.at(static_cast<std::size_t>(id) - 1);
        if (kind == DISPATCH_PROPERTYPUT) {
            CHECK(arguments->cNamedArgs == 1);
            CHECK(arguments->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT);
            text += " =";
        }
        if (value.vt == VT_BSTR) text += " text " + FromWide(value.bstrVal);
        if (value.vt == VT_I4) text += " number " + std::to_string(value.lVal);
        if (value.vt == VT_BOOL) text += value.boolVal == VARIANT_TRUE ? " true" : " false";
        calls.push_back(text);
        return S_OK;
    }

    ULONG references = 1;
    std::wstring unknown;
    std::vector<std::string> members;
    std::vector<std::string> calls;
};

// The stand-in under a name of its own, as long as it lives.
struct Registered {
    StandIn standIn;
    DWORD cookie = 0;

    Registered() {
        CoInitialize(nullptr);
        const wchar_t id[] = L"{51C7C0DE-6A1F-4B0E-9D01-020304050607}";
        HKEY key = nullptr;
        RegCreateKeyExW(HKEY_CLASSES_ROOT, (std::wstring(StandInName) + L"\\CLSID").c_str(), 0,
                        nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
        RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(id), sizeof id);
        RegCloseKey(key);
        CoRegisterClassObject(StandInId, static_cast<IClassFactory*>(&standIn),
                              CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
    }
    ~Registered() {
        CoRevokeClassObject(cookie);
        RegDeleteKeyW(HKEY_CLASSES_ROOT, (std::wstring(StandInName) + L"\\CLSID").c_str());
        RegDeleteKeyW(HKEY_CLASSES_ROOT, StandInName);
        CoUninitialize();
    }
};

}  // namespace

TEST_CASE("the automation object hears each call with its argument, and is let go at the end") {
    Registered registered;
    platform::win32::Browser browser(StandInName);
    const ULONG before = registered.standIn.references;
    {
        const auto window = browser.CreateInternetExplorer();
        CHECK(registered.standIn.references > before);
        window->SetVisible(true);
        window->Navigate("http://127.0.0.1/\xC3\xA4");
        window->SetWidth(1024);
        window->SetHeight(743);
    }
    CHECK(registered.standIn.references == before);
    CHECK(registered.standIn.calls ==
          std::vector<std::string>{"Visible = true", "Navigate text http://127.0.0.1/\xC3\xA4",
                                   "Width = number 1024", "Height = number 743"});
}

TEST_CASE("an object that is registered nowhere cannot be created") {
    platform::win32::Browser browser(L"QuillmoreContract.Missing");
    CHECK(FailureOf([&] { browser.CreateInternetExplorer(); }) == runtime::CannotCreateObject);
}

TEST_CASE("a member that the object lacks is a failure of automation") {
    Registered registered;
    registered.standIn.unknown = L"Width";
    const auto window = platform::win32::Browser(StandInName).CreateInternetExplorer();
    CHECK(FailureOf([&] { window->SetWidth(1); }) == 440);
    CHECK(FailureOf([&] { window->SetHeight(1); }) == 0);
}
