#pragma once

#include <windows.h>

#include <utility>

namespace platform::win32 {

// Owns one handle of the system and gives it back at its end. The traits name the handle's type,
// the value that stands for none, and the call that gives it back.
template <typename Traits>
class Owned {
  public:
    using Type = typename Traits::Type;

    Owned() = default;
    explicit Owned(Type handle) : handle_(handle) {}
    Owned(Owned&& other) noexcept : handle_(other.Release()) {}
    Owned& operator=(Owned&& other) noexcept {
        if (this != &other) Reset(other.Release());
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() { Close(); }

    explicit operator bool() const { return handle_ != Traits::None(); }
    Type Get() const { return handle_; }

    // Hands the handle over to the caller, who must give it back.
    Type Release() { return std::exchange(handle_, Traits::None()); }

    // Gives back what was held and holds `handle` from now on.
    void Reset(Type handle) {
        Close();
        handle_ = handle;
    }

    // Gives the handle back now; false when there is none or the system refuses.
    bool Close() {
        const Type held = Release();
        return held != Traits::None() && Traits::Close(held);
    }

    // For calls that fill in a handle; what was held is given back first.
    Type* Out() {
        Close();
        return &handle_;
    }

  private:
    Type handle_ = Traits::None();
};

struct KernelTraits {
    using Type = HANDLE;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return CloseHandle(handle) != FALSE; }
};

// Files have a value of their own for none.
struct FileTraits : KernelTraits {
    static Type None() { return INVALID_HANDLE_VALUE; }
};

struct RegistryKeyTraits {
    using Type = HKEY;
    static Type None() { return nullptr; }
    static bool Close(Type key) { return RegCloseKey(key) == ERROR_SUCCESS; }
};

struct WindowTraits {
    using Type = HWND;
    static Type None() { return nullptr; }
    static bool Close(Type window) { return DestroyWindow(window) != FALSE; }
};

// For device contexts that the program has made; those of windows are released, not deleted.
struct MemoryContextTraits {
    using Type = HDC;
    static Type None() { return nullptr; }
    static bool Close(Type context) { return DeleteDC(context) != FALSE; }
};

struct MenuTraits {
    using Type = HMENU;
    static Type None() { return nullptr; }
    static bool Close(Type menu) { return DestroyMenu(menu) != FALSE; }
};

template <typename Object>
struct DrawingTraits {
    using Type = Object;
    static Type None() { return nullptr; }
    static bool Close(Type object) { return DeleteObject(object) != FALSE; }
};

// Processes, threads, tokens.
using KernelHandle = Owned<KernelTraits>;
using FileHandle = Owned<FileTraits>;
using RegistryKey = Owned<RegistryKeyTraits>;
using WindowHandle = Owned<WindowTraits>;
using MenuHandle = Owned<MenuTraits>;
using MemoryContext = Owned<MemoryContextTraits>;
using FontHandle = Owned<DrawingTraits<HFONT>>;
using BrushHandle = Owned<DrawingTraits<HBRUSH>>;
using PenHandle = Owned<DrawingTraits<HPEN>>;
using BitmapHandle = Owned<DrawingTraits<HBITMAP>>;
using RegionHandle = Owned<DrawingTraits<HRGN>>;

}  // namespace platform::win32
