#pragma once

#include "cleanup/internetcacheframe.h"
#include "cleanup/tempfiles.h"
#include "toolkit/layout.h"

namespace platform {
struct Machine;
}

namespace cleanup {

// The two tools of the page " CleanUp". Lives as long as the form.
class CleanUpPage {
  public:
    CleanUpPage(toolkit::Form& form, const platform::Machine& machine);

    // The frames, below the page's heading.
    toolkit::Box Layout() const;

    TempFiles tempFiles;
    InternetCacheFrame internetCache;
};

}  // namespace cleanup
