#pragma once

namespace endtoend {

// The pages by the numbers of their tabs.
enum Page {
    SystemPage,
    TweaksPage,
    PathsPage,
    CleanUpPage,
    SecurityPage,
    NetworkPage,
    ShortcutsPage,
    UtilitiesPage,
};

}  // namespace endtoend
