#include "toolkit/progressbar.h"

#include <algorithm>

#include "runtime/failure.h"

namespace toolkit {

ProgressBar::ProgressBar(Form& form, std::string name)
    : Control(form, ControlKind::ProgressBar, std::move(name), "", false) {}

void ProgressBar::SetMinimum(std::int32_t minimum) {
    SetRange(minimum, maximum_);
}

void ProgressBar::SetMaximum(std::int32_t maximum) {
    SetRange(minimum_, maximum);
}

void ProgressBar::SetRange(std::int32_t minimum, std::int32_t maximum) {
    if (maximum <= minimum) throw runtime::Failure(runtime::InvalidPropertyValue);
    minimum_ = minimum;
    maximum_ = maximum;
    value_ = std::clamp(value_, minimum, maximum);
    Changed(Aspect::Limits);
    Changed(Aspect::Value);
}

void ProgressBar::SetValue(std::int32_t value) {
    if (value < minimum_ || value > maximum_) {
        throw runtime::Failure(runtime::InvalidPropertyValue);
    }
    if (value == value_) return;
    value_ = value;
    Changed(Aspect::Value);
}

}  // namespace toolkit
