#include "toolkit/control.h"

namespace toolkit {

Control::Control(Form& form, ControlKind kind, std::string name, std::string caption, bool tabStop)
    : form_(form),
      kind_(kind),
      name_(std::move(name)),
      caption_(std::move(caption)),
      tabStop_(tabStop) {}

Control::~Control() = default;

// Texts that change with each file of a search keep the room that they have.
void Control::SetCaption(std::string_view caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Changed(Aspect::Caption);
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Changed(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed(Aspect::Visible);
}

void Control::SetToolTip(std::string_view text) {
    if (text == toolTip_) return;
    toolTip_ = text;
    Changed(Aspect::ToolTip);
}

void Control::Changed(Aspect what) {
    if (view_) view_->Refresh(what);
}

}  // namespace toolkit
