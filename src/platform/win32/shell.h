#pragma once

#include <optional>

#include "platform/shell.h"
#include "platform/win32/com.h"

namespace platform {
class Messages;
}

namespace platform::win32 {

class FormHandles;

// Failures in a folder dialog's callback are shown by `messages`.
class Shell final : public platform::Shell {
  public:
    Shell(const FormHandles& forms, platform::Messages& messages)
        : forms_(forms), messages_(messages) {}

    void Execute(std::string_view verb, std::string_view file, std::string_view parameters,
                 std::string_view directory, std::int32_t show) override;
    void ObjectProperties(std::int32_t kind) override;
    std::int32_t OperateOnFiles(std::uint32_t function, std::string_view path,
                                std::uint16_t flags) override;
    void EmptyRecycleBin(std::uint32_t flags) override;
    std::string TypeName(std::string_view path, std::uint32_t attributes) const override;
    std::string BrowseForFolder(const toolkit::Form& owner, std::string_view title,
                                std::uint32_t flags, const FolderCallback& callback) override;
    std::string SpecialFolder(std::int32_t csidl) const override;

  private:
    // What the shell starts may be an extension that needs COM. Nothing before the first call does.
    void EnterApartment() const;

    mutable std::optional<ComApartment> apartment_;
    const FormHandles& forms_;
    platform::Messages& messages_;
};

}  // namespace platform::win32
