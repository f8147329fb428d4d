// A window with all looks of the program's button, one a row, in all states side by side.
#include <windows.h>

#include <commctrl.h>

#include <iterator>

#include "controls/chameleonbutton.h"
#include "platform/win32/messages.h"
#include "platform/win32/windows/nativepicture.h"
#include "platform/win32/windows/windowhost.h"
#include "windows/stillclock.h"

namespace {

using controls::chameleonButton;
using platform::win32::NativePicture;

// A window over which the mouse stands for good.
class PinnedView final : public toolkit::ControlView {
  public:
    explicit PinnedView(toolkit::ControlView& window) : window_(window) {}

    void Refresh(toolkit::Aspect what) override { window_.Refresh(what); }
    void Repaint() override { window_.Repaint(); }
    bool PointerIsOver() const override { return true; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}
    void SetRegion(const toolkit::Region& parts) override { window_.SetRegion(parts); }
    void KeepBackground(bool kept) override { window_.KeepBackground(kept); }

  private:
    toolkit::ControlView& window_;
};

toolkit::SharedPicture Icon() {
    return std::make_shared<NativePicture>(LoadIconW(nullptr, IDI_INFORMATION),
                                           toolkit::Size{14, 14});
}

struct Exhibit {
    const char* title;
    // Before the window is there.
    void (*prepare)(chameleonButton&);
    // With the mouse over the button.
    void (*show)(chameleonButton&);
};

void Nothing(chameleonButton&) {}

constexpr Exhibit Exhibits[] = {
    {"Normal", Nothing, Nothing},
    {"Maus", Nothing,
     [](chameleonButton& button) { button.MouseMove(toolkit::MouseButton::None); }},
    {"Gedrückt", Nothing,
     [](chameleonButton& button) { button.MouseDown(toolkit::MouseButton::Left); }},
    {"Gehalten",
     [](chameleonButton& button) {
         button.SetCheckBoxBehaviour(true);
         button.SetValue(true);
     },
     Nothing},
    {"Standard", Nothing,
     [](chameleonButton& button) {
         button.MarkDefault(true);
         button.FocusChanged(true);
     }},
    {"Gesperrt", [](chameleonButton& button) { button.SetEnabled(false); }, Nothing},
    {"Weich", [](chameleonButton& button) { button.SetSoftBevel(true); }, Nothing},
    {"Farbe",
     [](chameleonButton& button) {
         button.SetColorScheme(2);
         button.SetBackColor(0xE0B080);
         button.SetSpecialEffect(1);
     },
     Nothing},
    {"Bild",
     [](chameleonButton& button) {
         button.SetPictureNormal(Icon());
         button.SetHandPointer(true);
     },
     Nothing},
    {"Grau",
     [](chameleonButton& button) {
         button.SetPictureNormal(Icon());
         button.SetPicturePosition(1);
         button.SetNormalGrey(true);
     },
     Nothing},
};
constexpr int Looks = 14;
constexpr int Columns = 1 + static_cast<int>(std::size(Exhibits));

class LooksForm final : public toolkit::Form {
  public:
    explicit LooksForm(toolkit::FormHost& host)
        : Form(host, "frmLooks", "Knöpfe", {150, 150, 9990, 7920}) {
        sizeToContent = true;
        std::vector<toolkit::Box> cells;
        cells.push_back(toolkit::Space(1, 1));
        for (const Exhibit& exhibit : Exhibits) AddTitle(cells, exhibit.title);
        for (std::int16_t look = 1; look <= Looks; ++look) {
            AddTitle(cells, std::to_string(look));
            for (const Exhibit& exhibit : Exhibits) {
                auto& button = Add<chameleonButton>(exhibit.title + std::to_string(look),
                                                    controls::Persisted{"TX=&Knopf"}, clock_);
                button.SetButtonType(look);
                exhibit.prepare(button);
                buttons_.push_back(&button);
                cells.push_back(Leaf(button));
            }
        }
        SetLayout(Margin(Gap(toolkit::Grid(Columns, std::move(cells)), 8), 8));
    }

    void ShowStates() {
        for (std::size_t i = 0; i < buttons_.size(); ++i) {
            chameleonButton& button = *buttons_[i];
            toolkit::ControlView* window = button.View();
            PinnedView pinned(*window);
            button.SetView(&pinned);
            Exhibits[i % std::size(Exhibits)].show(button);
            button.SetView(window);
        }
    }

  private:
    void AddTitle(std::vector<toolkit::Box>& cells, std::string title) {
        auto& label = Add<toolkit::Label>("lbl" + title, title);
        cells.push_back(Leaf(label));
    }

    windows::StillClock clock_;
    std::vector<chameleonButton*> buttons_;
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    InitCommonControls();
    platform::win32::Messages messages;
    platform::win32::WindowHost host(messages);
    LooksForm form(host);
    form.Show();
    form.ShowStates();
    host.Run();
    return 0;
}
