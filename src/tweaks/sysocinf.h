#pragma once

namespace platform {
struct Machine;
}

namespace tweaks {

// Rewrites the file that lists the components of Windows, Sysoc.inf in the Windows directory's
// folder "inf", as lines that end in CR LF. With `show` every "Hide" goes out of it, in capitals
// too, so that the control panel offers the components for removal. Without `show` the lines stay
// as they are: what has been taken out never comes back. A byte-order mark goes in either case; the
// NULs of a file in 16-bit characters stay.
//
// The file is replaced in place, without a copy. Throws the Failure of the step that failed, with
// nothing after it done: a file that cannot be read or deleted stays as it was, one that cannot be
// made anew is lost.
void RewriteSysocInf(const platform::Machine& machine, bool show);

}  // namespace tweaks
