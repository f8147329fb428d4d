#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/failureof.h"

// A target takes any bytes for what comes from outside, and throws where what the program makes of
// them is wrong. libFuzzer makes the bytes (tools/fuzz); a replay gives it those of the corpus.
//
//   FUZZ_TARGET(numbers) { ... input ... }
#ifdef QUILLMORE_FUZZ
#define FUZZ_TARGET(name)                                                               \
    static void Fuzz_##name(std::string_view input);                                    \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) { \
        Fuzz_##name({reinterpret_cast<const char*>(data), size});                       \
        return 0;                                                                       \
    }                                                                                   \
    static void Fuzz_##name(std::string_view input)
#else
#define FUZZ_TARGET(name)                                                \
    static void Fuzz_##name(std::string_view input);                     \
    static const fuzz::Registered registered_##name(#name, Fuzz_##name); \
    static void Fuzz_##name(std::string_view input)
#endif

namespace fuzz {

using Target = void (*)(std::string_view input);

// All targets of a replay by their names.
inline std::vector<std::pair<std::string, Target>>& Targets() {
    static std::vector<std::pair<std::string, Target>> targets;
    return targets;
}

struct Registered {
    Registered(const char* name, Target target) { Targets().emplace_back(name, target); }
};

class Finding : public std::exception {
  public:
    explicit Finding(std::string what) : what_(std::move(what)) {}
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    std::string what_;
};

inline void Require(bool holds, const char* sentence) {
    if (!holds) throw Finding(sentence);
}

inline void RequireSame(const std::string& is, const std::string& wanted, const char* what) {
    if (is != wanted) throw Finding(std::string(what) + ": \"" + is + "\", not \"" + wanted + '"');
}

// The input, taken from its front. Behind its end there are zeros.
class Input {
  public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }

    std::uint8_t Byte() {
        const std::string_view byte = Take(1);
        return byte.empty() ? 0 : static_cast<std::uint8_t>(byte.front());
    }
    bool Flag() { return Byte() % 2 != 0; }
    std::size_t Below(std::size_t limit) { return Byte() % limit; }

    std::uint32_t Number(int bytes = 4) {
        std::uint32_t number = 0;
        while (bytes-- > 0) number = number << 8 | Byte();
        return number;
    }

    // Fewer where there are no more.
    std::string_view Take(std::size_t count) {
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    // As many as the byte before them says.
    std::string_view Piece() {
        const std::size_t size = Byte();
        return Take(size);
    }
    std::string_view Rest() { return Take(rest_.size()); }

  private:
    std::string_view rest_;
};

inline std::vector<std::uint8_t> BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

}  // namespace fuzz
