// A window of another size looks as if it had never had the one before.
#include <doctest/doctest.h>

#include <set>

#include "support/screenpicture.h"
#include "toolkit/listbox.h"
#include "windows/desk.h"
#include "windows/realmouse.h"

using namespace windows;

namespace {

// Frames around controls and beside each other, and what else grows with the window.
struct ResizingFixture : Desk {
    TestForm form{host, "frmMain"};

    ResizingFixture() {
        form.isDialog = false;
        auto& tabs =
            form.Add<toolkit::TabStrip>("SSTab1", std::vector<std::string>{"Eins", "Zwei"});
        auto& left = form.Add<toolkit::Frame>("fraLeft", "Links");
        auto& box = form.Add<toolkit::CheckBox>("chk", "Kasten");
        auto& right = form.Add<toolkit::Frame>("fraRight", "Rechts");
        auto& text = form.Add<toolkit::TextBox>("txt");
        auto& slider = form.Add<toolkit::Slider>("sld", toolkit::SliderRange{}, 5);
        auto& path = form.Add<toolkit::Label>(
            "lblPath", "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\Brief.doc",
            toolkit::LabelStyle::Path);
        auto& list = form.Add<toolkit::ListBox>("List1");
        list.AddItem("http://quillmore.example/");
        form.SetLayout(Pages(
            tabs,
            {toolkit::Column(
                 {toolkit::Row({InFrame(left, Leaf(box)),
                                Stretch(InFrame(right, toolkit::Column({Leaf(text), Leaf(slider),
                                                                        Leaf(path)})))}),
                  Stretch(Leaf(list))}),
             toolkit::Filler()}));
        form.Show();
        SetForegroundWindow(host.WindowOf(form));
    }

    // As soon as it does not change any more: what is drawn reaches the screen a little later,
    // under Wine 50 milliseconds at most.
    std::vector<DWORD> Picture() const {
        const RECT area = support::ClientOnScreen(host.WindowOf(form));
        std::vector<DWORD> picture;
        const DWORD start = GetTickCount();
        for (bool changed = true; changed && GetTickCount() - start < 10000;) {
            ServeAWhile(80);
            auto next = support::ScreenPixels(area);
            changed = next != picture;
            picture = std::move(next);
        }
        return picture;
    }

    std::vector<DWORD> PaintedAnew() const {
        RedrawWindow(host.WindowOf(form), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        return Picture();
    }

    void Resize(int width, int height) const {
        SetWindowPos(host.WindowOf(form), nullptr, 0, 0, width, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
};

}  // namespace

TEST_CASE_FIXTURE(ResizingFixture, "a frame keeps its line when what it lies on is painted alone") {
    const HWND page = GetParent(Find(form, "fraLeft"));
    const auto before = Picture();
    RedrawWindow(page, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN | RDW_UPDATENOW);
    CHECK(support::Difference(before, Picture(), support::ClientOnScreen(host.WindowOf(form))) ==
          "");
}

TEST_CASE("a frame on the window itself keeps its line when that is painted alone") {
    Desk desk;
    TestForm form(desk.host, "frmMain");
    auto& frame = form.Add<toolkit::Frame>("fraOnly", "Rahmen");
    auto& box = form.Add<toolkit::CheckBox>("chk", "Kasten");
    form.SetLayout(toolkit::Column({InFrame(frame, Leaf(box)), Stretch(toolkit::Filler())}));
    form.Show();
    const HWND window = desk.host.WindowOf(form);
    SetForegroundWindow(window);
    ServeAWhile(200);
    const RECT area = support::ClientOnScreen(window);
    const auto before = support::ScreenPixels(area);
    CHECK(std::set(before.begin(), before.end()).size() > 2);
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN | RDW_UPDATENOW);
    ServeAWhile(200);
    CHECK(support::Difference(before, support::ScreenPixels(area), area) == "");
}

TEST_CASE_FIXTURE(ResizingFixture, "a window of another size leaves nothing of the one before") {
    const auto before = Picture();
    SUBCASE("larger") {
        Resize(640, 420);
    }
    SUBCASE("smaller") {
        Resize(340, 280);
    }
    SUBCASE("larger and back") {
        Resize(640, 420);
        ServeQueue();
        Resize(400, 300);
    }
    SUBCASE("maximised") {
        ShowWindow(host.WindowOf(form), SW_MAXIMIZE);
    }
    SUBCASE("maximised and restored") {
        ShowWindow(host.WindowOf(form), SW_MAXIMIZE);
        ServeQueue();
        ShowWindow(host.WindowOf(form), SW_RESTORE);
    }
    const auto after = Picture();
    // A screen that shows nothing would always be the same.
    CHECK(std::set(before.begin(), before.end()).size() > 2);
    CHECK(support::Difference(after, PaintedAnew(), support::ClientOnScreen(host.WindowOf(form))) ==
          "");
}
