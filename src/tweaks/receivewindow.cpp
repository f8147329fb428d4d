#include "tweaks/receivewindow.h"

#include "platform/locale.h"
#include "runtime/number.h"
#include "toolkit/combobox.h"
#include "toolkit/form.h"

namespace tweaks {
namespace {

// The bytes of both headers that do not belong to a packet's content.
constexpr double HeaderBytes = 40;
constexpr double SegmentsInWindow = 4;

}  // namespace

void ConnectReceiveWindow(toolkit::Form& form, const platform::Locale& locale) {
    auto* packet = dynamic_cast<toolkit::ComboBox*>(form.FindControl("cboMTU"));
    auto* window = dynamic_cast<toolkit::TextBox*>(form.FindControl("txtRWIN"));
    if (!packet || !window) return;
    const auto follow = [packet, window, &locale] {
        const double size = runtime::LeadingNumber(packet->Text());
        window->SetText(runtime::ToText((size - HeaderBytes) * SegmentsInWindow, locale.Signs()));
    };
    packet->onChange = follow;
    packet->onClick = follow;
}

}  // namespace tweaks
