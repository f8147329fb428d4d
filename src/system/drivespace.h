#pragma once

#include <string>
#include <string_view>

namespace platform {
class Locale;
class SystemFacts;
}  // namespace platform

namespace sys {

// The space of a drive in bytes as text, in groups of three digits with the locale's sign between
// them: "20.003.880.960". A number of more than 15 digits has zeros from the 16th on. Zero is "",
// as the form of these texts asks for no digit; so is a drive without a medium.
class clsGetDriveSpace {
  public:
    clsGetDriveSpace(const platform::SystemFacts& facts, const platform::Locale& locale)
        : facts_(facts), locale_(locale) {}

    // What the user may still fill, with his quota.
    std::string UserFree(std::string_view drive) const;
    std::string TotalSize(std::string_view drive) const;
    // What is not free.
    std::string UsedSize(std::string_view drive) const;
    // What is free, whoever may fill it.
    std::string SizeLeft(std::string_view drive) const;

    // The number in the raw bytes of a text, the lowest first; usually eight of them. Throws
    // Failure Overflow when the number, or the weight of a place, is too large for a double.
    static double ver(std::string_view text);

  private:
    std::string Formatted(std::string_view raw) const;

    const platform::SystemFacts& facts_;
    const platform::Locale& locale_;
};

}  // namespace sys
