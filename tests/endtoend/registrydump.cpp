#include "endtoend/registrydump.h"

#include <windows.h>

#include "endtoend/files.h"
#include "endtoend/waiting.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::RegistryKey;
using platform::win32::ToWide;

void EnableBackupPrivilege() {
    platform::win32::KernelHandle token;
    TOKEN_PRIVILEGES privileges = {};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, token.Out());
    LookupPrivilegeValueW(nullptr, SE_BACKUP_NAME, &privileges.Privileges[0].Luid);
    AdjustTokenPrivileges(token.Get(), FALSE, &privileges, 0, nullptr, nullptr);
}

// Reads one text of the file from front to back.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool AtEnd() const { return at_ >= text_.size(); }
    char Peek() const { return AtEnd() ? '\0' : text_[at_]; }
    char Next() {
        if (AtEnd()) throw Failed("the dump of the registry ends early");
        return text_[at_++];
    }
    bool Takes(std::string_view expected) {
        if (text_.substr(at_, expected.size()) != expected) return false;
        at_ += expected.size();
        return true;
    }
    void Expect(std::string_view expected) {
        if (!Takes(expected))
            throw Failed("the dump of the registry lacks " + std::string(expected));
    }
    void SkipLine() {
        while (!AtEnd() && Next() != '\n') {
        }
    }

    // At most `most` digits.
    unsigned Number(unsigned base, std::size_t most) {
        const std::size_t begin = at_;
        unsigned number = 0;
        for (; at_ - begin < most && Digit(Peek()) < base; ++at_) {
            number = number * base + Digit(Peek());
        }
        if (at_ == begin) throw Failed("the dump of the registry lacks a number");
        return number;
    }

    // Up to the closing character, which is taken too.
    std::wstring Text(char closing) {
        std::wstring text;
        for (char character = Next(); character != closing; character = Next()) {
            text += character == '\\' ? Escaped() : static_cast<unsigned char>(character);
        }
        return text;
    }

  private:
    static unsigned Digit(char character) {
        if (character >= '0' && character <= '9') return static_cast<unsigned>(character - '0');
        if (character >= 'a' && character <= 'f')
            return static_cast<unsigned>(character - 'a' + 10);
        return 16;
    }

    wchar_t Escaped() {
        static constexpr std::string_view letters = "abtnvfre";
        static constexpr std::string_view meant = "\a\b\t\n\v\f\r\x1B";
        if (Takes("x")) return static_cast<wchar_t>(Number(16, 4));
        if (Digit(Peek()) < 8) return static_cast<wchar_t>(Number(8, 3));
        const char character = Next();
        const std::size_t letter = letters.find(character);
        return letter == std::string_view::npos ? character : meant[letter];
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

std::string LowerCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return FromWide(text);
}

// The control set of this start is saved under its number, and a link leads there.
std::string PathOf(const std::string& path, const std::string& below) {
    static constexpr char numbered[] = "hklm\\system\\controlset001";
    static constexpr char current[] = "hklm\\system\\currentcontrolset";
    std::string whole = below.empty() ? path : path + '\\' + below;
    if (whole.starts_with(numbered)) whole.replace(0, sizeof numbered - 1, current);
    return whole;
}

// A key that has nothing but keys below it is not saved on its own.
void AddKey(std::string key, const std::string& path, RegistryState& state) {
    for (; !state.contains(key); key.erase(key.find_last_of('\\'))) {
        state[key] = std::nullopt;
        if (key.size() <= path.size()) return;
    }
}

RegistryValue Value(Reader& reader) {
    if (reader.Takes("dword:")) return Dword(reader.Number(16, 8));
    RegistryValue value{REG_SZ, {}};
    if (reader.Takes("str(")) {
        value.type = reader.Number(16, 8);
        reader.Expect("):");
    }
    if (reader.Takes("\"")) {
        const std::wstring text = reader.Text('"') + L'\0';
        value.bytes.assign(reinterpret_cast<const char*>(text.data()), text.size() * 2);
        return value;
    }
    reader.Expect("hex");
    value.type = REG_BINARY;
    if (reader.Takes("(")) {
        value.type = reader.Number(16, 8);
        reader.Expect(")");
    }
    reader.Expect(":");
    while (reader.Peek() != '\n') {
        value.bytes += static_cast<char>(reader.Number(16, 2));
        if (reader.Takes(",")) reader.Takes("\\\n  ");
    }
    return value;
}

}  // namespace

void ParseDump(std::string_view text, const std::string& path, RegistryState& state) {
    Reader reader(text);
    reader.Expect("WINE REGISTRY Version 2\n");
    std::string key;
    while (!reader.AtEnd()) {
        if (reader.Takes("[")) {
            key = PathOf(path, LowerCase(reader.Text(']')));
            AddKey(key, path, state);
        } else if (reader.Peek() == '"' || reader.Peek() == '@') {
            const std::wstring name = reader.Next() == '"' ? reader.Text('"') : L"";
            reader.Expect("=");
            state[key + '|' + LowerCase(name)] = Value(reader);
        } else if (reader.Peek() != '#' && reader.Peek() != ';' && reader.Peek() != '\n') {
            throw Failed("the dump of the registry is not understood");
        }
        reader.SkipLine();
    }
}

std::string SavedTree(const std::string& root, const std::string& key) {
    EnableBackupPrivilege();
    RegistryKey opened;
    RegOpenKeyExW(RootOf(root), ToWide(key).c_str(), 0, KEY_READ, opened.Out());
    wchar_t folder[MAX_PATH];
    const std::string file =
        FromWide({folder, GetTempPathW(MAX_PATH, folder)}) + "quillmore-registry.dump";
    const LSTATUS result = RegSaveKeyW(opened.Get(), ToWide(file).c_str(), nullptr);
    if (result) throw Failed("cannot save " + key + ", error " + std::to_string(result));
    std::string text = ReadFile(file);
    DeleteFileW(ToWide(file).c_str());
    return text;
}

void DumpTree(const std::string& root, const std::string& key, RegistryState& state) {
    ParseDump(SavedTree(root, key), LowerCase(ToWide(key.empty() ? root : root + '\\' + key)),
              state);
}

RegistryState SnapshotOfMachine() {
    RegistryState state;
    DumpTree("HKLM", "SOFTWARE", state);
    DumpTree("HKLM", "SYSTEM", state);
    DumpTree("HKCU", "", state);
    // Wine dates its display driver anew whenever a program is the first on its desktop.
    std::erase_if(state,
                  [](const auto& entry) { return entry.first.ends_with("|driverdatedata"); });
    return state;
}

}  // namespace endtoend
