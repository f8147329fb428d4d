#include "cleanup/pathnames.h"

namespace cleanup {
namespace {

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

}  // namespace

std::string_view GetFileName(std::string_view path) {
    std::size_t end = path.size();
    while (end > 0 && IsSeparator(path[end - 1])) --end;
    std::size_t begin = end;
    while (begin > 0 && !IsSeparator(path[begin - 1])) --begin;
    const bool isBehindDrive = begin == 0 && end > 1 && path[1] == ':';
    if (isBehindDrive) begin = 2;
    return path.substr(begin, end - begin);
}

std::string_view ExtensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

}  // namespace cleanup
