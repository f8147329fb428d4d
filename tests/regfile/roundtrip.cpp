#include <doctest/doctest.h>

#include <random>

#include "units.h"

using namespace regfile_test;

namespace {

// Of what a registry can hold and more: whatever a program has put there, by whatever slip.
class AnyRegistry {
  public:
    explicit AnyRegistry(unsigned seed) : dice_(seed) {}

    std::vector<Key> Keys() {
        std::vector<Key> keys(Throw(6));
        for (Key& key : keys) {
            static constexpr const char* Roots[] = {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_CONFIG",
                                                    "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE",
                                                    "HKEY_USERS"};
            key.root = Roots[Throw(5)];
            key.removes = Throw(5) == 0;
            for (unsigned part = key.removes ? 1 + Throw(3) : Throw(4); part > 0; --part) {
                if (!key.path.empty()) key.path += '\\';
                key.path += PathPart();
            }
            if (key.removes) continue;
            key.values.resize(Throw(8));
            for (Value& value : key.values) Fill(value);
        }
        return keys;
    }

  private:
    unsigned Throw(unsigned sides) { return static_cast<unsigned>(dice_() % sides); }

    std::u16string Text(unsigned longest) {
        std::u16string text;
        for (unsigned left = Throw(longest + 1); left > 0; --left) {
            static constexpr char16_t Odd[] = u"\"\\=]@;[-,\r\n\t \u00FC\u00C4\u20AC\uFEFF\uFFFF";
            switch (Throw(8)) {
                case 0:
                    text += Odd[Throw(std::size(Odd) - 1)];
                    break;
                case 1:
                    text += static_cast<char16_t>(0xD800 + Throw(0x800));
                    break;
                case 2:
                    text += u"\U0001F600";
                    break;
                case 3:
                    text += static_cast<char16_t>(1 + Throw(0xFFFF));
                    break;
                default:
                    text += static_cast<char16_t>(u' ' + Throw(95));
                    break;
            }
        }
        return text;
    }

    // UTF-8 with lone surrogates in three bytes, and made otherwise than by the program.
    static std::string Narrow(const std::u16string& units) {
        std::string text;
        for (std::size_t i = 0; i < units.size(); ++i) {
            const unsigned unit = units[i];
            const unsigned next = i + 1 < units.size() ? units[i + 1] : 0u;
            if (unit >= 0xD800 && unit < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
                const unsigned character = (unit - 0xD800) * 0x400 + (next - 0xDC00) + 0x10000;
                text += static_cast<char>(0xF0 + character / 0x40000);
                text += static_cast<char>(0x80 + character / 0x1000 % 0x40);
                text += static_cast<char>(0x80 + character / 0x40 % 0x40);
                text += static_cast<char>(0x80 + character % 0x40);
                ++i;
            } else if (unit < 0x80) {
                text += static_cast<char>(unit);
            } else if (unit < 0x800) {
                text += static_cast<char>(0xC0 + unit / 0x40);
                text += static_cast<char>(0x80 + unit % 0x40);
            } else {
                text += static_cast<char>(0xE0 + unit / 0x1000);
                text += static_cast<char>(0x80 + unit / 0x40 % 0x40);
                text += static_cast<char>(0x80 + unit % 0x40);
            }
        }
        return text;
    }

    std::string PathPart() {
        std::u16string part = u"k" + Text(20);
        std::erase_if(part, [](char16_t c) { return c == u'\\' || c == u'\r' || c == u'\n'; });
        return Narrow(part);
    }

    void Fill(Value& value) {
        if (Throw(5) != 0) value.name = Narrow(Text(Throw(10) == 0 ? 300 : 12));
        value.removes = Throw(8) == 0;
        if (value.removes) return;
        value.type = Throw(10) == 0 ? static_cast<std::uint32_t>(dice_()) : Throw(12);
        if (Throw(3) == 0) value.type = 1;
        if (Throw(2) == 0) {
            value.bytes = Terminated(Text(60));
            if (Throw(4) == 0) value.bytes.resize(value.bytes.size() - 2);
            if (Throw(4) == 0) value.bytes.push_back(static_cast<std::uint8_t>(Throw(3)));
            if (Throw(4) == 0) value.bytes.insert(value.bytes.begin(), 2, 0);
        } else {
            value.bytes.resize(Throw(20) == 0 ? Throw(5001) : Throw(Throw(2) == 0 ? 6 : 100));
            for (std::uint8_t& byte : value.bytes) byte = static_cast<std::uint8_t>(dice_());
        }
    }

    std::mt19937 dice_;
};

std::string Described(const std::vector<Key>& keys) {
    std::string text;
    const auto add = [&](const std::string& part) {
        text += std::to_string(part.size()) + ':' + part + ' ';
    };
    for (const Key& key : keys) {
        add(key.root);
        add(key.path);
        text += key.removes ? "goes\n" : "\n";
        for (const Value& value : key.values) {
            add(value.name);
            text += value.removes ? "goes\n" : std::to_string(value.type) + ' ';
            add({value.bytes.begin(), value.bytes.end()});
            text += '\n';
        }
    }
    return text;
}

}  // namespace

TEST_CASE("thousands of random registries come back byte for byte") {
    std::size_t values = 0;
    std::size_t quoted = 0;
    for (unsigned seed = 1; seed <= 4000; ++seed) {
        const std::vector<Key> keys = AnyRegistry(seed).Keys();
        const std::string file = Write(keys);
        const std::vector<Key> read = Read(file);
        // Taken apart by hand, as a text of that many bytes is too long to be shown.
        const bool same = Described(read) == Described(keys);
        CAPTURE(seed);
        CHECK(same);
        CHECK(Write(read) == file);
        for (const Key& key : keys) values += key.values.size();
        const std::u16string units = UnitsOf(file);
        for (std::size_t at = 0; (at = units.find(u"=\"", at)) != std::u16string::npos; ++at) {
            ++quoted;
        }
    }
    // There was something to come back, in either form.
    CHECK(values > 20000);
    CHECK(quoted > 500);
}
