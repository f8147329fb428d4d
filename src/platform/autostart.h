#pragma once

#include <string_view>

namespace platform {

// The program's autostart entry: a value named after the program's title in the user's Run key,
// holding the quoted path of the executable. Results tell of success and are not failures.
class AutoStart {
  public:
    virtual ~AutoStart() = default;

    // `directory` without a trailing backslash, `executable` without extension.
    virtual bool AutoStartAdd(std::string_view directory, std::string_view title,
                              std::string_view executable) = 0;
    virtual bool AutoStartRemove(std::string_view title) = 0;
    virtual bool AutoStartExists(std::string_view title) const = 0;
};

}  // namespace platform
