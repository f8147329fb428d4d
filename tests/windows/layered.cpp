#include <doctest/doctest.h>

#include "windows/desk.h"

using namespace windows;

namespace {

struct Fading : Desk {
    TestForm form{host, "frmAbout"};

    HWND Window() const { return host.WindowOf(form); }
    bool IsLayered() const { return (GetWindowLongW(Window(), GWL_EXSTYLE) & WS_EX_LAYERED) != 0; }
};

}  // namespace

TEST_CASE_FIXTURE(Fading, "a layered form has the style, with the others that it had before") {
    form.Load();
    CHECK_FALSE(IsLayered());
    const LONG before = GetWindowLongW(Window(), GWL_EXSTYLE);
    form.MakeLayered();
    CHECK(GetWindowLongW(Window(), GWL_EXSTYLE) == (before | WS_EX_LAYERED));
}

TEST_CASE_FIXTURE(Fading, "the system knows the alpha of a layered form") {
    form.Load();
    form.MakeLayered();
    form.SetLayerAttributes({77, toolkit::LayerAttributes::AlphaFlag});
    COLORREF colour = 1;
    BYTE alpha = 0;
    DWORD flags = 0;
    REQUIRE(GetLayeredWindowAttributes(Window(), &colour, &alpha, &flags));
    CHECK(colour == 0);
    CHECK(alpha == 77);
    CHECK(flags == LWA_ALPHA);
}

TEST_CASE_FIXTURE(Fading, "attributes before the style are refused without a word") {
    form.Load();
    form.SetLayerAttributes({0, 0});
    BYTE alpha = 0;
    CHECK_FALSE(GetLayeredWindowAttributes(Window(), nullptr, &alpha, nullptr));
    CHECK(messages.texts.empty());
}

TEST_CASE_FIXTURE(Fading, "a form loaded anew is not layered any more") {
    form.Load();
    form.MakeLayered();
    form.Unload();
    form.Load();
    CHECK_FALSE(IsLayered());
}
