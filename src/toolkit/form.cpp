#include "toolkit/form.h"

#include "runtime/mistake.h"
#include "runtime/temporarily.h"
#include "runtime/text.h"
#include "toolkit/drawncontrol.h"

namespace toolkit {

Form::Form(FormHost& host, std::string name, std::string caption, Bounds bounds)
    : host_(host), name_(std::move(name)), caption_(std::move(caption)), bounds_(bounds) {}

Form::~Form() {
    if (loaded_) host_.Close(*this);
}

Control* Form::FindControl(std::string_view name) const {
    auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

void Form::Keep(std::unique_ptr<Control> control) {
    if (!byName_.emplace(control->Name(), control.get()).second) {
        throw runtime::Mistake("two controls named " + control->Name() + " on " + name_);
    }
    controls_.push_back(std::move(control));
}

void Form::ThrowMissing(std::string_view name) const {
    throw runtime::Mistake("no such control on " + name_ + ": " + std::string(name));
}

void Form::SetCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Changed(FormAspect::Caption);
}

void Form::SetState(WindowState state) {
    if (state == state_) return;
    state_ = state;
    Changed(FormAspect::State);
    SizeChanged();
}

void Form::SetLeft(float left) {
    if (left == bounds_.left) return;
    bounds_.left = left;
    Changed(FormAspect::Position);
}

void Form::SetTop(float top) {
    if (top == bounds_.top) return;
    bounds_.top = top;
    Changed(FormAspect::Position);
}

void Form::SetSize(float width, float height) {
    if (width == bounds_.width && height == bounds_.height) return;
    bounds_.width = width;
    bounds_.height = height;
    Changed(FormAspect::Position);
    SizeChanged();
}

void Form::SetInTaskbar(bool shown) {
    if (shown == inTaskbar_) return;
    inTaskbar_ = shown;
    Changed(FormAspect::TaskbarEntry);
}

void Form::SetPointer(int pointer) {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    Changed(FormAspect::Pointer);
}

int Form::ShownPointer() const {
    const int screen = host_.ScreenPointer();
    return screen == DefaultPointer ? pointer_ : screen;
}

void Form::MakeLayered() {
    if (layered_) return;
    layered_ = true;
    Changed(FormAspect::Layered);
}

void Form::SetLayerAttributes(LayerAttributes attributes) {
    layer_ = attributes;
    Changed(FormAspect::LayerAttributes);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    host_.Open(*this);
    if (defaultButton) defaultButton->MarkDefault(true);
    OnLoad();
}

void Form::Show() {
    Load();
    if (!loaded_ || visible_) return;
    visible_ = true;
    Changed(FormAspect::Visible);
    if (everShown_) return;
    everShown_ = true;
    OnResize();
}

void Form::ShowModal() {
    Show();
    if (visible_) host_.RunModal(*this);
}

void Form::Hide() {
    if (!visible_) return;
    visible_ = false;
    Changed(FormAspect::Visible);
}

void Form::Unload() {
    if (!loaded_ || unloading_) return;
    const runtime::Temporarily unloading(unloading_, true);
    OnQueryUnload();
    OnUnload();
    Hide();
    host_.Close(*this);
    loaded_ = false;
    everShown_ = false;
    layered_ = false;
    layer_ = {};
}

void Form::WindowMoved(WindowState state, Bounds bounds) {
    bool resized =
        state != state_ || bounds.width != bounds_.width || bounds.height != bounds_.height;
    state_ = state;
    bounds_ = bounds;
    if (resized) SizeChanged();
}

void Form::Changed(FormAspect what) {
    if (view_) view_->Refresh(what);
}

// Before a window is seen the first time its size is the program's own affair.
void Form::SizeChanged() {
    if (everShown_) OnResize();
}

void FormHost::SetScreenPointer(int pointer) {
    if (pointer == screenPointer_) return;
    screenPointer_ = pointer;
    ScreenPointerChanged();
}

std::string FormHost::SortKey(std::string_view text) const {
    return runtime::ToUpper(text);
}

}  // namespace toolkit
