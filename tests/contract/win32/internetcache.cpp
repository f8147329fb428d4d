#include "platform/internetcache.h"

#include <doctest/doctest.h>

#include "cleanup/internetcache.h"
#include "contract/machine.h"
#include "toolkit/form.h"
#include "toolkit/listbox.h"

// Windows XP finds entries under any pattern; Wine looks for a part of the cache with that name. So
// under Wine the program's own list stays empty, and the cases that both machines share list
// through a cache that leaves the pattern out.
TEST_CASE("Wine knows no part of the cache by the pattern 0, which ends a listing with its probe") {
    contract::TestMachine machine;
    platform::Machine& services = machine.Services();
    machine.AddCacheEntry("http://a.example/", platform::InternetCache::NormalEntry);

    std::uint32_t size = 0;
    platform::InternetCache::Handle search = 77;
    CHECK(services.internetCache.FindFirst("0", 0, size, search) == 259);
    CHECK(search == 0);

    toolkit::Form form(services.forms, "frmMain", "Quillmore", {});
    toolkit::ListBox& list = form.Add<toolkit::ListBox>("List1");
    list.AddItem("zuvor");
    cleanup::FillCacheList(services.internetCache, services.locale, list);
    CHECK(list.Items().empty());
}
