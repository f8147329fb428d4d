#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/journal.h"

using toolkit::OptionButton;

namespace {

struct OptionButtonFixture {
    NotingHost host;
    TestForm form{host};
    OptionButton& atom = form.Add<OptionButton>("optAtomUhr", "Atomuhr", 1);
    OptionButton& server = form.Add<OptionButton>("optSynServer", "Server", 1);
    OptionButton& other = form.Add<OptionButton>("optOther", "Andere Gruppe", 2);
    Journal clicks;

    OptionButtonFixture() {
        for (OptionButton* button : {&atom, &server, &other}) {
            button->onClick = [this, button] { clicks.push_back(button->Name()); };
        }
    }
};

}  // namespace

TEST_CASE_FIXTURE(OptionButtonFixture,
                  "selecting an option takes the selection from the others of its group") {
    atom.SetValue(true);
    server.SetValue(true);
    CHECK_FALSE(atom.Value());
    CHECK(server.Value());
}

TEST_CASE_FIXTURE(OptionButtonFixture, "options of another group keep their selection") {
    other.SetValue(true);
    atom.SetValue(true);
    CHECK(other.Value());
}

TEST_CASE_FIXTURE(OptionButtonFixture,
                  "an option raises Click when it is selected, not when it is deselected") {
    atom.SetValue(true);
    server.SetValue(true);
    CHECK(clicks == Journal{"optAtomUhr", "optSynServer"});
    server.SetValue(false);
    CHECK(clicks.size() == 2);
}

TEST_CASE_FIXTURE(OptionButtonFixture, "an option that is selected already raises nothing") {
    atom.SetValue(true);
    atom.SetValue(true);
    CHECK(clicks.size() == 1);
}

TEST_CASE_FIXTURE(OptionButtonFixture, "a group may have no selection at all") {
    atom.SetValue(true);
    atom.SetValue(false);
    CHECK_FALSE(atom.Value());
    CHECK_FALSE(server.Value());
}

TEST_CASE_FIXTURE(OptionButtonFixture,
                  "the option that loses the selection shows it before the Click is raised") {
    NotingView view;
    atom.SetValue(true);
    atom.SetView(&view);
    std::size_t shown = 0;
    server.onClick = [&] { shown = view.shown.size(); };
    server.SetValue(true);
    CHECK(shown == 1);
}

TEST_CASE_FIXTURE(OptionButtonFixture,
                  "a failure in the handler passes on with the selection made") {
    server.onClick = [] { throw runtime::Failure(runtime::Overflow); };
    atom.SetValue(true);
    CHECK_THROWS_AS(server.SetValue(true), runtime::Failure);
    CHECK(server.Value());
    CHECK_FALSE(atom.Value());
}
