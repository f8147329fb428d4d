#include "platform/settingsstore.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace {

using contract::Title;

struct SettingsStoreFixture {
    contract::TestMachine machine;
    platform::SettingsStore& store = machine.Services().settingsStore;
};

}  // namespace

TEST_CASE_FIXTURE(SettingsStoreFixture, "an absent title, section or key gives the fallback") {
    CHECK(store.Get(Title, "Options", "Tab", "0") == "0");
    CHECK(store.Get(Title, "Options", "Tab", "") == "");
    store.Save(Title, "Options", "Other", "1");
    CHECK(store.Get(Title, "Options", "Tab", "7") == "7");
    CHECK(store.Get(Title, "Desktop", "Other", "7") == "7");
}

TEST_CASE_FIXTURE(SettingsStoreFixture, "what was saved is read again and the last text wins") {
    store.Save(Title, "Options", "Tab", "3");
    CHECK(store.Get(Title, "Options", "Tab", "0") == "3");
    store.Save(Title, "Options", "Tab", "");
    CHECK(store.Get(Title, "Options", "Tab", "0") == "");
    store.Save(Title, "Options", "Tab", "a much longer text than before");
    CHECK(store.Get(Title, "Options", "Tab", "0") == "a much longer text than before");
}

TEST_CASE_FIXTURE(SettingsStoreFixture, "texts keep their umlauts, blanks and length") {
    const std::string longText(5000, 'x');
    for (const std::string& text :
         {std::string("Größe: äöüß €"), std::string("  blanks  "), longText}) {
        store.Save(Title, "Options", "ServerName", text);
        CHECK(store.Get(Title, "Options", "ServerName", "") == text);
    }
}

TEST_CASE_FIXTURE(SettingsStoreFixture, "sections and titles are apart, letters' case is not") {
    store.Save(Title, "Options", "Tab", "1");
    store.Save(Title, "Desktop", "Tab", "2");
    CHECK(store.Get(Title, "Options", "Tab", "") == "1");
    CHECK(store.Get(Title, "Desktop", "Tab", "") == "2");
    CHECK(store.Get(Title, "OPTIONS", "tab", "") == "1");
    CHECK(store.Get(std::string(Title) + "2", "Options", "Tab", "none") == "none");
}

TEST_CASE_FIXTURE(SettingsStoreFixture,
                  "a section is deleted with all its keys, and an absent one passed over") {
    store.Save(Title, "Config", "Count", "1");
    store.Save(Title, "Config", "Drives1", "E:=>");
    store.Save(Title, "Config2", "Count", "2");
    store.DeleteSection(Title, "Config");
    CHECK(store.Get(Title, "Config", "Count", "none") == "none");
    CHECK(store.Get(Title, "Config", "Drives1", "none") == "none");
    CHECK(store.Get(Title, "Config2", "Count", "none") == "2");
    CHECK_NOTHROW(store.DeleteSection(Title, "Config"));
    CHECK_NOTHROW(store.DeleteSection(std::string(Title) + "2", "Config"));
}
