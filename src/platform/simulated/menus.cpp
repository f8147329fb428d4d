#include "platform/simulated/menus.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "toolkit/popupmenu.h"

namespace platform::simulated {
namespace {

// The name and then the captions, with a stroke for each separator.
std::string MenuWording(const toolkit::PopupMenu& menu) {
    std::string text = "TrackPopupMenu " + menu.name;
    for (const toolkit::MenuItem& item : menu.items) {
        text += item.IsSeparator() ? " -" : " " + Quoted(item.caption);
    }
    if (menu.place) {
        text += " at " + std::to_string(menu.place->x) + ',' + std::to_string(menu.place->y);
    }
    return text;
}

}  // namespace

const toolkit::MenuItem* Menus::Choose(const toolkit::PopupMenu& menu) {
    const auto line = journal_.Note([&] { return MenuWording(menu); });
    const toolkit::MenuItem* picked = nullptr;
    if (!open_ && !faults_.Check("TrackPopupMenu", menu.name)) picked = Picked(menu);
    journal_.Finish(line, [&] { return picked ? picked->name : std::string("nothing"); });
    return picked;
}

void Menus::Pick(std::string caption) {
    picks_.push_back(std::move(caption));
}

const toolkit::MenuItem* Menus::Picked(const toolkit::PopupMenu& menu) {
    if (const auto action = std::exchange(action_, nullptr)) {
        open_ = true;
        action();
        open_ = false;
    }
    if (picks_.empty()) throw std::logic_error("nobody uses the menu " + menu.name);
    const std::string caption = std::move(picks_.front());
    picks_.pop_front();
    if (caption.empty()) return nullptr;
    const auto item = std::find_if(menu.items.begin(), menu.items.end(),
                                   [&](const auto& each) { return each.caption == caption; });
    if (item == menu.items.end()) {
        throw std::logic_error("no item \"" + caption + "\" in the menu " + menu.name);
    }
    return item->enabled ? &*item : nullptr;
}

}  // namespace platform::simulated
