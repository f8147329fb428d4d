#include <doctest/doctest.h>

#include "toolkit/journal.h"

namespace {

using toolkit::FormAspect;

struct NotingFormView final : toolkit::FormView {
    void Refresh(FormAspect what) override { shown.push_back(what); }

    std::vector<FormAspect> shown;
};

struct Layered {
    NotingHost host;
    TestForm form{host};
    NotingFormView view;

    Layered() {
        form.Load();
        form.SetView(&view);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Layered, "a form is not layered and opaque until it is told") {
    CHECK_FALSE(form.Layered());
    CHECK(form.Layer() == toolkit::LayerAttributes{255, 0});
    CHECK(view.shown.empty());
}

TEST_CASE_FIXTURE(Layered, "a form becomes layered once, its attributes are passed on each time") {
    form.MakeLayered();
    form.MakeLayered();
    form.SetLayerAttributes({7, 2});
    form.SetLayerAttributes({7, 2});
    CHECK(form.Layered());
    CHECK(form.Layer() == toolkit::LayerAttributes{7, 2});
    CHECK(view.shown == std::vector{FormAspect::Layered, FormAspect::LayerAttributes,
                                    FormAspect::LayerAttributes});
}

TEST_CASE_FIXTURE(Layered, "hiding keeps the transparency, unloading ends it with the window") {
    form.MakeLayered();
    form.SetLayerAttributes({7, 2});
    form.Show();
    form.Hide();
    CHECK(form.Layered());
    CHECK(form.Layer().alpha == 7);
    form.Unload();
    CHECK_FALSE(form.Layered());
    CHECK(form.Layer().alpha == 255);
}
