#include "tweaks/pagelook.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "runtime/text.h"
#include "toolkit/controls.h"

namespace tweak_tests {
namespace {

using toolkit::ControlKind;
using toolkit::Placement;
using toolkit::Rect;

bool Overlap(Rect a, Rect b) {
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

bool IsFrame(const Placement& placement) {
    return placement.control->Kind() == ControlKind::Frame;
}

}  // namespace

std::vector<Placement> Placed(const toolkit::Form& form) {
    return toolkit::Arrange(form.Layout(), PageArea, WideText());
}

toolkit::Size WideText::SizeOf(std::string_view text, bool bold) const {
    const int perTen = bold ? 75 : 58;
    return {static_cast<int>(runtime::Length(text)) * perTen / 10, bold ? 16 : 13};
}

void CheckFits(const toolkit::Form& form) {
    const auto placed = Placed(form);
    CHECK(placed.size() == form.Controls().size());
    for (const Placement& one : placed) {
        CAPTURE(one.control->Name());
        CHECK(one.area.left >= 0);
        CHECK(one.area.top >= 0);
        CHECK(one.area.Right() <= PageArea.width);
        CHECK(one.area.Bottom() <= PageArea.height);
        CHECK(one.area.width > 0);
        CHECK(one.area.height > 0);
        for (const Placement& other : placed) {
            // A frame lies around its own controls.
            if (one.control == other.control || IsFrame(one) || IsFrame(other)) continue;
            CAPTURE(other.control->Name());
            CHECK_FALSE(Overlap(one.area, other.area));
        }
    }
}

void CheckCaptionsHaveRoom(const toolkit::Form& form) {
    for (const Placement& one : Placed(form)) {
        if (one.control->Caption().empty()) continue;
        CAPTURE(one.control->Name());
        const bool isBox = one.control->Kind() == ControlKind::CheckBox;
        CHECK(one.area.width >=
              WideText().SizeOf(one.control->Caption(), false).width + (isBox ? 16 : 0));
    }
}

void CheckAtBottomRight(const toolkit::Form& form, std::string_view lastButton) {
    int found = 0;
    for (const Placement& one : Placed(form)) {
        if (one.control->Name() != lastButton) continue;
        ++found;
        CHECK(one.area.Right() == PageArea.width);
        CHECK(one.area.Bottom() == PageArea.height);
    }
    CHECK(found == 1);
}

std::string GroupsOf(const toolkit::Form& form) {
    const auto placed = Placed(form);
    std::string free = "-";
    std::string groups;
    for (const Placement& frame : placed) {
        if (!IsFrame(frame)) continue;
        groups += '\n' + frame.control->Name() + ':';
        for (const Placement& one : placed) {
            if (!IsFrame(one) && Overlap(frame.area, one.area)) groups += ' ' + one.control->Name();
        }
    }
    for (const Placement& one : placed) {
        const auto around = [&](const Placement& frame) {
            return IsFrame(frame) && Overlap(frame.area, one.area);
        };
        if (std::none_of(placed.begin(), placed.end(), around)) free += ' ' + one.control->Name();
    }
    return free + groups + '\n';
}

}  // namespace tweak_tests
