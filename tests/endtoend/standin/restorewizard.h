#pragma once

// How the suite and its stand-in for the system's restore wizard speak with each other.
namespace endtoend {

// The stand-in runs until this event is set, or ends by itself after a while.
inline constexpr wchar_t WizardMayEnd[] = L"QuillmoreTestWizardMayEnd";
// Beside the stand-in: the command line that it was started with, in UTF-16 without a mark.
inline constexpr wchar_t WizardRecord[] = L"rstrui.txt";

}  // namespace endtoend
