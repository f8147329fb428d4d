#include "platform/win32/com.h"

#include <oleauto.h>

#include "platform/win32/libraryfunction.h"

namespace platform::win32 {
namespace {

template <typename Function>
Function* Ole(const char* name) {
    return LibraryFunction<Function>(L"ole32.dll", name);
}

template <typename Function>
Function* OleAutomation(const char* name) {
    return LibraryFunction<Function>(L"oleaut32.dll", name);
}

}  // namespace

ComApartment::ComApartment() {
    const auto enter = Ole<decltype(CoInitialize)>("CoInitialize");
    entered_ = enter && SUCCEEDED(enter(nullptr));
}

ComApartment::~ComApartment() {
    if (entered_) Ole<decltype(CoUninitialize)>("CoUninitialize")();
}

bool CreateObject(const wchar_t* programId, const IID& kind, void** made) {
    const auto find = Ole<decltype(CLSIDFromProgID)>("CLSIDFromProgID");
    const auto create = Ole<decltype(CoCreateInstance)>("CoCreateInstance");
    CLSID wanted;
    return find && create && SUCCEEDED(find(programId, &wanted)) &&
           SUCCEEDED(create(wanted, nullptr, CLSCTX_SERVER, kind, made));
}

void FreeTaskMemory(void* memory) {
    if (const auto free = Ole<decltype(CoTaskMemFree)>("CoTaskMemFree")) free(memory);
}

BSTR MakeAutomationText(const std::wstring& text) {
    const auto make = OleAutomation<decltype(SysAllocString)>("SysAllocString");
    return make ? make(text.c_str()) : nullptr;
}

void FreeAutomationText(BSTR text) {
    if (const auto free = OleAutomation<decltype(SysFreeString)>("SysFreeString")) free(text);
}

}  // namespace platform::win32
