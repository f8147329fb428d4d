#include "cmd/statelist.h"

#include <algorithm>

#include "cmd/optionswindow.h"

namespace cmd {
namespace {

using platform::Registry;

constexpr char Absent[] = "nicht vorhanden";
constexpr char Unreadable[] = "nicht lesbar";

struct PlaceState {
    std::string key;
    std::string value;
    std::string type;
    std::string data;
};

PlaceState StateOf(const Place& place, WideRegistry& registry, bool all, Refusals& refusals) {
    PlaceState state{PlaceText(place.root, place.key), place.value.empty() ? "@" : place.value, "",
                     Absent};
    WideRegistry::Value value;
    const Registry::Result result = registry.Read(place.root, place.key, place.value, value);
    if (result == Registry::Success) {
        state.type = TypeText(value.type);
        state.data = DataText(value, all);
    } else if (result != Registry::FileNotFound) {
        state.data = Unreadable;
        refusals.push_back({PlaceText(place.root, place.key, place.value), result});
    }
    return state;
}

std::string OnOneLine(std::string text) {
    for (char& c : text) {
        if (c == '\r' || c == '\n' || c == '\t') c = ' ';
    }
    return text;
}

std::string ShownText(std::string_view control, const std::string& shown) {
    if (IsCheckBox(control)) return shown == "0" ? "aus" : "ein";
    return '"' + shown + '"';
}

std::string CsvField(const std::string& text) {
    std::string field = "\"";
    for (const char c : text) {
        if (c == '"') field += '"';
        field += c;
    }
    return field + '"';
}

std::string CsvLine(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) line += (line.empty() ? "" : ";") + CsvField(field);
    return line + '\n';
}

std::string PlainLine(const std::vector<std::string>& fields,
                      const std::vector<PlaceState>& places) {
    std::string line;
    for (const std::string& field : fields) line += (line.empty() ? "" : " | ") + field;
    for (const PlaceState& place : places) {
        line += " | " + place.key + " [" + place.value + "] " + place.type +
                (place.type.empty() ? "" : " ") + place.data;
    }
    return line + '\n';
}

}  // namespace

std::string StateList(const OptionsWindow& window, WideRegistry& registry, bool csv,
                      Refusals& refusals) {
    std::string list;
    if (csv) {
        list = CsvLine({"Seite", "Steuerelement", "Beschriftung", "Anzeige", "Schlüssel", "Wert",
                        "Typ", "Daten"});
    }
    for (const Setting& setting : Settings()) {
        std::vector<PlaceState> places;
        for (const Place& place : setting.places) {
            places.push_back(StateOf(place, registry, csv, refusals));
        }
        const std::string shown = OnOneLine(window.Shown(setting.control));
        std::vector<std::string> fields{std::string(setting.page), std::string(setting.control),
                                        window.Caption(setting.control)};
        if (!csv) {
            fields.push_back(ShownText(setting.control, shown));
            list += PlainLine(fields, places);
            continue;
        }
        fields.push_back(shown);
        for (const PlaceState& place : places) {
            fields.insert(fields.end(), {place.key, place.value, place.type, place.data});
        }
        list += CsvLine(fields);
    }
    return list;
}

}  // namespace cmd
