#include "controls/pageheading.h"

#include "controls/line3d.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace controls {

toolkit::Box PageHeading(toolkit::Form& form, const std::string& labelName, std::string caption) {
    auto& label =
        form.Add<toolkit::Label>(labelName, std::move(caption), toolkit::LabelStyle::Heading);
    auto& line = form.Add<Line3D>("Line3D(" + labelName + ")");
    return toolkit::Gap(toolkit::Column({toolkit::Leaf(label), toolkit::Leaf(line)}), 2);
}

}  // namespace controls
