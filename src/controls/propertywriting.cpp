// The way into a store. The program only reads its buttons, so this goes when it is linked.
#include <utility>

#include "controls/buttonpropertylist.h"
#include "controls/propertystore.h"

namespace controls {
namespace {

using toolkit::Colour;
using toolkit::Font;
using toolkit::SharedPicture;

std::string ToText(const Font& font) {
    if (font.name.empty()) return "";
    return font.name + ';' + std::to_string(font.points) + ';' + (font.bold ? "b" : "") +
           (font.italic ? "i" : "") + (font.underline ? "u" : "");
}

std::string ToText(Colour colour) {
    std::string text = "&H";
    for (int shift = 28; shift >= 0; shift -= 4) text += "0123456789ABCDEF"[colour >> shift & 15];
    return text;
}

struct Writer {
    PropertyStore& store;

    void operator()(const char* key, std::int16_t member) const {
        store.Write(key, std::int64_t{member});
    }
    void operator()(const char* key, bool member) const {
        store.Write(key, std::int64_t{member ? -1 : 0});
    }
    void operator()(const char* key, Colour member, Colour = 0) const {
        store.Write(key, ToText(member));
    }
    void operator()(const char* key, const std::string& member) const { store.Write(key, member); }
    void operator()(const char* key, const Font& member) const { store.Write(key, ToText(member)); }
    void operator()(const char* key, const SharedPicture& member) const {
        store.Write(key, "", member);
    }
};

}  // namespace

void WriteButtonProperties(PropertyStore& store, const ButtonProperties& properties) {
    VisitProperties(Writer{store}, properties);
}

void PropertyStore::Write(std::string_view key, std::string text, toolkit::SharedPicture picture) {
    if (const Entry* known = Find(key)) {
        Entry& entry = entries_[static_cast<std::size_t>(known - entries_.data())];
        entry.text = std::move(text);
        entry.picture = std::move(picture);
        return;
    }
    entries_.push_back({std::string(key), std::move(text), std::move(picture)});
}

void PropertyStore::Write(std::string_view key, std::int64_t number) {
    Write(key, std::to_string(number));
}

}  // namespace controls
