#pragma once

#include <string>
#include <string_view>

#include "toolkit/view.h"

namespace toolkit {

class Form;

enum class ControlKind {
    Label,
    CheckBox,
    OptionButton,
    TextBox,
    ComboBox,
    Frame,
    Slider,
    TabStrip,
    ListView,
    ListBox,
    DriveListBox,
    ProgressBar,
    Drawn,
};

// State and events of one control. The control is the whole state of its option; a native window,
// if there is one, is only its view. Events are raised exactly when a value really changes, whoever
// changes it: the user, the program, a preset.
class Control {
  public:
    static constexpr int NoIndex = -1;

    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }

    // The name by which the form and scripts from outside know the control. A member of an indexed
    // group carries its index in brackets: "lblVerwaltung(3)".
    const std::string& Name() const { return name_; }
    Form& Owner() const { return form_; }

    // As written in the source: in the captions of buttons, check boxes, frames and labels a
    // doubled ampersand stands for one, a single one marks the access key.
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

    // Whether the control is to be seen when its page is.
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    // One line that is shown to a mouse that rests on the control; none while it is "". Of the
    // labels only those of the style Path show it; a path that is cut shows itself when it has
    // none.
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view text);

    // Whether the keyboard reaches the control with the tabulator.
    bool IsTabStop() const { return tabStop_; }

    // The view is owned by the platform, which sets it before the window is shown and takes it away
    // (nullptr) before the window dies.
    void SetView(ControlView* view) { view_ = view; }
    ControlView* View() const { return view_; }

  protected:
    Control(Form& form, ControlKind kind, std::string name, std::string caption, bool tabStop);

    // Tells the view. For a control that has to do more when its caption or its state changes.
    virtual void Changed(Aspect what);

  private:
    Form& form_;
    ControlKind kind_;
    std::string name_;
    std::string caption_;
    std::string toolTip_;
    bool tabStop_;
    bool enabled_ = true;
    bool visible_ = true;
    ControlView* view_ = nullptr;
};

}  // namespace toolkit
