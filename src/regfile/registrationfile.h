#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

// Registration files: what regedit exports and takes, in the form of its version 5. Names and paths
// are UTF-8, in which half a surrogate pair is three bytes like any other character, as the
// registry takes it for a name too.
namespace regfile {

struct Value {
    // Empty: the key's default value.
    std::string name;
    // The value goes, instead of being put there.
    bool removes = false;
    std::uint32_t type = 0;
    // As the registry stores them: those of a text are two a character.
    std::vector<std::uint8_t> bytes = {};
    // Where it begins in the file that it was read from, 1 for the first line.
    int line = 0;
};

struct Key {
    // Written out and in capitals, "HKEY_LOCAL_MACHINE".
    std::string root;
    // Below the root; empty for the root itself.
    std::string path;
    // The key goes with all below it, instead of being made. It has no values then.
    bool removes = false;
    std::vector<Value> values = {};
    int line = 0;
};

// What a file cannot be read for: the line, and a German sentence for the user.
class Slip : public std::exception {
  public:
    Slip(int slipLine, const char* slipReason) : line(slipLine), reason(slipReason) {}
    const char* what() const noexcept override { return reason; }

    int line;
    // A literal.
    const char* reason;
};

// The bytes of a file: UTF-16 or UTF-8 with a byte order mark, otherwise code page 1252. Throws
// Slip, so that nothing is taken of a file that is not right from beginning to end.
std::vector<Key> Read(std::string_view file);

// The same of a text that is UTF-8 already.
std::vector<Key> ReadText(std::string_view text);

// The bytes of a file that gives back these very values, as regedit exports it. What the format
// cannot hold, such as a line end in a key's path, is a runtime::Mistake.
std::string Write(const std::vector<Key>& keys);

}  // namespace regfile
