#include "contract/machine.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"

namespace contract {

struct TestMachine::Inside {
    platform::simulated::Machine machine;
};

TestMachine::TestMachine() : inside_(std::make_unique<Inside>()) {}

TestMachine::~TestMachine() = default;

platform::Machine& TestMachine::Services() {
    return inside_->machine.services;
}

std::optional<Stored> TestMachine::StoredAt(platform::Registry::Key root, std::string_view path,
                                            std::string_view valueName) const {
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

std::optional<std::string> TestMachine::ClipboardText() const {
    return inside_->machine.clipboard.text;
}

void TestMachine::Protect(std::string_view path) {
    inside_->machine.files.Protect(path);
}

platform::OtherWindows::Handle TestMachine::OpenWindow(std::string_view className,
                                                       std::string_view title,
                                                       platform::OtherWindows::Handle parent) {
    return inside_->machine.windows.Open(std::string(className), std::string(title), parent);
}

void TestMachine::EndWindow(platform::OtherWindows::Handle window) {
    inside_->machine.windows.Close(window);
}

WindowLook TestMachine::LookAt(platform::OtherWindows::Handle window) const {
    const auto& seen = inside_->machine.windows.At(window);
    return {seen.extendedStyle, seen.alpha,   seen.textBackground,
            seen.place,         seen.visible, seen.redraws};
}

std::size_t TestMachine::ResidentBytes() const {
    return inside_->machine.memory.Held();
}

bool TestMachine::PassTime(int milliseconds, const std::function<bool()>& done) {
    for (int passed = 0; passed < milliseconds && !done(); ++passed) {
        inside_->machine.clock.Advance(1);
    }
    return done();
}

void TestMachine::UseNextMenu(std::string caption, std::function<void()> whileOpen) {
    inside_->machine.menus.Pick(std::move(caption));
    inside_->machine.menus.WhileOpen(std::move(whileOpen));
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

std::string TestMachine::ExpectedName() const {
    return "Quillmore";
}

}  // namespace contract
