#pragma once

#include "controls/buttonproperties.h"

namespace controls {

// The one list of what is stored: `each` gets keys and members in their order. A third argument is
// what the member follows where the store lacks the key; others then keep what they have.
template <typename Each, typename Properties>
void VisitProperties(Each&& each, Properties& p) {
    each(key::ButtonType, p.buttonType);
    each(key::Caption, p.caption);
    each(key::Enabled, p.enabled);
    each(key::Font, p.font);
    each(key::ColorScheme, p.colorScheme);
    each(key::ShowFocusRect, p.showFocusRect);
    each(key::BackColor, p.backColor);
    each(key::BackOver, p.backOver, p.backColor);
    each(key::ForeColor, p.foreColor);
    each(key::ForeOver, p.foreOver, p.foreColor);
    each(key::MaskColor, p.maskColor);
    each(key::MousePointer, p.mousePointer);
    each(key::MouseIcon, p.mouseIcon);
    each(key::PictureNormal, p.pictureNormal);
    each(key::PictureOver, p.pictureOver);
    each(key::UseMaskColor, p.useMaskColor);
    each(key::SoftBevel, p.softBevel);
    each(key::PicturePosition, p.picturePosition);
    each(key::NormalGrey, p.normalGrey);
    each(key::SpecialEffect, p.specialEffect);
    each(key::HandPointer, p.handPointer);
    each(key::CheckBoxBehaviour, p.checkBoxBehaviour);
    each(key::Value, p.value);
}

}  // namespace controls
