#include "dialogs/substoutput.h"

#include <algorithm>

#include "platform/locale.h"
#include "runtime/text.h"

namespace dialogs {
namespace {

// The items of a text as they are read one after the other: each ends at a comma or a line's end.
std::vector<std::string> ItemsOf(std::string_view bytes) {
    std::vector<std::string> items;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of(",\r\n"), bytes.size());
        items.emplace_back(bytes.substr(0, end));
        const std::size_t length = bytes.substr(end, 2) == "\r\n" ? 2 : 1;
        bytes.remove_prefix(std::min(end + length, bytes.size()));
    }
    return items;
}

}  // namespace

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    std::size_t end;
    while ((end = text.find(separator)) != std::string_view::npos) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.emplace_back(text);
    return parts;
}

SubstOutput::SubstOutput(std::string_view bytes, const platform::Locale& locale)
    : locale_(locale), items_(ItemsOf(bytes)) {}

bool SubstOutput::Next() {
    if (next_ == items_.size()) return false;
    const auto parts = Split(locale_.FromAnsi(items_[next_++]), DriveSeparator);
    if (parts.size() > 0) drive_ = runtime::Left(parts[0], 2);
    if (parts.size() > 1) path_ = runtime::Trim(parts[1]);
    return true;
}

}  // namespace dialogs
