#include "platform/simulated/tooltips.h"

#include <algorithm>

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {
namespace {

constexpr char WindowClass[] = "tooltips_class32";

enum Message : std::uint32_t {
    SetFont = 48,
    SetDelayTime = 1027,
    AddTool = 1028,
    DelTool = 1029,
    NewToolRect = 1030,
    GetToolInfo = 1032,
    SetTipBkColour = 1043,
    SetTipTextColour = 1044,
    SetMaxTipWidth = 1048,
};

// Which of the delays.
constexpr std::uintptr_t AutoPop = 2;

std::string HandleNumber(ToolTips::Handle handle) {
    return "#" + std::to_string(handle);
}

std::string ToolWording(const TipTool& tool) {
    std::string text = "size " + std::to_string(tool.cbSize) + " flags " +
                       std::to_string(tool.uFlags) + " window " + std::to_string(tool.hwnd) +
                       " id " + std::to_string(tool.uId) + " rect";
    for (const std::int32_t edge : {tool.left, tool.top, tool.right, tool.bottom}) {
        text += ' ' + std::to_string(edge);
    }
    return text;
}

std::vector<ToolTips::Tool>::iterator Place(ToolTips::Window& window, const TipTool& tool) {
    return std::find_if(window.tools.begin(), window.tools.end(), [&](const auto& each) {
        return each.record.hwnd == tool.hwnd && each.record.uId == tool.uId;
    });
}

}  // namespace

void ToolTips::InitControls() {
    journal_.Note([] { return std::string("InitCommonControlsEx"); });
}

ToolTips::Handle ToolTips::Create(std::uint32_t extendedStyle, std::uint32_t style) {
    const Handle made = Fails("CreateWindowExA") ? 0 : next_++;
    if (made) windows_[made].style = style;
    journal_.Note([&] {
        return "CreateWindowExA " + Quoted(WindowClass) + " ex " + Hex(extendedStyle) + " style " +
               Hex(style) + " -> " + HandleNumber(made);
    });
    return made;
}

void ToolTips::Destroy(Handle window) {
    journal_.Note([&] { return "DestroyWindow " + HandleNumber(window); });
    if (!Fails("DestroyWindow")) windows_.erase(window);
}

std::uint32_t ToolTips::WindowStyle(Handle window) const {
    const auto found = windows_.find(window);
    const bool answers = found != windows_.end() && !Fails("GetWindowLongA");
    const std::uint32_t style = answers ? found->second.style : 0;
    journal_.Note(
        [&] { return "GetWindowLongA " + HandleNumber(window) + " GWL_STYLE -> " + Hex(style); });
    return style;
}

void ToolTips::SetWindowStyle(Handle window, std::uint32_t style) {
    journal_.Note(
        [&] { return "SetWindowLongA " + HandleNumber(window) + " GWL_STYLE " + Hex(style); });
    Window* changed = Existing(window);
    if (changed && !Fails("SetWindowLongA")) changed->style = style;
}

void ToolTips::Send(Handle window, std::uint32_t message, std::uintptr_t wParam,
                    std::uintptr_t lParam) {
    journal_.Note([&] {
        return "SendMessageA " + HandleNumber(window) + ' ' + std::to_string(message) + ' ' +
               std::to_string(wParam) + ' ' + std::to_string(lParam);
    });
    Window* told = Existing(window);
    if (!told || Fails("SendMessageA")) return;
    if (message == SetFont) told->font = wParam;
    if (message == SetTipBkColour) told->backColour = wParam;
    if (message == SetTipTextColour) told->textColour = wParam;
    if (message == SetMaxTipWidth) told->width = lParam;
    if (message == SetDelayTime) {
        (wParam == AutoPop ? told->visibleTime : told->delayTime) = lParam;
    }
}

void ToolTips::SendTool(Handle window, std::uint32_t message, TipTool& tool, const char* text) {
    journal_.Note([&] {
        return "SendMessageA " + HandleNumber(window) + ' ' + std::to_string(message) + ' ' +
               ToolWording(tool) + (text ? ' ' + Quoted(text) : "");
    });
    Window* told = Existing(window);
    if (!told || Fails("SendMessageA")) return;
    if (message == AddTool) told->tools.push_back({tool, text ? text : ""});
    const auto known = Place(*told, tool);
    if (known == told->tools.end()) return;
    if (message == DelTool) told->tools.erase(known);
    if (message == GetToolInfo) tool = known->record;
    if (message == NewToolRect) {
        known->record.left = tool.left;
        known->record.top = tool.top;
        known->record.right = tool.right;
        known->record.bottom = tool.bottom;
    }
}

std::int32_t ToolTips::VerticalResolution() const {
    constexpr std::int32_t dots = 96;
    journal_.Note([] { return "GetDeviceCaps 90 -> " + std::to_string(dots); });
    return dots;
}

ToolTips::Handle ToolTips::MakeFont(std::int32_t height, const TipFont& font) {
    const Handle made = Fails("CreateFontIndirectA") ? 0 : next_++;
    if (made) fonts_[made] = {height, font};
    journal_.Note([&] {
        return "CreateFontIndirectA " + Quoted(font.name) + " height " + std::to_string(height) +
               " weight " + std::to_string(font.weight) + (font.italic ? " italic" : "") +
               (font.underline ? " underline" : "") + (font.strikethrough ? " strikeout" : "") +
               " -> " + HandleNumber(made);
    });
    return made;
}

void ToolTips::DeleteFont(Handle font) {
    journal_.Note([&] { return "DeleteObject " + HandleNumber(font); });
    if (!Fails("DeleteObject")) fonts_.erase(font);
}

const ToolTips::Tool* ToolTips::Window::Find(std::uintptr_t window, std::uintptr_t id) const {
    const auto found = std::find_if(tools.begin(), tools.end(), [&](const Tool& tool) {
        return tool.record.hwnd == window && tool.record.uId == id;
    });
    return found == tools.end() ? nullptr : &*found;
}

bool ToolTips::Fails(std::string_view call) const {
    return faults_.Check(call, WindowClass).has_value();
}

ToolTips::Window* ToolTips::Existing(Handle window) {
    const auto found = windows_.find(window);
    return found == windows_.end() ? nullptr : &found->second;
}

}  // namespace platform::simulated
