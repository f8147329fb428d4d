#include "cmd/randomregistry.h"

#include "cmd/optionswindow.h"
#include "cmd/places.h"
#include "cmd/profile.h"

namespace cmd_test {
namespace {

using platform::simulated::StoredValue;

StoredValue RandomValue(std::mt19937& dice) {
    using namespace platform::simulated;
    const auto type = static_cast<std::uint32_t>(dice() % 13);
    switch (dice() % 8) {
        case 0:
            return DwordValue(type % 3);
        case 1:
            return DwordValue(static_cast<std::uint32_t>(dice()));
        case 2:
            return TextValue(dice() % 2 == 0 ? "1" : "0");
        case 3:
            return BareTextValue(dice() % 2 == 0 ? "yes" : "no");
        case 4:
            return TextValue("Text mit Umlauten äöü und €");
        case 5:
            return {type, {}};
        default: {
            StoredValue value{type, {}};
            for (std::size_t size = dice() % 40; size > 0; --size) {
                value.bytes.push_back(static_cast<std::uint8_t>(dice()));
            }
            return value;
        }
    }
}

std::string RandomWord(std::mt19937& dice, int longest) {
    constexpr const char* letters[] = {"a", "B", "7",  " ",  "ä", "€",
                                       ";", "=", "\\", "\"", "[", "-"};
    std::string word;
    for (auto left = dice() % static_cast<unsigned>(longest + 1); left > 0; --left) {
        word += letters[dice() % std::size(letters)];
    }
    return word;
}

}  // namespace

void FillAtRandom(platform::simulated::Registry& registry, std::mt19937& dice) {
    for (const cmd::Setting& setting : cmd::Settings()) {
        for (const cmd::Place& place : setting.places) {
            switch (dice() % 4) {
                case 0:
                    break;
                case 1:
                    registry.MakeKey(place.root, place.key);
                    break;
                default:
                    registry.Put(place.root, place.key, place.value, RandomValue(dice));
            }
        }
    }
    for (const cmd::TouchedKey& key : cmd::TouchedKeys()) {
        if (dice() % 6 == 0) registry.Put(key.root, key.path, "fremd", RandomValue(dice));
        if (dice() % 9 == 0) registry.MakeKey(key.root, key.path + "\\fremd");
        if (dice() % 9 == 0) registry.EraseKey(key.root, key.path);
    }
}

std::string RandomProfile(std::mt19937& dice) {
    std::vector<cmd::ProfileLine> lines;
    for (const cmd::Setting& setting : cmd::Settings()) {
        if (dice() % 5 == 0) continue;
        std::string value = std::to_string(dice() % 2);
        if (!cmd::IsCheckBox(setting.control)) {
            value = cmd::OptionsWindow::WantsNumber(setting.control)
                        ? std::to_string(dice() % 65536)
                        : RandomWord(dice, 3);
        }
        lines.push_back(
            {std::string(setting.page), std::string(setting.control), value, 0, "beliebig"});
    }
    return cmd::WriteProfile(lines);
}

}  // namespace cmd_test
