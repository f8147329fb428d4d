#pragma once

#include <string>
#include <vector>

#include "toolkit/controls.h"

namespace toolkit {

// Lines to look at. What the user marks in the window means nothing to the program.
class ListBox : public Control {
  public:
    // The size that the layout gives the list at least: average characters, and lines.
    ListBox(Form& form, std::string name, int columns = 40, int lines = 6);

    const std::vector<std::string>& Items() const { return items_; }
    // Behind the others.
    void AddItem(std::string item);
    void Clear();

    int LeastColumns() const { return leastColumns_; }
    int LeastLines() const { return leastLines_; }

  private:
    int leastColumns_;
    int leastLines_;
    std::vector<std::string> items_;
};

}  // namespace toolkit
