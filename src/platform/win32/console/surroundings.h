#pragma once

#include <windows.h>

#include "cmd/surroundings.h"

namespace platform::win32 {

// The standard streams that the process has when this is made, and the files of Windows.
class Surroundings final : public cmd::Surroundings {
  public:
    Surroundings();

    void Out(std::string_view text) override;
    void Err(std::string_view text) override;
    void UseUtf8() override;
    bool OutputIsSeen() const override;
    std::optional<std::string> ReadLine() override;

    // Only files and folders on a disk have such paths: devices and pipes are refused.
    std::string ReadFile(std::string_view path) override;
    void WriteNewFile(std::string_view path, std::string_view bytes) override;

    std::string SystemText(int error) const override;

    // Whether the standard output did not take all that it was given: a full disk, a pipe at whose
    // end nobody reads any more. Without a standard output nothing is lost.
    bool OutputLost() const { return out_.lost; }

  private:
    struct Stream {
        explicit Stream(DWORD which);
        HANDLE handle;
        bool isConsole;
        bool lost = false;
    };
    void Put(Stream& stream, std::string_view text) const;

    Stream out_;
    Stream err_;
    Stream in_;
    UINT outputCodePage_;
    UINT inputCodePage_;
    // Bytes of the input behind the last line.
    std::string waiting_;
};

}  // namespace platform::win32
