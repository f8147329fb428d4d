#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform {
class Locale;
}

namespace dialogs {

// What stands between a drive and its path, in the output of the command and in what is stored.
inline constexpr const char* DriveSeparator = "=>";

// The parts of a text between the separators; none for "".
std::vector<std::string> Split(std::string_view text, std::string_view separator);

// The output of the command `subst`, one drive after the other.
//
// A part that an item lacks is a statement that fails, so the item before lends it its own. Such is
// the second half of a path with a comma in it.
//
// It is read in the ANSI code page, like every text. XP's shell writes redirected output in the OEM
// code page, so an umlaut in a path is shown as another sign. No command is made of such a path.
class SubstOutput {
  public:
    SubstOutput(std::string_view bytes, const platform::Locale& locale);

    // Goes on to the next item; false behind the last one.
    bool Next();

    const std::string& Drive() const { return drive_; }
    const std::string& Path() const { return path_; }

  private:
    const platform::Locale& locale_;
    std::vector<std::string> items_;
    std::size_t next_ = 0;
    std::string drive_;
    std::string path_;
};

}  // namespace dialogs
