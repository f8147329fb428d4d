#pragma once

#include "controls/chameleonbutton.h"
#include "toolkit/controls.h"
#include "toolkit/layout.h"
#include "toolkit/listbox.h"
#include "toolkit/progressbar.h"

namespace platform {
class InternetCache;
class Locale;
}  // namespace platform

namespace cleanup {

// The tool of the frame "Internet Explorer Cache": makes its controls on the form and ties them to
// what they do. Lives as long as the form.
class InternetCacheFrame {
  public:
    InternetCacheFrame(toolkit::Form& owner, platform::InternetCache& cache,
                       const platform::Locale& locale, platform::Clock& clock);
    InternetCacheFrame(const InternetCacheFrame&) = delete;
    InternetCacheFrame& operator=(const InternetCacheFrame&) = delete;

    // At start-up: lists what the cache holds and, in a later step, enables the button that deletes
    // it exactly when something is listed.
    void Fill();
    void EnableClear();

    // The frame with its controls.
    toolkit::Box Layout() const;

    toolkit::Form& form;
    toolkit::Frame& fraIECache;
    toolkit::ListBox& List1;
    // Never changes.
    toolkit::Label& lblStatusIEClear;
    toolkit::ProgressBar& prgbarIE1;
    toolkit::CheckBox& chkDeleteCookies;
    controls::chameleonButton& cmdUpdateIECache;
    controls::chameleonButton& cmdClearIECache;

  private:
    void Update();
    void Clear();
    void Delete();

    platform::InternetCache& cache_;
    const platform::Locale& locale_;
};

}  // namespace cleanup
