#pragma once

#include <string>
#include <string_view>
#include <vector>

// Profiles: what the controls hold, as a text that people read and write.
//
//   [Quillmore]
//   Profil=1
//
//   [Tweaks]
//   ; Nicht benötigte DLL's direkt entladen
//   chkUnloadDll=1
//
// Blanks around a value do not count, unless it stands between quotes; between those \r, \n, \t, \"
// and \\ are what they are in C. A line that begins with a semicolon is a comment.
namespace cmd {

struct ProfileLine {
    // A page's name, such as "DFÜ".
    std::string page;
    std::string control;
    std::string value;
    // Of the file, 1 for the first one.
    int line = 0;
    // Only to be written.
    std::string comment = {};
    // The line itself is a comment, too.
    bool isOff = false;
};

// UTF-8 with a byte order mark, so that an editor knows it; lines end in CR LF.
std::string WriteProfile(const std::vector<ProfileLine>& lines);

// UTF-8 or UTF-16 with a byte order mark, otherwise code page 1252. Throws BadInput, with its line,
// for what is no profile. Pages and controls are not looked up here, but no control comes twice.
std::vector<ProfileLine> ReadProfile(std::string_view file);

}  // namespace cmd
