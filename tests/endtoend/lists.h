#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace endtoend {

class Application;

// The rows of another process's list view. Rows and columns are counted from 0; what the mouse
// does is posted and not waited for, unless it says so.
class Rows {
  public:
    explicit Rows(HWND window) : window_(window) {}

    int Count() const;
    std::vector<std::string> Headers() const;
    // The row's own text and its sub-items.
    std::vector<std::string> Texts(int row) const;
    bool Ticked(int row) const;
    bool Selected(int row) const;
    // In pixels.
    int ColumnWidth(int column) const;

    void Click(int row) const;
    void DoubleClick(int row) const;
    // By a click on the row's box when it differs; waits until it shows the state.
    void SetTicked(int row, bool ticked) const;
    void PressRightButton(int row) const;
    void ClickHeader(int column) const;

  private:
    HWND Header() const;
    int Columns() const;
    RECT AreaOf(int row) const;
    LPARAM TextPlace(int row) const;
    LPARAM BoxPlace(int row) const;

    HWND window_;
};

// The lines of a list box or of a combo box's list.
std::vector<std::string> LinesOf(HWND window);

// Waits for the menu that is about to open, goes down to its item of that number, counted from 1
// without separators, takes it and waits until the menu is gone.
void ChooseFromMenu(const Application& application, int item);

}  // namespace endtoend
