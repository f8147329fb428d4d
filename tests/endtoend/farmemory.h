#pragma once

#include <windows.h>

#include <cstddef>

#include "endtoend/waiting.h"
#include "platform/win32/handle.h"

namespace endtoend {

// One page of memory in the process of the window.
class FarMemory {
  public:
    explicit FarMemory(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_.Reset(
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id));
        memory_ = VirtualAllocEx(process_.Get(), nullptr, Size, MEM_COMMIT, PAGE_READWRITE);
        if (!memory_) throw Failed("no memory in the other process");
    }
    ~FarMemory() { VirtualFreeEx(process_.Get(), memory_, 0, MEM_RELEASE); }
    FarMemory(const FarMemory&) = delete;
    FarMemory& operator=(const FarMemory&) = delete;

    char* At(std::size_t offset) const { return static_cast<char*>(memory_) + offset; }

    template <typename T>
    void Write(const T& value) const {
        if (!WriteProcessMemory(process_.Get(), memory_, &value, sizeof value, nullptr)) {
            throw Failed("cannot write into the other process");
        }
    }
    void Read(std::size_t offset, void* into, std::size_t size) const {
        if (!ReadProcessMemory(process_.Get(), At(offset), into, size, nullptr)) {
            throw Failed("cannot read from the other process");
        }
    }

  private:
    static constexpr std::size_t Size = 4096;
    platform::win32::KernelHandle process_;
    void* memory_ = nullptr;
};

}  // namespace endtoend
