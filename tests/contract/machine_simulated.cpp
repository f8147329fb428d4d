#include "contract/layer.h"
#include "contract/machine.h"
#include "platform/simulated/machine.h"
#include "platform/simulated/wideregistry.h"
#include "runtime/failure.h"

namespace contract {
namespace {

// The simulated clock may be set; what it shows afterwards is what a setting comes to.
class NotingSystemClock final : public platform::SystemClock {
  public:
    explicit NotingSystemClock(platform::simulated::Machine& machine) : machine_(machine) {}

    void SetSystemTime(const platform::LocalTime& utc) override {
        machine_.systemClock.SetSystemTime(utc);
        settings.push_back({true, utc});
    }
    void SetLocalDate(const platform::LocalTime& date) override {
        machine_.systemClock.SetLocalDate(date);
        settings.push_back({false, machine_.clock.now});
    }
    void SetLocalTime(const platform::LocalTime& time) override {
        machine_.systemClock.SetLocalTime(time);
        settings.push_back({false, machine_.clock.now});
    }

    std::vector<ClockSetting> settings;

  private:
    platform::simulated::Machine& machine_;
};

}  // namespace

struct TestMachine::Inside {
    platform::simulated::Machine machine;
    platform::simulated::WideRegistry wide{machine.registry};
    Layer layer{machine.services};
    NotingSystemClock clock{machine};
    std::uint16_t lastPort = 4000;
};

TestMachine::TestMachine() : inside_(std::make_unique<Inside>()) {}

TestMachine::~TestMachine() = default;

platform::Machine& TestMachine::Services() {
    return inside_->layer.Services();
}

platform::WideRegistry& TestMachine::Wide() {
    return inside_->wide;
}

std::optional<Stored> TestMachine::StoredAt(platform::Registry::Key root, std::string_view path,
                                            std::string_view valueName) const {
    if (inside_->layer.KeepsWrites()) return inside_->layer.StoredAt(root, path, valueName);
    const auto value = inside_->machine.registry.Value(root, path, valueName);
    if (!value) return std::nullopt;
    return Stored{value->type, {value->bytes.begin(), value->bytes.end()}};
}

std::string TestMachine::FilePath(std::string_view name) const {
    return "C:\\Scratch\\" + std::string(name);
}

std::optional<std::string> TestMachine::FileContent(std::string_view path) const {
    return inside_->machine.files.Content(path);
}

void TestMachine::AddCacheEntry(std::string_view url, std::uint32_t type) {
    inside_->machine.internetCache.Add({.url = std::string(url), .type = type});
}

void TestMachine::LockCacheEntry(std::string_view url) {
    for (auto& entry : inside_->machine.internetCache.entries) {
        if (entry.url == url) entry.locked = true;
    }
}

std::optional<std::string> TestMachine::ClipboardText() const {
    return inside_->machine.clipboard.text;
}

void TestMachine::Protect(std::string_view path) {
    inside_->machine.files.Protect(path);
}

void TestMachine::MakeFolder(std::string_view path) {
    inside_->machine.disk.MakeFolder(path);
}

void TestMachine::SetAttributes(std::string_view path, std::uint32_t attributes) {
    inside_->machine.disk.At(path).attributes = attributes;
}

void TestMachine::MakeLink(std::string_view path, std::string_view target) {
    inside_->machine.disk.MakeLink(path, target);
}

void TestMachine::WithShared(std::string_view path, const std::function<void()>& action) {
    inside_->machine.disk.At(path).shared = true;
    action();
    inside_->machine.disk.At(path).shared = false;
}

void TestMachine::WithUnreadable(std::string_view path, const std::function<void()>& action) {
    bool& unreadable = inside_->machine.disk.At(path).unreadable;
    unreadable = true;
    action();
    unreadable = false;
}

platform::OtherWindows::Handle TestMachine::OpenWindow(std::string_view className,
                                                       std::string_view title,
                                                       platform::OtherWindows::Handle parent) {
    return inside_->machine.otherWindows.Open(std::string(className), std::string(title), parent);
}

void TestMachine::EndWindow(platform::OtherWindows::Handle window) {
    inside_->machine.otherWindows.Close(window);
}

WindowLook TestMachine::LookAt(platform::OtherWindows::Handle window) const {
    const auto& seen = inside_->machine.otherWindows.At(window);
    return {seen.extendedStyle, seen.alpha,   seen.textBackground,
            seen.place,         seen.visible, seen.redraws};
}

TipLook TestMachine::LookAtTips(platform::ToolTips::Handle window) const {
    const auto& seen = inside_->machine.toolTips.At(window);
    return {static_cast<std::uint32_t>(seen.textColour),
            static_cast<std::uint32_t>(seen.backColour),
            static_cast<int>(seen.visibleTime),
            static_cast<int>(seen.delayTime),
            static_cast<int>(seen.width),
            static_cast<int>(seen.tools.size())};
}

std::pair<int, std::string> TestMachine::TipFont(platform::ToolTips::Handle window) const {
    const auto& tips = inside_->machine.toolTips;
    const auto& font = tips.FontAt(tips.At(window).font);
    return {font.height, font.font.name};
}

std::string TestMachine::TipText(platform::ToolTips::Handle window, std::uintptr_t tool,
                                 std::uintptr_t id) const {
    const auto* found = inside_->machine.toolTips.At(window).Find(tool, id);
    return found ? found->text : "";
}

std::size_t TestMachine::ResidentBytes() const {
    return inside_->machine.memory.Held();
}

std::uint16_t TestMachine::Serve(std::vector<ServerAnswer> answers) {
    using End = platform::simulated::ServerAnswer::End;
    const std::uint16_t port = ++inside_->lastPort;
    for (ServerAnswer& answer : answers) {
        inside_->machine.socket.Serve(port,
                                      {std::move(answer.pieces), static_cast<End>(answer.end)});
    }
    return port;
}

std::uint16_t TestMachine::RefusingPort() {
    return ++inside_->lastPort;
}

int TestMachine::NumberOfBreak() const {
    return 10054;
}

bool TestMachine::IsRealXp() const {
    return false;
}

bool TestMachine::LacksWorkstationService() const {
    return false;
}

bool TestMachine::TakesTooLongKeys() const {
    return false;
}

platform::SystemClock& TestMachine::NotingClock() {
    return inside_->clock;
}

std::vector<ClockSetting> TestMachine::ClockSettings() const {
    return inside_->clock.settings;
}

void TestMachine::RefuseClock() {
    for (const char* call : {"SetSystemTime", "SetLocalDate", "SetLocalTime"}) {
        inside_->machine.faults.FailAll(call, runtime::PermissionDenied);
    }
}

bool TestMachine::PassTime(int milliseconds, const std::function<bool()>& done) {
    for (int passed = 0; passed < milliseconds && !done(); ++passed) {
        inside_->machine.socket.RaiseNext();
        inside_->machine.clock.Advance(1);
    }
    return done();
}

void TestMachine::UseNextMenu(std::string caption, std::function<void()> whileOpen) {
    inside_->machine.menus.Pick(std::move(caption));
    inside_->machine.menus.WhileOpen(std::move(whileOpen));
}

void TestMachine::WithoutBoxes(const std::function<void()>& action) {
    inside_->machine.faults.FailAll("MessageBox", runtime::OutOfMemory);
    action();
    inside_->machine.faults.Clear();
}

void TestMachine::UseNextFolderDialog(bool ok) {
    inside_->machine.shell.WhenBrowsing([ok](platform::simulated::FolderDialog&) { return ok; });
}

std::string TestMachine::EndingCommand() const {
    return "child.exe end";
}

std::string TestMachine::MissingCommand() {
    inside_->machine.faults.FailOn("missing.exe", runtime::FileNotFound);
    return "missing.exe";
}

std::string TestMachine::ExpectedDirectory() const {
    return "C:\\Programme\\Quillmore";
}

std::string TestMachine::MissingDrive() const {
    return "Q:";
}

std::string TestMachine::ExpectedUser() const {
    return "Besitzer";
}

std::string TestMachine::ExpectedName() const {
    return "Quillmore";
}

}  // namespace contract
