#include "cleanup/internetcacheframe.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "toolkit/form.h"

namespace {

using Lines = std::vector<std::string>;

// Notes what the form's pointer and the bar become.
class Watch final : public toolkit::ControlView, public toolkit::FormView {
  public:
    Watch(toolkit::Form& form, toolkit::ProgressBar& bar) : form_(form), bar_(bar) {
        form.SetView(this);
        bar.SetView(this);
    }
    ~Watch() {
        form_.SetView(nullptr);
        bar_.SetView(nullptr);
    }

    void Refresh(toolkit::FormAspect what) override {
        if (what == toolkit::FormAspect::Pointer) pointers.push_back(form_.Pointer());
    }
    void Refresh(toolkit::Aspect what) override {
        if (what == toolkit::Aspect::Limits) limits.push_back(bar_.Maximum());
        if (what == toolkit::Aspect::Value) values.push_back(bar_.Value());
        if (form_.Pointer() != toolkit::Hourglass) ++changedLater;
    }

    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

    std::vector<int> pointers;
    std::vector<int> limits;
    std::vector<int> values;
    // How often the bar changed while the pointer was the usual one.
    int changedLater = 0;

  private:
    toolkit::Form& form_;
    toolkit::ProgressBar& bar_;
};

struct CacheFrameFixture {
    platform::simulated::Machine machine;
    platform::simulated::InternetCache& cache = machine.internetCache;
    toolkit::Form form{machine.forms, "frmMain", "Quillmore", {}};
    cleanup::InternetCacheFrame frame{form, cache, machine.locale, machine.clock};

    void Add(std::initializer_list<const char*> urls) {
        for (const char* url : urls) cache.Add({.url = url});
    }
    Lines Clear() {
        frame.cmdUpdateIECache.Press();
        machine.journal.Clear();
        frame.cmdClearIECache.Press();
        return frame.List1.Items();
    }
    Lines Deletions() { return machine.journal.Calls("DeleteUrlCacheEntryA"); }
};

}  // namespace

TEST_CASE_FIXTURE(CacheFrameFixture, "the cache frame has its controls with their captions") {
    CHECK(form.Find<toolkit::Frame>("fraIECache").Caption() == "Internet Explorer Cache");
    CHECK(form.Find<toolkit::Label>("lblStatusIEClear").Caption() == "Status Löschvorgang:");
    CHECK(form.Find<toolkit::CheckBox>("chkDeleteCookies").Caption() == "inkl. Cookies löschen");
    CHECK(form.FindControl("cmdUpdateIECache")->Caption() == "&Aktualisieren");
    CHECK(form.FindControl("cmdClearIECache")->Caption() == "Cache löschen");
    CHECK(form.Find<toolkit::ListBox>("List1").Items().empty());
    CHECK(form.Find<toolkit::ProgressBar>("prgbarIE1").Value() == 0);
    CHECK(frame.chkDeleteCookies.Value() == 0);
    CHECK_FALSE(frame.cmdClearIECache.Enabled());
    CHECK(machine.journal.Text() == "");
}

TEST_CASE_FIXTURE(CacheFrameFixture, "each control of the cache frame stands in its layout once") {
    Lines names;
    const auto collect = [&](const auto& self, const toolkit::Box& box) -> void {
        if (box.control) names.push_back(box.control->Name());
        for (const toolkit::Box& child : box.children) self(self, child);
    };
    collect(collect, frame.Layout());
    Lines made;
    for (const auto& control : form.Controls()) made.push_back(control->Name());
    CHECK(names == made);
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "at start-up the list is filled, and the button enabled later on") {
    Add({"a"});
    frame.Fill();
    CHECK(frame.List1.Items() == Lines{"a"});
    CHECK_FALSE(frame.cmdClearIECache.Enabled());
    frame.EnableClear();
    CHECK(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "reading again shows what came and went, and the button follows") {
    Add({"a"});
    frame.cmdUpdateIECache.Press();
    CHECK(frame.cmdClearIECache.Enabled());
    cache.entries.clear();
    CHECK(frame.List1.Items() == Lines{"a"});
    frame.cmdUpdateIECache.Press();
    CHECK(frame.List1.Items().empty());
    CHECK_FALSE(frame.cmdClearIECache.Enabled());
    CHECK(Deletions().empty());
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "clearing deletes each line in the list's order and reads the cache again") {
    Add({"http://a.example/ü", "b", "c"});
    CHECK(Clear().empty());
    CHECK(cache.entries.empty());
    CHECK_FALSE(frame.cmdClearIECache.Enabled());
    CHECK(machine.journal.Text() ==
          "DeleteUrlCacheEntryA \"http://a.example/ü\" -> deleted\n"
          "DeleteUrlCacheEntryA \"b\" -> deleted\n"
          "DeleteUrlCacheEntryA \"c\" -> deleted\n"
          "FindFirstUrlCacheEntryA \"0\" null 0 -> 259\n"
          "LocalFree null\n"
          "FindCloseUrlCache no search\n");
}

TEST_CASE_FIXTURE(CacheFrameFixture, "clearing deletes what is listed, not what came since") {
    Add({"a"});
    frame.cmdUpdateIECache.Press();
    Add({"b"});
    frame.cmdClearIECache.Press();
    CHECK(Deletions() == Lines{"DeleteUrlCacheEntryA \"a\" -> deleted"});
    CHECK(frame.List1.Items() == Lines{"b"});
    CHECK(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "an entry that cannot be deleted is listed again, in silence") {
    cache.Add({.url = "a"});
    cache.Add({.url = "b", .locked = true});
    cache.Add({.url = "c"});
    CHECK(Clear() == Lines{"b"});
    CHECK(frame.cmdClearIECache.Enabled());
    CHECK(Deletions().size() == 3);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "deletions that fail one and all leave the list as it was") {
    Add({"a", "b"});
    machine.faults.FailAll("DeleteUrlCacheEntryA", 5);
    CHECK(Clear() == Lines{"a", "b"});
    CHECK(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "clearing spares URLs with \"Cookie\" anywhere, in just these letters") {
    Add({"Cookie:ich@a.example/", "http://b.example/Cookies/x", "xCookie", "cookie:ich@c.example/",
         "COOKIE", "Cooki"});
    CHECK(Clear() == Lines{"Cookie:ich@a.example/", "http://b.example/Cookies/x", "xCookie"});
    CHECK(Deletions() == Lines{"DeleteUrlCacheEntryA \"cookie:ich@c.example/\" -> deleted",
                               "DeleteUrlCacheEntryA \"COOKIE\" -> deleted",
                               "DeleteUrlCacheEntryA \"Cooki\" -> deleted"});
    CHECK(frame.cmdClearIECache.Enabled());
}

TEST_CASE_FIXTURE(CacheFrameFixture, "with the box ticked, clearing deletes cookies, too") {
    Add({"Cookie:ich@a.example/", "b"});
    frame.chkDeleteCookies.SetValue(1);
    CHECK(Clear().empty());
    CHECK(Deletions().size() == 2);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "entries that are not listed are not deleted") {
    Add({"a"});
    cache.Add({.url = "Cookie:ich@a.example/", .type = 0x100000});
    frame.chkDeleteCookies.SetValue(1);
    CHECK(Clear().empty());
    CHECK(cache.entries.size() == 1);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "an empty line is deleted like any other") {
    Add({""});
    CHECK(Clear().empty());
    CHECK(Deletions() == Lines{"DeleteUrlCacheEntryA \"\" -> deleted"});
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "the bar runs through the lines under the hourglass and goes back to 0") {
    Add({"a", "Cookie", "c"});
    frame.cmdUpdateIECache.Press();
    Watch watch(form, frame.prgbarIE1);
    frame.cmdClearIECache.Press();
    CHECK(watch.limits == std::vector<int>{2});
    // The first is told with the limit; lines that are spared count as well.
    CHECK(watch.values == std::vector<int>{0, 1, 2, 0});
    CHECK(watch.pointers == std::vector<int>{toolkit::Hourglass, toolkit::DefaultPointer});
    // Only the way back to 0 comes after the pointer's.
    CHECK(watch.changedLater == 1);
    CHECK(frame.prgbarIE1.Maximum() == 2);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "one line has the maximum 1, and the bar stays at 0") {
    Add({"a"});
    frame.cmdUpdateIECache.Press();
    Watch watch(form, frame.prgbarIE1);
    frame.cmdClearIECache.Press();
    CHECK(watch.limits == std::vector<int>{1});
    CHECK(watch.values == std::vector<int>{0});
    CHECK(frame.prgbarIE1.Maximum() == 1);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "two lines have the maximum 1") {
    Add({"a", "b"});
    Clear();
    CHECK(frame.prgbarIE1.Maximum() == 1);
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "clearing an empty list only reads the cache, and leaves the bar alone") {
    Add({"a"});
    Watch watch(form, frame.prgbarIE1);
    // By a script; a user cannot press a disabled button.
    frame.cmdClearIECache.onClick();
    CHECK(Deletions().empty());
    CHECK(frame.List1.Items() == Lines{"a"});
    CHECK(frame.cmdClearIECache.Enabled());
    CHECK(watch.limits.empty());
    CHECK(watch.values.empty());
    CHECK(watch.pointers == std::vector<int>{toolkit::Hourglass, toolkit::DefaultPointer});
}

TEST_CASE_FIXTURE(CacheFrameFixture,
                  "the pointer is the usual one after clearing, whatever it was before") {
    form.SetPointer(toolkit::Hourglass);
    frame.cmdClearIECache.onClick();
    CHECK(form.Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(CacheFrameFixture, "thousands of lines are deleted one by one") {
    for (int i = 0; i < 3000; ++i) cache.Add({.url = std::to_string(i)});
    CHECK(Clear().empty());
    CHECK(Deletions().size() == 3000);
    CHECK(frame.prgbarIE1.Maximum() == 2999);
}
