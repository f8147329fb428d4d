#pragma once

#include <string>
#include <vector>

// The tables of tests/golden taken apart, from the text of their files. What the words in their
// columns mean each suite knows by itself: where two of them know it, they check each other.
// A row that has not as many columns as it must throws std::runtime_error.
namespace golden {

using Rows = std::vector<std::vector<std::string>>;

// The rows of a table without a heading, whose columns are parted by one tab.
Rows RowsOf(const std::string& text, std::size_t columns);

// One line of catalogue.tsv: one place that one control reads or writes.
struct CatalogueLine {
    std::string page;
    std::string control;
    std::string caption;
    std::string root;
    std::string key;
    std::string value;
    std::string kind;
    std::string read;
    std::string on;
    std::string off;

    bool IsCheckBox() const { return control.starts_with("chk"); }
};
std::vector<CatalogueLine> CatalogueLines(const std::string& text);

// One line of presets.tsv: what one preset makes of one control.
struct PresetLine {
    std::string preset;
    std::string control;
    std::string value;
};
std::vector<PresetLine> PresetLines(const std::string& text);

// The controls of a pass, "read" or "write", in the order of passorder.txt; never none.
std::vector<std::string> PassOrder(const std::string& text, const std::string& pass);

}  // namespace golden
