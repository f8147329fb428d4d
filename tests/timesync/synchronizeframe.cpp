#include "timesync/synchronizeframe.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;

TEST_CASE_FIXTURE(Frame, "the frame carries its captions, and its button can be pressed") {
    const std::pair<const char*, const char*> captions[] = {
        {"fraSynchronize", "Uhrzeit und Kalender synchronisieren"},
        {"optAtomUhr", "Mit Atomuhr synchronisieren"},
        {"optSynServer", "Mit diesem Server synchronisieren:"},
        {"cmdSynchronizeDateTime", "Synchronisieren"},
        {"lblDateAndTime", ""}};
    for (const auto& [name, caption] : captions) {
        CAPTURE(name);
        CHECK(form.Find<toolkit::Control>(name).Caption() == caption);
        CHECK(form.Find<toolkit::Control>(name).Enabled());
    }
    CHECK(form.Find<toolkit::TextBox>("txtSyncServer").Text() == "");
}

TEST_CASE_FIXTURE(Frame, "of the two sources one is chosen") {
    auto& atom = form.Find<toolkit::OptionButton>("optAtomUhr");
    auto& server = form.Find<toolkit::OptionButton>("optSynServer");
    server.SetValue(true);
    CHECK_FALSE(atom.Value());
    atom.SetValue(true);
    CHECK_FALSE(server.Value());
}
