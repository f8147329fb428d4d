#pragma once

#include <windows.h>

#include <objbase.h>

#include <string>

namespace platform::win32 {

// COM for this thread, as long as it lives.
class ComApartment {
  public:
    ComApartment();
    ~ComApartment();
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

  private:
    bool entered_;
};

// CLSIDFromProgID and CoCreateInstance; whether there is such an object now.
bool CreateObject(const wchar_t* programId, const IID& kind, void** made);

// CoTaskMemFree.
void FreeTaskMemory(void* memory);

// SysAllocString and SysFreeString.
BSTR MakeAutomationText(const std::wstring& text);
void FreeAutomationText(BSTR text);

}  // namespace platform::win32
