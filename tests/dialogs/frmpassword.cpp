#include "dialogs/frmpassword.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "controls/recordingcanvas.h"
#include "platform/simulated/machine.h"
#include "toolkit/controls.h"

namespace {

struct Asked {
    platform::simulated::Machine machine;
    dialogs::frmPassword form{machine.services};
    toolkit::TextBox& password = form.Find<toolkit::TextBox>("txtPasswort");

    // Shows the dialog to a user who types and then does something.
    void To(const char* text, std::function<void(toolkit::Form&)> user) {
        machine.forms.WhenModal("frmPassword", [=, this](toolkit::Form& shown) {
            password.SetText(text);
            user(shown);
        });
        form.ShowModal();
    }
    controls::chameleonButton& Button(const char* name) {
        return form.Find<controls::chameleonButton>(name);
    }
};

std::function<void(toolkit::Form&)> Pressing(const char* name) {
    return [=](toolkit::Form& form) { form.Find<controls::chameleonButton>(name).Press(); };
}

}  // namespace

TEST_CASE("OK hides the password dialog, which stays loaded with what was typed") {
    Asked test;
    test.To("Geheim", Pressing("cmdOK"));
    CHECK_FALSE(test.form.Visible());
    CHECK(test.form.Loaded());
    CHECK(test.password.Text() == "Geheim");
}

TEST_CASE("Cancel empties the password and hides the dialog, which stays loaded") {
    Asked test;
    test.To("Geheim", Pressing("cmdCancel"));
    CHECK_FALSE(test.form.Visible());
    CHECK(test.form.Loaded());
    CHECK(test.password.Text().empty());
}

TEST_CASE("Cancel empties the password before it hides the dialog") {
    Asked test;
    bool visible = false;
    test.password.onChange = [&] {
        if (test.password.Text().empty()) visible = test.form.Visible();
    };
    test.To("Geheim", Pressing("cmdCancel"));
    CHECK(visible);
}

TEST_CASE("the close box empties the password and unloads the dialog") {
    Asked test;
    test.To("Geheim", [](toolkit::Form& form) { form.Unload(); });
    CHECK_FALSE(test.form.Visible());
    CHECK_FALSE(test.form.Loaded());
    CHECK(test.password.Text().empty());
}

TEST_CASE("the password dialog can be shown again after each way out") {
    Asked test;
    test.To("eins", Pressing("cmdCancel"));
    test.To("zwei", [](toolkit::Form& form) { form.Unload(); });
    test.To("drei", Pressing("cmdOK"));
    CHECK(test.password.Text() == "drei");
    CHECK(test.form.Loaded());
}

TEST_CASE("the password is typed hidden, with Return for OK and Escape for Cancel") {
    Asked test;
    CHECK(test.form.Name() == "frmPassword");
    CHECK(test.password.Style().password);
    CHECK(test.form.firstFocus == &test.password);
    CHECK(test.form.defaultButton == &test.Button("cmdOK"));
    CHECK(test.form.cancelButton == &test.Button("cmdCancel"));
    CHECK(test.Button("cmdOK").Caption() == "OK");
    CHECK(test.Button("cmdCancel").Caption() == "Abbrechen");
    CHECK(test.form.FindControl("Label1") != nullptr);
    CHECK(test.form.FindControl("Label2") != nullptr);
}

TEST_CASE("the OK button of the password dialog wears the frame of the default button") {
    Asked test;
    test.form.Load();
    const auto framed = [&](const char* name) {
        controls_test::RecordingCanvas canvas;
        test.Button(name).Show({0, 0, 75, 23});
        test.Button(name).Paint(canvas, {0, 0, 75, 23});
        return canvas.calls.at(1) == "FrameRect 0,0 75x23 black";
    };
    CHECK(framed("cmdOK"));
    CHECK_FALSE(framed("cmdCancel"));
}
