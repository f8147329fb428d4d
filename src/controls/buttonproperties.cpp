#include "controls/buttonproperties.h"

#include <limits>
#include <utility>

#include "controls/buttonpropertylist.h"
#include "controls/propertystore.h"
#include "runtime/number.h"

namespace controls {
namespace {

using toolkit::Colour;
using toolkit::Font;
using toolkit::SharedPicture;

// "Tahoma;8;bi": name, points, and a letter each for bold, italic and underlined.
Font ToFont(std::string_view text) {
    Font font;
    const std::size_t first = text.find(';');
    font.name = text.substr(0, first);
    if (first == std::string_view::npos) return font;
    text.remove_prefix(first + 1);
    const std::size_t second = text.find(';');
    const auto points = runtime::ParseNumber(text.substr(0, second), {});
    if (points && *points >= 1 && *points < 1000) font.points = static_cast<int>(*points);
    if (second == std::string_view::npos) return font;
    const auto has = [&](char letter) { return text.find(letter, second) != text.npos; };
    font.bold = has('b');
    font.italic = has('i');
    font.underline = has('u');
    return font;
}

struct Reader {
    const PropertyStore& store;

    void operator()(const char* key, std::int16_t& member) const {
        using Limits = std::numeric_limits<std::int16_t>;
        const std::int64_t number = store.Number(key).value_or(member);
        if (number < Limits::min() || number > Limits::max()) return;
        member = static_cast<std::int16_t>(number);
    }
    void operator()(const char* key, bool& member) const {
        member = store.Truth(key).value_or(member);
    }
    void operator()(const char* key, Colour& member) const { (*this)(key, member, member); }
    void operator()(const char* key, Colour& member, Colour followed) const {
        member = store.Colour(key).value_or(followed);
    }
    void operator()(const char* key, std::string& member) const {
        if (const PropertyStore::Entry* entry = store.Find(key)) member = entry->text;
    }
    void operator()(const char* key, Font& member) const {
        if (const PropertyStore::Entry* entry = store.Find(key)) member = ToFont(entry->text);
    }
    void operator()(const char* key, SharedPicture& member) const {
        if (const PropertyStore::Entry* entry = store.Find(key)) member = entry->picture;
    }
};

}  // namespace

ButtonProperties ReadButtonProperties(const PropertyStore& store) {
    ButtonProperties properties;
    VisitProperties(Reader{store}, properties);
    return properties;
}

}  // namespace controls
