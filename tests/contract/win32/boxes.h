#pragma once

#include <windows.h>

#include <string>

namespace contract {

// Answers message boxes that open while it lives: notes what each one says and presses a button.
class BoxAnswerer {
  public:
    explicit BoxAnswerer(int answer);
    ~BoxAnswerer();
    BoxAnswerer(const BoxAnswerer&) = delete;
    BoxAnswerer& operator=(const BoxAnswerer&) = delete;

    int boxes = 0;
    // Questions of the shell's, which are no message boxes but have the same buttons.
    int shellQuestions = 0;
    std::string title;
    std::string text;
    HWND owner = nullptr;

  private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
    static BOOL CALLBACK Found(HWND window, LPARAM self);

    int answer_;
    UINT_PTR timer_;
};

}  // namespace contract
