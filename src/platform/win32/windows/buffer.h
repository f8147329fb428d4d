#pragma once

#include <windows.h>

#include "platform/win32/handle.h"

namespace platform::win32 {

// A bitmap in memory, with the colours of `target`, which goes onto the screen in one piece.
class Buffer {
  public:
    Buffer(HDC target, int width, int height)
        : dc_(CreateCompatibleDC(target)),
          bitmap_(CreateCompatibleBitmap(target, width, height)),
          before_(SelectObject(dc_.Get(), bitmap_.Get())) {}
    ~Buffer() { Deselect(); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    HDC Get() const { return dc_.Get(); }
    // The bitmap, on which nothing can be drawn any more: its data are only given away like that.
    HBITMAP Deselect() {
        SelectObject(dc_.Get(), before_);
        return bitmap_.Get();
    }

  private:
    MemoryContext dc_;
    BitmapHandle bitmap_;
    HGDIOBJ before_;
};

}  // namespace platform::win32
