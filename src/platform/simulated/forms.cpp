#include "platform/simulated/forms.h"

#include <algorithm>
#include <stdexcept>

#include "platform/simulated/journal.h"
#include "runtime/text.h"

namespace platform::simulated {

class Forms::View final : public toolkit::FormView {
  public:
    View(Journal& journal, toolkit::Form& form) : journal_(journal), form_(form) {}

    void Refresh(toolkit::FormAspect what) override {
        if (what == toolkit::FormAspect::Layered) {
            journal_.Note([&] { return "SetWindowLongA " + form_.Name() + " -20 +0x80000"; });
        }
        if (what == toolkit::FormAspect::LayerAttributes) {
            const toolkit::LayerAttributes& layer = form_.Layer();
            journal_.Note([&] {
                return "SetLayeredWindowAttributes " + form_.Name() + " 0 " +
                       std::to_string(layer.alpha) + ' ' + std::to_string(layer.flags);
            });
        }
    }

  private:
    Journal& journal_;
    toolkit::Form& form_;
};

class Forms::ListView final : public toolkit::ControlView {
  public:
    ListView(Forms& forms, toolkit::Control& control)
        : journal_(forms.journal_), forms_(forms), control_(control) {}

    void FitColumn(int column, bool includingHeader) override {
        journal_.Note([&] {
            return "SendMessageA " + control_.Name() + " 4126 " + std::to_string(column) +
                   (includingHeader ? " -2" : " -1");
        });
    }
    void LockWindow(bool locked) override {
        journal_.Note([&] { return "LockWindowUpdate " + (locked ? control_.Name() : "0"); });
        forms_.lockedList_ = locked ? &control_ : nullptr;
    }
    void EnsureVisible(int row) override {
        journal_.Note(
            [&] { return "SendMessageA " + control_.Name() + " 4115 " + std::to_string(row); });
    }

    void Refresh(toolkit::Aspect) override {}
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

  private:
    Journal& journal_;
    Forms& forms_;
    toolkit::Control& control_;
};

Forms::Forms(Journal& journal) : journal_(journal) {}

Forms::~Forms() = default;

void Forms::ScreenPointerChanged() {
    journal_.Note([&] { return "Pointer " + std::to_string(ScreenPointer()); });
}

void Forms::Open(toolkit::Form& form) {
    journal_.Note([&] { return "OpenForm " + form.Name(); });
    open_.push_back(&form);
    auto& view = views_[&form] = std::make_unique<View>(journal_, form);
    form.SetView(view.get());
    for (const auto& control : form.Controls()) {
        handles_[control.get()] = ++lastHandle_;
        if (control->Kind() != toolkit::ControlKind::ListView) continue;
        auto& list = lists_[control.get()] = std::make_unique<ListView>(*this, *control);
        control->SetView(list.get());
    }
}

void Forms::RunModal(toolkit::Form& form) {
    journal_.Note([&] { return "ShowModal " + form.Name(); });
    auto script = std::find_if(scripts_.begin(), scripts_.end(),
                               [&](const auto& entry) { return entry.first == form.Name(); });
    if (script == scripts_.end()) {
        throw std::logic_error("nobody answers the dialog " + form.Name());
    }
    auto user = std::move(script->second);
    scripts_.erase(script);
    user(form);
    if (form.Visible()) throw std::logic_error("the dialog " + form.Name() + " was left open");
}

void Forms::Close(toolkit::Form& form) {
    journal_.Note([&] { return "CloseForm " + form.Name(); });
    std::erase(open_, &form);
    form.SetView(nullptr);
    views_.erase(&form);
    for (const auto& control : form.Controls()) {
        handles_.erase(control.get());
        if (lists_.erase(control.get())) control->SetView(nullptr);
    }
}

std::uintptr_t Forms::HandleOf(const toolkit::Control& control) const {
    const auto found = handles_.find(&control);
    return found == handles_.end() ? 0 : found->second;
}

std::string Forms::SortKey(std::string_view text) const {
    constexpr std::pair<std::string_view, std::string_view> Letters[] = {
        {"Ä", "A"}, {"Ö", "O"}, {"Ü", "U"}, {"ß", "SS"}};
    std::string key = runtime::ToUpper(text);
    for (const auto& [letter, plain] : Letters) {
        for (std::size_t at; (at = key.find(letter)) != std::string::npos;) {
            key.replace(at, letter.size(), plain);
        }
    }
    return key;
}

void Forms::WhenModal(std::string formName, std::function<void(toolkit::Form&)> user) {
    scripts_.emplace_back(std::move(formName), std::move(user));
}

}  // namespace platform::simulated
