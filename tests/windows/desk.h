#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/messages.h"
#include "platform/win32/text.h"
#include "platform/win32/windows/windowhost.h"
#include "toolkit/controls.h"
#include "toolkit/drawncontrol.h"
#include "toolkit/form.h"

namespace windows {

// Notes the boxes instead of showing them.
class NotedMessages final : public platform::Messages {
  public:
    int Show(std::string_view text, int, std::string_view) override {
        texts.emplace_back(text);
        return platform::message::Ok;
    }

    std::vector<std::string> texts;
};

// A button without a look, which notes what reaches it.
class PlainButton final : public toolkit::DrawnControl {
  public:
    PlainButton(toolkit::Form& form, std::string name, std::string caption)
        : DrawnControl(form, toolkit::ControlKind::Drawn, std::move(name), std::move(caption),
                       true) {}

    const char* WindowClass() const override { return "plainButton"; }
    toolkit::Size NaturalSize(toolkit::Size text) const override {
        return {text.width + 20, text.height + 10};
    }
    void Paint(toolkit::Canvas&, toolkit::Rect) override { ++paints; }
    void MouseDown(toolkit::Mouse mouse) override { lastDown = mouse.button; }
    void KeyDown(toolkit::Key key) override { lastKey = key.code; }
    void MarkDefault(bool marked) override { isDefault = marked; }
    void Press() override {
        ++presses;
        if (onPress) onPress();
    }

    toolkit::Handler onPress;
    int presses = 0;
    int paints = 0;
    int lastKey = 0;
    bool isDefault = false;
    toolkit::MouseButton lastDown = toolkit::MouseButton::None;
};

// A form whose events run what the test gives it.
class TestForm final : public toolkit::Form {
  public:
    TestForm(toolkit::FormHost& host, std::string name)
        : Form(host, std::move(name), "Fenster", {1500, 1500, 6000, 4500}) {}

    std::function<bool(int)> keyDown;
    std::function<void()> resized;
    std::function<void()> mouseMoved;

  protected:
    bool OnKeyDown(int key) override { return keyDown && keyDown(key); }
    void OnMouseMove() override {
        if (mouseMoved) mouseMoved();
    }
    void OnResize() override {
        if (resized) resized();
    }
};

struct Desk {
    NotedMessages messages;
    platform::win32::WindowHost host{messages};

    // The window of a control or form by its name, found as a script finds it.
    HWND Find(const toolkit::Form& form, const std::string& name) const;
};

// The name that a window carries for scripts; "" when it carries none.
std::string NameOf(HWND window);
std::string TextOf(HWND window);
// Serves what is in the queue.
void ServeQueue();

}  // namespace windows
