#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/layout.h"

namespace toolkit {

class DrawnControl;
class Form;
class FormHost;

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// Pointer codes of a form and of the screen.
inline constexpr int DefaultPointer = 0;
inline constexpr int Hourglass = 11;

// What of a form has changed, for the window that shows it.
enum class FormAspect {
    Caption,
    State,
    Position,
    Visible,
    TaskbarEntry,
    Pointer,
    Layered,
    LayerAttributes,
};

class FormView {
  public:
    virtual ~FormView() = default;
    virtual void Refresh(FormAspect what) = 0;
};

// Left, top, width and height in twips, 1440 to the inch, as they are stored and compared.
struct Bounds {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    bool operator==(const Bounds&) const = default;
};

// How a layered window lies over what is behind it: its alpha, 0 to 255, counts under the flag
// AlphaFlag.
struct LayerAttributes {
    static constexpr int AlphaFlag = 2;

    int alpha = 255;
    int flags = 0;

    bool operator==(const LayerAttributes&) const = default;
};

// A window with its controls. Its events are virtual functions which do nothing here.
class Form {
  public:
    Form(FormHost& host, std::string name, std::string caption, Bounds bounds);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }

    // Makes a control of the class T and keeps it; the order of making is the tab order.
    template <typename T, typename... Arguments>
    T& Add(Arguments&&... arguments) {
        return AddAs<T, Passed<Arguments>...>(std::forward<Arguments>(arguments)...);
    }

    // The control of that name, nullptr when there is none.
    Control* FindControl(std::string_view name) const;

    // The control of that name as a T. Asking for a name or a class that is not there is a mistake
    // in the program and ends it (runtime::Mistake).
    template <typename T>
    T& Find(std::string_view name) const {
        T* control = dynamic_cast<T*>(FindControl(name));
        if (!control) ThrowMissing(name);
        return *control;
    }

    const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }

    const Box& Layout() const { return layout_; }
    void SetLayout(Box layout) { layout_ = std::move(layout); }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);

    WindowState State() const { return state_; }
    void SetState(WindowState state);

    const Bounds& Place() const { return bounds_; }
    void SetLeft(float left);
    void SetTop(float top);
    void SetSize(float width, float height);

    bool Visible() const { return visible_; }
    bool InTaskbar() const { return inTaskbar_; }
    void SetInTaskbar(bool shown);

    // The form's own.
    int Pointer() const { return pointer_; }
    void SetPointer(int pointer);
    // What the mouse shows over the form: its own, unless the screen's covers it.
    int ShownPointer() const;

    // Both last until the form is unloaded, like the window that they belong to.
    bool Layered() const { return layered_; }
    void MakeLayered();
    // Passed on to the window each time. The system refuses it, without a failure, as long as the
    // window is not layered.
    const LayerAttributes& Layer() const { return layer_; }
    void SetLayerAttributes(LayerAttributes attributes);

    // What Return and Escape press; nullptr where they press nothing.
    DrawnControl* defaultButton = nullptr;
    DrawnControl* cancelButton = nullptr;
    // The control that has the focus when the form is shown; the first one when nullptr.
    Control* firstFocus = nullptr;
    // A dialog has a close box but neither minimise nor maximise boxes, and no taskbar entry.
    bool isDialog = true;
    // When its window is made, the form gets the size that its layout wants and keeps its place;
    // the width and height given before do not matter then.
    bool sizeToContent = false;

    // A form is loaded from the moment its window exists until it is unloaded; hiding keeps it
    // loaded with all that its controls hold. Show and ShowModal load it when needed.
    bool Loaded() const { return loaded_; }
    void Load();
    // Raises Resize the first time, as the window then gets its size.
    void Show();
    // Returns when the form has been hidden or unloaded.
    void ShowModal();
    void Hide();
    // Raises QueryUnload, then Unload, then takes the window away. A failure in one of the two
    // passes to the caller and leaves the form loaded. Another Unload meanwhile, as a second click
    // on the close box brings it, does nothing.
    void Unload();

    // What the platform reports of the user's doings with the window. Raises Resize when the state
    // or the size really changed.
    void WindowMoved(WindowState state, Bounds bounds);
    // True when the form has used up the key.
    bool KeyPressed(int virtualKey) { return OnKeyDown(virtualKey); }
    // The mouse has moved over the form where no control heard it.
    void MouseMoved() { OnMouseMove(); }

    void SetView(FormView* view) { view_ = view; }
    FormView* View() const { return view_; }

    const FormHost& Host() const { return host_; }

  protected:
    virtual void OnLoad() {}
    virtual void OnResize() {}
    virtual bool OnKeyDown(int) { return false; }
    virtual void OnMouseMove() {}
    virtual void OnQueryUnload() {}
    virtual void OnUnload() {}

    FormHost& host_;

  private:
    // A text of the program is passed on as a pointer: its length would else be part of the type,
    // and each length would have an Add of its own in the executable.
    template <typename T>
    using Passed =
        std::conditional_t<std::is_array_v<std::remove_reference_t<T>>, std::decay_t<T>, T&&>;

    template <typename T, typename... Arguments>
    T& AddAs(Arguments... arguments) {
        auto control = std::make_unique<T>(*this, std::forward<Arguments>(arguments)...);
        T& made = *control;
        Keep(std::move(control));
        return made;
    }

    void Keep(std::unique_ptr<Control> control);
    [[noreturn]] void ThrowMissing(std::string_view name) const;
    void Changed(FormAspect what);
    void SizeChanged();

    std::string name_;
    std::string caption_;
    Bounds bounds_;
    WindowState state_ = WindowState::Normal;
    bool visible_ = false;
    bool everShown_ = false;
    bool inTaskbar_ = true;
    bool loaded_ = false;
    bool unloading_ = false;
    int pointer_ = DefaultPointer;
    bool layered_ = false;
    LayerAttributes layer_;
    std::vector<std::unique_ptr<Control>> controls_;
    // By the names that the controls themselves keep.
    std::unordered_map<std::string_view, Control*> byName_;
    Box layout_;
    FormView* view_ = nullptr;
};

// Makes and ends the windows of forms.
class FormHost {
  public:
    virtual ~FormHost() = default;

    // Makes the windows of the form and its controls, hidden, and sets their views.
    virtual void Open(Form& form) = 0;
    // Blocks its caller, and the other windows, until the form is hidden or unloaded.
    virtual void RunModal(Form& form) = 0;
    // Takes the windows away.
    virtual void Close(Form& form) = 0;
    // The screen's work area, in twips.
    virtual Bounds WorkArea() const = 0;
    // The program's loaded forms, in the order of their loading.
    virtual std::vector<Form*> OpenForms() const = 0;
    // The number by which the system knows the control's window; 0 while there is none.
    virtual std::uintptr_t HandleOf(const Control&) const { return 0; }
    // Serves the events that are waiting, those of all forms, and returns when none waits any more.
    virtual void DoEvents() {}
    // Bytes that compare as the texts do in the order of the user's language, in which letters'
    // case plays no part. Here the order of the alphabet, without any language's.
    virtual std::string SortKey(std::string_view text) const;

    // The screen's, that is of all the program's forms at once. One that is not the default covers
    // each form's own, which comes back to light with the default.
    int ScreenPointer() const { return screenPointer_; }
    void SetScreenPointer(int pointer);

  private:
    virtual void ScreenPointerChanged() {}

    int screenPointer_ = DefaultPointer;
};

// The screen's pointer is the hourglass for as long as this lives, also when what happens meanwhile
// fails. It ends with the default, whatever was before.
class ScreenHourglass {
  public:
    explicit ScreenHourglass(FormHost& host) : host_(host) { host_.SetScreenPointer(Hourglass); }
    ~ScreenHourglass() { host_.SetScreenPointer(DefaultPointer); }
    ScreenHourglass(const ScreenHourglass&) = delete;
    ScreenHourglass& operator=(const ScreenHourglass&) = delete;

  private:
    FormHost& host_;
};

}  // namespace toolkit
