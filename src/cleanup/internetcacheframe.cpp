#include "cleanup/internetcacheframe.h"

#include <algorithm>

#include "cleanup/internetcache.h"
#include "toolkit/form.h"

namespace cleanup {

using controls::chameleonButton;

InternetCacheFrame::InternetCacheFrame(toolkit::Form& owner, platform::InternetCache& cache,
                                       const platform::Locale& locale, platform::Clock& clock)
    : form(owner),
      fraIECache(form.Add<toolkit::Frame>("fraIECache", "Internet Explorer Cache")),
      List1(form.Add<toolkit::ListBox>("List1", 40, 4)),
      lblStatusIEClear(form.Add<toolkit::Label>("lblStatusIEClear", "Status Löschvorgang:")),
      prgbarIE1(form.Add<toolkit::ProgressBar>("prgbarIE1")),
      chkDeleteCookies(form.Add<toolkit::CheckBox>("chkDeleteCookies", "inkl. Cookies löschen")),
      cmdUpdateIECache(form.Add<chameleonButton>("cmdUpdateIECache",
                                                 controls::Persisted{"TX=&Aktualisieren"}, clock)),
      cmdClearIECache(form.Add<chameleonButton>("cmdClearIECache",
                                                controls::Persisted{"TX=Cache löschen"}, clock)),
      cache_(cache),
      locale_(locale) {
    cmdClearIECache.SetEnabled(false);
    cmdUpdateIECache.onClick = [this] { Update(); };
    cmdClearIECache.onClick = [this] { Clear(); };
}

void InternetCacheFrame::Fill() {
    FillCacheList(cache_, locale_, List1);
}

void InternetCacheFrame::EnableClear() {
    cmdClearIECache.SetEnabled(!List1.Items().empty());
}

void InternetCacheFrame::Update() {
    Fill();
    EnableClear();
}

void InternetCacheFrame::Clear() {
    form.SetPointer(toolkit::Hourglass);
    Delete();
    // What could not be deleted is listed again; nothing else tells of it.
    Update();
    form.SetPointer(toolkit::DefaultPointer);
    prgbarIE1.SetValue(0);
}

void InternetCacheFrame::Delete() {
    const auto& urls = List1.Items();
    if (urls.empty()) return;
    const auto last = static_cast<std::int32_t>(urls.size()) - 1;
    // The control takes no maximum of 0.
    prgbarIE1.SetMaximum(std::max(last, 1));
    for (std::int32_t i = 0; i <= last; ++i) {
        const std::string& url = urls[static_cast<std::size_t>(i)];
        // The cache writes cookies with that capital; in lower case the word tells nothing. It
        // counts anywhere in the URL, on purpose.
        if (chkDeleteCookies.Value() == 1 || url.find("Cookie") == std::string::npos) {
            cache_.Remove(url);
        }
        prgbarIE1.SetValue(i);
    }
}

toolkit::Box InternetCacheFrame::Layout() const {
    using namespace toolkit;
    return InFrame(
        fraIECache,
        Column({Stretch(Leaf(List1)),
                Row({Leaf(lblStatusIEClear), Stretch(Leaf(prgbarIE1)), Leaf(chkDeleteCookies),
                     Leaf(cmdUpdateIECache), Leaf(cmdClearIECache)})}));
}

}  // namespace cleanup
