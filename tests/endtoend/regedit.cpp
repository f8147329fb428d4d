// The system's own importer and exporter against the program's reader and writer.
#include <doctest/doctest.h>

#include "endtoend/files.h"
#include "endtoend/lines.h"
#include "endtoend/program.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"
#include "platform/win32/text.h"
#include "regfile/registrationfile.h"

namespace endtoend {
namespace {

const std::string Probe = "Software\\QuillmoreProbe";
constexpr char UserRoot[] = "HKEY_CURRENT_USER";

void Regedit(const std::string& arguments) {
    Program(WindowsFolder() + "\\regedit.exe", arguments).WaitForEnd();
}

// Files and keys of one case, gone at its end.
struct Registrations {
    ~Registrations() {
        DeleteFileW(platform::win32::ToWide(path).c_str());
        DeleteTree("HKCU", Probe);
    }

    void Import(const std::vector<regfile::Key>& keys) {
        WriteFile(path, regfile::Write(keys));
        Regedit("/S \"" + path + "\"");
    }

    std::string path = WindowsFolder() + "\\probe ü.reg";
};

std::vector<std::uint8_t> Stored(std::string_view text) {
    const std::string bytes = TerminatedText(text).bytes;
    return {bytes.begin(), bytes.end()};
}

// Values of all types and of every kind of content, with names that the format has to escape.
std::vector<regfile::Value> AllSorts() {
    std::vector<regfile::Value> values = {
        {"", false, 1, Stored("Standard")},
        {"Pfad\\zu \"ihm\" [ü]=€;@", false, 1, Stored("C:\\WINDOWS \"ü\" €;]=")},
        {"leer", false, 1, Stored("")},
        {"Zahl", false, 4, {0x0A, 0, 0, 0xFF}},
        {"zwei Zeilen", false, 1, Stored("a\r\nb")},
    };
    for (std::uint32_t type = 0; type < 12; ++type) {
        for (const std::size_t size : {0u, 1u, 2u, 3u, 4u, 5u, 21u, 22u, 23u, 24u, 500u, 5000u}) {
            regfile::Value value{std::to_string(type) + " of " + std::to_string(size), false, type};
            for (std::size_t i = 0; i < size; ++i) {
                value.bytes.push_back(static_cast<std::uint8_t>(i * 37 + 201));
            }
            if (type == 1 || type == 2 || type == 7) {
                value.bytes.resize(size / 2 * 2);
                value.bytes.insert(value.bytes.end(), 2, 0);
            }
            values.push_back(value);
        }
    }
    return values;
}

void CheckStored(const std::string& key, const std::vector<regfile::Value>& values) {
    for (const regfile::Value& value : values) {
        CAPTURE(value.name);
        const auto found = ReadValue({"HKCU", key, value.name});
        const RegistryValue wanted{value.type, {value.bytes.begin(), value.bytes.end()}};
        CHECK(found == wanted);
    }
}

TEST_CASE("regedit imports the very bytes that a file was written from") {
    Registrations registrations;
    const auto values = AllSorts();
    registrations.Import(
        {{UserRoot, Probe + "\\a] [b", false, values}, {UserRoot, Probe + "\\Bücher", false, {}}});
    CheckStored(Probe + "\\a] [b", values);
    CHECK(Snapshot({"HKCU\\" + Probe}).size() == values.size() + 3);
}

TEST_CASE("regedit gives a text an end that has none, whatever the file says") {
    // So Wine's does, by its own doing and not by the form; what writes bare bytes gives them back.
    Registrations registrations;
    std::vector<regfile::Value> values;
    for (const std::uint32_t type : {1u, 2u, 7u}) {
        values.push_back({std::to_string(type), false, type, {'a', 0, 'b', 0}});
    }
    registrations.Import({{UserRoot, Probe, false, values}});
    for (regfile::Value& value : values) value.bytes.insert(value.bytes.end(), 2, 0);
    CheckStored(Probe, values);
}

TEST_CASE("regedit takes away what a file says") {
    Registrations registrations;
    for (const char* name : {"", "a\\b\"", "kept"}) WriteValue({"HKCU", Probe, name}, Dword(1));
    CreateKey("HKCU", Probe + "\\gone\\with this");
    registrations.Import({{UserRoot, Probe, false, {{"", true}, {"a\\b\"", true}}},
                          {UserRoot, Probe + "\\gone", true, {}}});
    CHECK(Joined(Differences({}, Snapshot({"HKCU\\" + Probe}))) ==
          "hkcu\\software\\quillmoreprobe: absent -> a key\n"
          "hkcu\\software\\quillmoreprobe|kept: absent -> type 4 01 00 00 00\n");
}

TEST_CASE("what regedit exports is read, and would be written in the same form") {
    Registrations registrations;
    auto values = AllSorts();
    // What Wine's regedit does not show as it is: a text with line ends (as \n and \r, which the
    // reader refuses) or with characters that are none, and a number that is not of four bytes.
    std::erase_if(values, [](const regfile::Value& value) {
        return value.name == "zwei Zeilen" || (value.type == 4 && value.bytes.size() != 4) ||
               (value.type == 1 && value.name.starts_with("1 of"));
    });
    registrations.Import({{UserRoot, Probe, false, values}});
    Regedit("/E \"" + registrations.path + "\" \"HKEY_CURRENT_USER\\" + Probe + "\"");
    const std::string exported = ReadFile(registrations.path);
    const auto keys = regfile::Read(exported);
    REQUIRE(keys.size() == 1);
    CHECK(keys[0].path == Probe);
    CHECK(keys[0].values.size() == values.size());
    CheckStored(Probe, keys[0].values);
    const bool same = regfile::Write(keys) == exported;
    CHECK(same);
}

}  // namespace
}  // namespace endtoend
