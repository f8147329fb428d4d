#include "contract/machine.h"
#include "platform/simulated/machine.h"

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

bool TestMachine::PassTime(int milliseconds, const std::function<bool()>& done) {
    for (int passed = 0; passed < milliseconds && !done(); ++passed) {
        inside_->machine.clock.Advance(1);
    }
    return done();
}

std::string TestMachine::EndingCommand() const {
    return "child.exe end";
}

std::string TestMachine::MissingCommand() {
    inside_->machine.faults.FailOn("missing.exe", platform::Registry::FileNotFound);
    return "missing.exe";
}

std::string TestMachine::ExpectedDirectory() const {
    return "C:\\Programme\\Quillmore";
}

std::string TestMachine::ExpectedName() const {
    return "Quillmore";
}

}  // namespace contract
