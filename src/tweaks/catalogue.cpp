#include "tweaks/catalogue.h"

namespace tweaks {

std::span<const CataloguePage> Catalogue() {
    static const CataloguePage pages[] = {
        {" System", SystemOptions()},      {" Tweaks", TweaksOptions()}, {" Pfade", PathsOptions()},
        {"Sicherheit", SecurityOptions()}, {" DFÜ", NetworkOptions()},
    };
    return pages;
}

const Option* FindOption(std::string_view name) {
    for (const CataloguePage& page : Catalogue()) {
        for (const Option& option : page.options) {
            if (option.control == name) return &option;
        }
    }
    return nullptr;
}

}  // namespace tweaks
