#pragma once

// How the suite and its stand-in for the command shell speak with each other: by files beside the
// stand-in.
namespace endtoend {

// Its command lines, in the ANSI code page; one with "shown: " before it was not to be hidden.
inline constexpr wchar_t SubstLog[] = L".log";
// The drives that it has made, as the command lists them.
inline constexpr wchar_t SubstDrives[] = L".drives";
// What it lists instead, unless that is empty.
inline constexpr wchar_t SubstOutput[] = L".output";

}  // namespace endtoend
