#pragma once

#include <cstdint>

#include "toolkit/controls.h"

namespace toolkit {

// Shows how far something has come. It starts empty, from 0 to 100.
class ProgressBar : public Control {
  public:
    ProgressBar(Form& form, std::string name);

    std::int32_t Minimum() const { return minimum_; }
    std::int32_t Maximum() const { return maximum_; }
    std::int32_t Value() const { return value_; }

    // Each throws Failure InvalidPropertyValue, and changes nothing, for what would leave no
    // length: a maximum of the minimum or below. A value outside is taken to the nearer end.
    void SetMinimum(std::int32_t minimum);
    void SetMaximum(std::int32_t maximum);
    // Throws Failure InvalidPropertyValue for a value outside.
    void SetValue(std::int32_t value);

  private:
    void SetRange(std::int32_t minimum, std::int32_t maximum);

    std::int32_t minimum_ = 0;
    std::int32_t maximum_ = 100;
    std::int32_t value_ = 0;
};

}  // namespace toolkit
