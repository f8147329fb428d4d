#include "platform/simulated/forms.h"

#include <algorithm>
#include <stdexcept>

#include "platform/simulated/journal.h"

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

Forms::Forms(Journal& journal) : journal_(journal) {}

Forms::~Forms() = default;

void Forms::Open(toolkit::Form& form) {
    journal_.Note([&] { return "OpenForm " + form.Name(); });
    open_.push_back(&form);
    auto& view = views_[&form] = std::make_unique<View>(journal_, form);
    form.SetView(view.get());
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
}

void Forms::WhenModal(std::string formName, std::function<void(toolkit::Form&)> user) {
    scripts_.emplace_back(std::move(formName), std::move(user));
}

}  // namespace platform::simulated
