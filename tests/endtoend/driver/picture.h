#pragma once

#include <windows.h>

#include <string>

namespace endtoend {

// Writes what the screen shows where the window stands to the file, as a bitmap.
void WritePicture(HWND window, const std::string& file);

}  // namespace endtoend
