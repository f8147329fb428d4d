#include "platform/win32/console/surroundings.h"

#include <algorithm>

#include "platform/win32/console/utf16.h"
#include "platform/win32/handle.h"
#include "platform/win32/nomediumbox.h"

namespace platform::win32 {
namespace {

// A registration file of all places has less than a hundredth of it.
constexpr std::size_t LargestFile = 64 * 1024 * 1024;
// Nobody answers at such length.
constexpr std::size_t LongestLine = 64 * 1024;

std::string TextOf(DWORD error) {
    wchar_t buffer[1024];
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
        nullptr, error, 0, buffer, 1024, nullptr);
    std::wstring_view text(buffer, length);
    while (!text.empty() && text.back() <= L' ') text.remove_suffix(1);
    if (text.empty()) return "Fehler " + std::to_string(static_cast<int>(error));
    return FromUnits(text);
}

[[noreturn]] void Fail(DWORD error) {
    throw cmd::FileFailure(TextOf(error));
}

std::string WithCarriageReturns(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n') result += '\r';
        result += c;
    }
    return result;
}

std::string ToCodePage(UINT codePage, std::wstring_view units) {
    const int length = static_cast<int>(units.size());
    const int size =
        WideCharToMultiByte(codePage, 0, units.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, 0, units.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::string FromCodePage(UINT codePage, std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    // No code page makes more characters than there are bytes.
    std::wstring units(bytes.size(), L'\0');
    units.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, bytes.data(), length, units.data(), length)));
    return FromUnits(units);
}

bool WriteAll(HANDLE file, std::string_view bytes) {
    // The system's own buffers have an end, that of a share sooner than others.
    constexpr std::size_t largestPiece = 1024 * 1024;
    while (!bytes.empty()) {
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), piece, &written, nullptr)) return false;
        if (written == 0) {
            SetLastError(ERROR_DISK_FULL);
            return false;
        }
        bytes.remove_prefix(written);
    }
    return true;
}

bool WriteConsoleWhole(HANDLE console, std::wstring_view units) {
    // XP's console takes less than 64 KB at a time.
    constexpr std::size_t largestPiece = 8 * 1024;
    while (!units.empty()) {
        std::size_t piece = std::min(units.size(), largestPiece);
        if (piece < units.size() && IS_HIGH_SURROGATE(units[piece - 1])) --piece;
        DWORD written = 0;
        if (!WriteConsoleW(console, units.data(), static_cast<DWORD>(piece), &written, nullptr) ||
            written == 0) {
            return false;
        }
        units.remove_prefix(written);
    }
    return true;
}

// From the drive or the share on. What the system takes for a device or a pipe, as it does "NUL" or
// "C:\con.txt", might never come to its end, keep nothing, or be a whole drive.
std::wstring FullPath(std::string_view path) {
    std::wstring full(0x8000, L'\0');
    const DWORD length = GetFullPathNameW(ToUnits(path).c_str(), static_cast<DWORD>(full.size()),
                                          full.data(), nullptr);
    if (length == 0) Fail(GetLastError());
    if (length >= full.size()) Fail(ERROR_FILENAME_EXCED_RANGE);
    full.resize(length);
    if (full.starts_with(L"\\\\.\\") || full.starts_with(L"\\\\?\\")) Fail(ERROR_INVALID_NAME);
    return full;
}

FileHandle OpenDiskFile(const std::wstring& path, DWORD access, DWORD sharing, DWORD disposition) {
    FileHandle file(CreateFileW(path.c_str(), access, sharing, nullptr, disposition,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) Fail(GetLastError());
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) Fail(ERROR_INVALID_NAME);
    return file;
}

}  // namespace

Surroundings::Stream::Stream(DWORD which) : handle(GetStdHandle(which)) {
    DWORD mode = 0;
    isConsole = GetConsoleMode(handle, &mode) != FALSE;
}

Surroundings::Surroundings()
    : out_(STD_OUTPUT_HANDLE),
      err_(STD_ERROR_HANDLE),
      in_(STD_INPUT_HANDLE),
      outputCodePage_(GetConsoleOutputCP()),
      inputCodePage_(GetConsoleCP()) {
    // There are none without a console.
    if (outputCodePage_ == 0) outputCodePage_ = GetOEMCP();
    if (inputCodePage_ == 0) inputCodePage_ = GetOEMCP();
}

void Surroundings::Out(std::string_view text) {
    Put(out_, text);
}

void Surroundings::Err(std::string_view text) {
    Put(err_, text);
}

void Surroundings::UseUtf8() {
    outputCodePage_ = CP_UTF8;
}

bool Surroundings::OutputIsSeen() const {
    return out_.isConsole;
}

void Surroundings::Put(Stream& stream, std::string_view text) const {
    const std::string lines = WithCarriageReturns(text);
    const auto write = [&] {
        if (stream.isConsole) return WriteConsoleWhole(stream.handle, ToUnits(lines));
        return WriteAll(stream.handle, ToCodePage(outputCodePage_, ToUnits(lines)));
    };
    if (!write() && GetLastError() != ERROR_INVALID_HANDLE) stream.lost = true;
}

std::optional<std::string> Surroundings::ReadLine() {
    constexpr char endOfInput = 0x1A;
    for (;;) {
        const std::size_t end = waiting_.find('\n');
        if (end != std::string::npos || waiting_.size() >= LongestLine) {
            std::string line = waiting_.substr(0, end);
            waiting_.erase(0, line.size() + 1);
            if (line.ends_with('\r')) line.pop_back();
            if (in_.isConsole && line.starts_with(endOfInput)) return std::nullopt;
            return in_.isConsole ? line : FromCodePage(inputCodePage_, line);
        }
        if (in_.isConsole) {
            wchar_t piece[512];
            DWORD length = 0;
            if (!ReadConsoleW(in_.handle, piece, 512, &length, nullptr)) length = 0;
            if (length == 0) return std::nullopt;
            waiting_ += FromUnits({piece, length});
            continue;
        }
        char piece[512];
        DWORD length = 0;
        if (!::ReadFile(in_.handle, piece, sizeof piece, &length, nullptr)) length = 0;
        if (length > 0) {
            waiting_.append(piece, length);
        } else if (waiting_.empty()) {
            return std::nullopt;
        } else {
            waiting_ += '\n';
        }
    }
}

std::string Surroundings::ReadFile(std::string_view path) {
    const NoMediumBox quiet;
    const FileHandle file =
        OpenDiskFile(FullPath(path), GENERIC_READ,
                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    std::string content;
    char piece[16 * 1024];
    DWORD length = 0;
    do {
        if (!::ReadFile(file.Get(), piece, sizeof piece, &length, nullptr)) Fail(GetLastError());
        content.append(piece, length);
        if (content.size() > LargestFile) Fail(ERROR_NOT_ENOUGH_MEMORY);
    } while (length > 0);
    return content;
}

void Surroundings::WriteNewFile(std::string_view path, std::string_view bytes) {
    const NoMediumBox quiet;
    const std::wstring full = FullPath(path);
    FileHandle file = OpenDiskFile(full, GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
    if (WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get())) return;
    const DWORD error = GetLastError();
    // Half a file would pass for a whole one, so it goes again.
    file.Close();
    DeleteFileW(full.c_str());
    Fail(error);
}

std::string Surroundings::SystemText(int error) const {
    return TextOf(static_cast<DWORD>(error));
}

}  // namespace platform::win32
