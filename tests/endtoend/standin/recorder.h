#pragma once

// How the suite and the program that stands in for the system's own tools speak with each other.
namespace endtoend {

// Added to the stand-in's path: the file in which it says how it was started. UTF-16 without a
// mark, three lines: command line, working directory, and the way its window is to be shown ("-"
// when nobody asked for one).
inline constexpr wchar_t RecordSuffix[] = L".record";

// While there is an event of this name, a stand-in runs until it is set, or for half a minute.
inline constexpr wchar_t MayEnd[] = L"QuillmoreTestStandInMayEnd";

}  // namespace endtoend
