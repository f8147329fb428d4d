// What somebody needs who makes new buttons or changes their properties. Of it the program only
// sets pictures; the rest goes when it is linked. Each setter stores, draws anew what the property
// bears upon, and announces the key.
#include <utility>

#include "controls/chameleonbutton.h"

namespace controls {

chameleonButton::chameleonButton(toolkit::Form& form, std::string name, platform::Clock& clock)
    : DrawnControl(form, toolkit::ControlKind::Drawn, name, name, true), clock_(clock) {
    properties_.caption = std::move(name);
}

void chameleonButton::WriteProperties(PropertyStore& store) const {
    WriteButtonProperties(store, properties_);
}

void chameleonButton::SetButtonType(std::int16_t type) {
    properties_.buttonType = type;
    Stored(key::ButtonType, Concerns::Shape);
}

void chameleonButton::SetFont(toolkit::Font font) {
    properties_.font = std::move(font);
    Stored(key::Font, Concerns::Contents);
}

void chameleonButton::SetColorScheme(std::int16_t scheme) {
    properties_.colorScheme = scheme;
    Stored(key::ColorScheme, Concerns::Colours);
}

void chameleonButton::SetShowFocusRect(bool shown) {
    properties_.showFocusRect = shown;
    Stored(key::ShowFocusRect, Concerns::Picture);
}

void chameleonButton::SetBackColor(toolkit::Colour colour) {
    properties_.backColor = colour;
    Stored(key::BackColor, Concerns::Colours);
}

void chameleonButton::SetBackOver(toolkit::Colour colour) {
    properties_.backOver = colour;
    Stored(key::BackOver, Concerns::Colours);
}

void chameleonButton::SetForeColor(toolkit::Colour colour) {
    properties_.foreColor = colour;
    Stored(key::ForeColor, Concerns::Colours);
}

void chameleonButton::SetForeOver(toolkit::Colour colour) {
    properties_.foreOver = colour;
    Stored(key::ForeOver, Concerns::Colours);
}

void chameleonButton::SetMaskColor(toolkit::Colour colour) {
    properties_.maskColor = colour;
    Stored(key::MaskColor, Concerns::Picture);
}

void chameleonButton::SetMousePointer(std::int16_t code) {
    properties_.mousePointer = code;
    Stored(key::MousePointer, Concerns::Nothing);
}

void chameleonButton::SetMouseIcon(toolkit::SharedPicture picture) {
    properties_.mouseIcon = std::move(picture);
    Stored(key::MouseIcon, Concerns::Nothing);
}

void chameleonButton::SetPictureNormal(toolkit::SharedPicture picture) {
    properties_.pictureNormal = std::move(picture);
    Stored(key::PictureNormal, Concerns::Contents);
}

void chameleonButton::SetPictureOver(toolkit::SharedPicture picture) {
    properties_.pictureOver = std::move(picture);
    Stored(key::PictureOverChange, Concerns::Contents);
}

void chameleonButton::SetUseMaskColor(bool used) {
    properties_.useMaskColor = used;
    Stored(key::UseMaskColor, Concerns::Picture);
}

void chameleonButton::SetSoftBevel(bool soft) {
    properties_.softBevel = soft;
    Stored(key::SoftBevel, Concerns::Colours);
}

void chameleonButton::SetPicturePosition(std::int16_t position) {
    properties_.picturePosition = position;
    Stored(key::PicturePosition, Concerns::Contents);
}

void chameleonButton::SetNormalGrey(bool grey) {
    properties_.normalGrey = grey;
    Stored(key::NormalGrey, Concerns::Picture);
}

void chameleonButton::SetSpecialEffect(std::int16_t effect) {
    properties_.specialEffect = effect;
    Stored(key::SpecialEffect, Concerns::Picture);
}

void chameleonButton::SetHandPointer(bool hand) {
    properties_.handPointer = hand;
    Stored(key::HandPointer, Concerns::Nothing);
}

void chameleonButton::SetCheckBoxBehaviour(bool on) {
    properties_.checkBoxBehaviour = on;
    Stored(key::CheckBoxBehaviour, Concerns::Picture);
}

void chameleonButton::SetValue(bool value) {
    properties_.value = value;
    Stored(key::Value, Concerns::Picture);
}

}  // namespace controls
