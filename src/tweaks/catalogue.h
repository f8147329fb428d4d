#pragma once

#include <span>
#include <string_view>

#include "tweaks/option.h"

namespace tweaks {

// The options of one page. The passes have an order of their own.
struct CataloguePage {
    // The caption of the page's tab.
    std::string_view tab;
    std::span<const Option> options;
};

std::span<const CataloguePage> Catalogue();

// The row of that name; nullptr where the name has none.
const Option* FindOption(std::string_view name);

// One function a page, each in its own catalogue file.
std::span<const Option> SystemOptions();
std::span<const Option> TweaksOptions();
std::span<const Option> PathsOptions();
std::span<const Option> SecurityOptions();
std::span<const Option> NetworkOptions();

}  // namespace tweaks
