#include "platform/win32/windows/controlwindows.h"

#include <algorithm>
#include <map>

#include "platform/win32/windows/buttonwindows.h"
#include "platform/win32/windows/comboboxwindow.h"
#include "platform/win32/windows/drawnwindow.h"
#include "platform/win32/windows/drivelistboxwindow.h"
#include "platform/win32/windows/labelwindow.h"
#include "platform/win32/windows/listboxwindow.h"
#include "platform/win32/windows/listviewwindow.h"
#include "platform/win32/windows/progressbarwindow.h"
#include "platform/win32/windows/sliderwindow.h"
#include "platform/win32/windows/textboxwindow.h"

namespace platform::win32 {
namespace {

// Below lie the numbers that the system gives a dialog's standard buttons.
constexpr int FirstId = 100;

// Not shared yet: each class would bring its own counting into the executable.
template <typename View, typename Control>
std::unique_ptr<ControlWindow> Make(toolkit::Control& control, const Surroundings& surroundings) {
    return std::make_unique<View>(static_cast<Control&>(control), surroundings);
}

std::unique_ptr<ControlWindow> WindowFor(toolkit::Control& control,
                                         const Surroundings& surroundings) {
    switch (control.Kind()) {
        case toolkit::ControlKind::Label:
            return Make<LabelWindow, toolkit::Label>(control, surroundings);
        case toolkit::ControlKind::CheckBox:
            return Make<CheckBoxWindow, toolkit::CheckBox>(control, surroundings);
        case toolkit::ControlKind::OptionButton:
            return Make<OptionButtonWindow, toolkit::OptionButton>(control, surroundings);
        case toolkit::ControlKind::TextBox:
            return Make<TextBoxWindow, toolkit::TextBox>(control, surroundings);
        case toolkit::ControlKind::ComboBox:
            return Make<ComboBoxWindow, toolkit::ComboBox>(control, surroundings);
        case toolkit::ControlKind::Frame:
            return Make<FrameWindow, toolkit::Frame>(control, surroundings);
        case toolkit::ControlKind::Slider:
            return Make<SliderWindow, toolkit::Slider>(control, surroundings);
        case toolkit::ControlKind::TabStrip:
            return Make<TabStripWindow, toolkit::TabStrip>(control, surroundings);
        case toolkit::ControlKind::ListView:
            return Make<ListViewWindow, toolkit::ListView>(control, surroundings);
        case toolkit::ControlKind::ListBox:
            return Make<ListBoxWindow, toolkit::ListBox>(control, surroundings);
        case toolkit::ControlKind::DriveListBox:
            return Make<DriveListBoxWindow, toolkit::DriveListBox>(control, surroundings);
        case toolkit::ControlKind::ProgressBar:
            return Make<ProgressBarWindow, toolkit::ProgressBar>(control, surroundings);
        case toolkit::ControlKind::Drawn:
            return Make<DrawnWindow, toolkit::DrawnControl>(control, surroundings);
    }
    return nullptr;
}

toolkit::Rect ClientArea(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {0, 0, client.right, client.bottom};
}

toolkit::Rect InParent(HWND parent, HWND formWindow, const toolkit::Rect& area) {
    POINT corner{area.left, area.top};
    MapWindowPoints(formWindow, parent, &corner, 1);
    return {corner.x, corner.y, area.width, area.height};
}

using PagesOfControls = std::map<const toolkit::Control*, int>;

// The page on which each control of the layout stands, or -1.
void FindPages(const toolkit::Box& box, int page, PagesOfControls& pages) {
    if (box.control) pages[box.control] = page;
    for (std::size_t i = 0; i < box.children.size(); ++i) {
        const bool isPage = box.kind == toolkit::BoxKind::Tabs;
        FindPages(box.children[i], isPage ? static_cast<int>(i) : page, pages);
    }
}

constexpr int NoGroup = -1;
constexpr int LinkGroup = -2;

// Groups of option buttons begin and end where the number of the group changes, a group of links
// where other controls follow.
int GroupOf(const toolkit::Control& control) {
    const auto* option = dynamic_cast<const toolkit::OptionButton*>(&control);
    if (option) return option->Group();
    const bool isLink = control.Kind() == toolkit::ControlKind::Label && control.IsTabStop();
    return isLink ? LinkGroup : NoGroup;
}

void ChangeStyle(HWND window, LONG without, LONG with) {
    SetWindowLongW(window, GWL_STYLE, (GetWindowLongW(window, GWL_STYLE) & ~without) | with);
}

}  // namespace

// Every window comes into being at its place: to move it there afterwards costs about as much
// again, and most of the time until the form is there goes into making its windows.
void ControlWindows::Create(const toolkit::Form& form, HWND formWindow) {
    PagesOfControls pages;
    FindPages(form.Layout(), -1, pages);
    std::map<const toolkit::Control*, toolkit::Rect> areas;
    for (const toolkit::Placement& placement : Arranged(form, formWindow)) {
        areas[placement.control] = placement.area;
    }
    for (const auto& control : form.Controls()) {
        if (auto* strip = dynamic_cast<toolkit::TabStrip*>(control.get())) {
            CreateTabs(*strip, formWindow, areas[strip]);
        }
    }
    int groupBefore = NoGroup;
    for (const auto& control : form.Controls()) {
        const auto page = pages.find(control.get());
        CreateOne(*control, formWindow, page == pages.end() ? -1 : page->second,
                  areas[control.get()]);
        // A frame goes behind all others, and with it would the mark between two groups.
        if (control->Kind() == toolkit::ControlKind::Frame) continue;
        const int group = GroupOf(*control);
        const HWND window = windows_.back()->Window();
        if (group != groupBefore) {
            ChangeStyle(window, 0, WS_GROUP);
        } else if (group == LinkGroup) {
            ChangeStyle(window, WS_TABSTOP, 0);
        }
        groupBefore = group;
    }
    PutBehind(toolkit::ControlKind::Frame);
    PutBehind(toolkit::ControlKind::TabStrip);
}

// First of all, since the strip tells where the pages lie; PutBehind gives it its place in the
// order.
void ControlWindows::CreateTabs(toolkit::TabStrip& strip, HWND formWindow,
                                const toolkit::Rect& area) {
    tabs_ = std::make_shared<TabStripWindow>(strip, surroundings_);
    tabs_->Create(formWindow, FirstId, area);
    tabs_->PlacePages(area);
}

void ControlWindows::CreateOne(toolkit::Control& control, HWND formWindow, int page,
                               const toolkit::Rect& area) {
    if (tabs_ && &tabs_->Control() == &control) {
        windows_.push_back(tabs_);
        return;
    }
    const bool isOnPage = tabs_ && page >= 0;
    const HWND parent = isOnPage ? tabs_->Page(formWindow, page) : formWindow;
    windows_.push_back(WindowFor(control, surroundings_));
    windows_.back()->Create(parent, FirstId + static_cast<int>(windows_.size()),
                            InParent(parent, formWindow, area));
}

// What surrounds other controls lies behind them. For the tabulator the strip then comes last,
// which in the ring that it walks is the place before the pages.
void ControlWindows::PutBehind(toolkit::ControlKind kind) const {
    for (const auto& window : windows_) {
        if (window->Control().Kind() != kind) continue;
        SetWindowPos(window->Window(), HWND_BOTTOM, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

// A frame shows what its parent paints, so a frame of another size keeps its old line unless the
// parent paints there too; and not every class of the system paints itself anew when it grows.
void ControlWindows::Place(const toolkit::Form& form, HWND formWindow) {
    bool changed = false;
    for (const toolkit::Placement& placement : Arranged(form, formWindow)) {
        const auto window = Find(placement.control);
        if (!window) continue;
        const bool moved =
            window->PlaceAt(InParent(GetParent(window->Window()), formWindow, placement.area));
        // A strip stands before the controls of its pages, which are placed within them.
        if (moved && window == tabs_) tabs_->PlacePages(placement.area);
        changed = changed || moved;
    }
    if (!changed) return;
    RedrawWindow(formWindow, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

std::vector<toolkit::Placement> ControlWindows::Arranged(const toolkit::Form& form,
                                                         HWND formWindow) const {
    return toolkit::Arrange(form.Layout(), ClientArea(formWindow), surroundings_.screen);
}

void ControlWindows::Detach() {
    for (const auto& window : windows_) {
        window->DetachTip();
        window->Detach();
    }
}

std::shared_ptr<ControlWindow> ControlWindows::Find(HWND window) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const auto& candidate) {
        return window && candidate->Window() == window;
    });
    return found == windows_.end() ? nullptr : *found;
}

std::shared_ptr<ControlWindow> ControlWindows::Find(const toolkit::Control* control) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const auto& candidate) {
        return &candidate->Control() == control;
    });
    return found == windows_.end() ? nullptr : *found;
}

std::shared_ptr<ControlWindow> ControlWindows::FirstToFocus() const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [](const auto& window) { return window->TakesFocus(); });
    return found == windows_.end() ? nullptr : *found;
}

bool ControlWindows::TurnPage(bool forward) const {
    const auto tabs = tabs_;
    if (tabs) tabs->Turn(forward);
    return tabs != nullptr;
}

void ControlWindows::Broadcast(UINT message, WPARAM wParam, LPARAM lParam) const {
    for (const auto& window : windows_) SendMessageW(window->Window(), message, wParam, lParam);
}

}  // namespace platform::win32
