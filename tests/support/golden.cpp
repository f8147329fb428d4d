#include "support/golden.h"

#include <sstream>
#include <stdexcept>

namespace golden {
namespace {

Rows RowsBelowHeading(const std::string& text, std::size_t columns) {
    Rows rows = RowsOf(text, columns);
    if (rows.size() < 2) throw std::runtime_error("a table without rows");
    rows.erase(rows.begin());
    return rows;
}

}  // namespace

Rows RowsOf(const std::string& text, std::size_t columns) {
    Rows rows;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> row;
        std::istringstream parts(line);
        for (std::string part; std::getline(parts, part, '\t');) row.push_back(part);
        if (row.size() != columns) {
            throw std::runtime_error("not " + std::to_string(columns) + " columns: " + line);
        }
        rows.push_back(row);
    }
    return rows;
}

std::vector<CatalogueLine> CatalogueLines(const std::string& text) {
    std::vector<CatalogueLine> lines;
    for (const auto& row : RowsBelowHeading(text, 10)) {
        lines.push_back(
            {row[0], row[1], row[2], row[3], row[4], row[5], row[6], row[7], row[8], row[9]});
    }
    return lines;
}

std::vector<PresetLine> PresetLines(const std::string& text) {
    std::vector<PresetLine> lines;
    for (const auto& row : RowsBelowHeading(text, 3)) lines.push_back({row[0], row[1], row[2]});
    return lines;
}

std::vector<std::string> PassOrder(const std::string& text, const std::string& pass) {
    std::vector<std::string> names;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line) && line != pass) {
    }
    while (std::getline(lines, line) && !line.empty()) names.push_back(line);
    if (names.empty()) throw std::runtime_error("no order of the pass " + pass);
    return names;
}

}  // namespace golden
