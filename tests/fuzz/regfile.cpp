// Registration files: any bytes as a file, and as keys and values that are written.
#include "fuzz/target.h"
#include "regfile/places.h"
#include "regfile/registrationfile.h"
#include "runtime/encoding.h"

namespace fuzz {
namespace {

// All that a file says, without the lines on which it does.
std::string Said(const std::vector<regfile::Key>& keys) {
    std::string text;
    const auto add = [&](const std::string& part) {
        text += std::to_string(part.size()) + ':' + part + '|';
    };
    for (const regfile::Key& key : keys) {
        add(key.removes ? "-" : "+");
        add(key.root);
        add(key.path);
        for (const regfile::Value& value : key.values) {
            add(value.name);
            add(value.removes ? "-" : std::to_string(value.type));
            add({value.bytes.begin(), value.bytes.end()});
        }
        text += '\n';
    }
    return text;
}

void CheckRoundTrip(const std::vector<regfile::Key>& keys) {
    const std::string file = regfile::Write(keys);
    const std::vector<regfile::Key> again = regfile::Read(file);
    RequireSame(Said(again), Said(keys), "what was written and read");
    Require(regfile::Write(again) == file, "written again it is another file");
    // The rest of each line is its own, so a text of the same bytes is the same file.
    Require(Said(regfile::ReadText(runtime::FromUtf16(file).substr(3))) == Said(keys),
            "as a text it says something else");
}

void CheckFile(std::string_view file) {
    // At most so many lines as there may be ends of them, in whatever code.
    const auto lines = static_cast<int>(1 + std::count(file.begin(), file.end(), '\n') +
                                        std::count(file.begin(), file.end(), '\r'));
    std::vector<regfile::Key> keys;
    try {
        keys = regfile::Read(file);
    } catch (const regfile::Slip& slip) {
        Require(slip.line >= 1 && slip.line <= lines, "a slip on no line of the file");
        Require(*slip.reason != '\0', "a slip without a reason");
        return;
    }
    int line = 1;
    for (const regfile::Key& key : keys) {
        Require(key.line > line && key.line <= lines, "a key on no line of the file");
        Require(regfile::RootNamed(key.root) == key.root && !key.root.empty(), "no root");
        Require(regfile::IsPath(key.path), "no path");
        Require(!key.removes || (key.values.empty() && !key.path.empty()), "values of what goes");
        line = key.line;
        for (const regfile::Value& value : key.values) {
            Require(value.line > line && value.line <= lines, "a value on no line of the file");
            Require(!value.removes || value.bytes.empty(), "data of what goes");
            line = value.line;
        }
    }
    CheckRoundTrip(keys);
}

// UTF-8 without a NUL. Two halves of a pair that come together without one make a character.
std::string TextFrom(std::string_view bytes) {
    std::string text = runtime::FromUtf16(bytes);
    std::erase(text, '\0');
    return runtime::FromUtf16(runtime::ToUtf16(text));
}

std::vector<regfile::Key> TakeKeys(Input& bytes) {
    constexpr const char* roots[] = {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_CONFIG",
                                     "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS"};
    std::vector<regfile::Key> keys;
    while (!bytes.AtEnd()) {
        regfile::Key key{.root = roots[bytes.Below(5)], .path = TextFrom(bytes.Piece())};
        if (!regfile::IsPath(key.path)) key.path = "Ort";
        const std::size_t count = bytes.Below(5);
        key.removes = count == 4 && !key.path.empty();
        for (std::size_t i = 0; i < count && !key.removes; ++i) {
            regfile::Value value{.name = TextFrom(bytes.Piece())};
            const std::size_t type = bytes.Below(14);
            value.removes = type == 13;
            if (!value.removes) {
                value.type = static_cast<std::uint32_t>(type == 12 ? bytes.Number() : type);
                value.bytes = BytesOf(bytes.Piece());
            }
            key.values.push_back(std::move(value));
        }
        keys.push_back(std::move(key));
    }
    return keys;
}

}  // namespace

FUZZ_TARGET(regfile) {
    Input bytes(input);
    if (bytes.Flag()) {
        CheckRoundTrip(TakeKeys(bytes));
    } else {
        CheckFile(bytes.Rest());
    }
}

}  // namespace fuzz
