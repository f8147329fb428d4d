#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cmd/places.h"
#include "platform/dryrun/change.h"
#include "regfile/registrationfile.h"

namespace platform {
class Locale;
}

namespace cmd {

using platform::WideRegistry;

// One thing to do to the registry, or done to it.
struct Change {
    enum class Kind { CreateKey, DeleteKey, WriteValue, DeleteValue };

    Kind kind = Kind::CreateKey;
    Root root = 0;
    std::string path;
    std::string valueName = {};
    std::optional<WideRegistry::Value> before = std::nullopt;
    std::optional<WideRegistry::Value> after = std::nullopt;
    // Otherwise nobody knows whether the value is there.
    bool isBeforeKnown = true;
};

// In the order in which they can be carried out: what comes into being from the roots on, what goes
// from below.
using Changes = std::vector<Change>;

// What a dry run would change, as calls with texts in the ANSI code page would do it.
Changes ChangesOf(const std::vector<platform::dryrun::Change>& kept,
                  const platform::Locale& locale);

// Something that failed, as it is told: the place, and the system's number of the reason.
struct Refusal {
    std::string place;
    platform::Registry::Result reason = 0;

    bool operator==(const Refusal&) const = default;
};
using Refusals = std::vector<Refusal>;

// Puts what is there now into the changes of values, to the byte, and takes those out that change
// none: a dry run tells what the ANSI calls tell, in which a character that the code page lacks is
// a question mark. What cannot be read is noted.
void ReadBefore(Changes& changes, WideRegistry& registry, Refusals& refusals);

// Carries them out one after the other; one that fails is noted, and the next one runs. The values
// of a key that goes are not deleted one by one: they go with it or stay with it. `done` hears of
// each that succeeded.
void CarryOut(const Changes& changes, WideRegistry& registry, Refusals& refusals,
              const std::function<void(const Change&)>& done);

// The same as a registration file. A key goes with all that is below it there.
std::vector<regfile::Key> AsRegistrationFile(const Changes& changes);

// "ändern HKLM\Key [Name]: REG_SZ "1" -> REG_SZ "0"", as something to be done.
std::string ToDo(const Change& change);
// Each on a line of its own.
std::string ListToDo(const Changes& changes);
// The same as something done: "geändert ...".
std::string Done(const Change& change);

// "REG_DWORD 0x00000001 (1)". On one line; of long data the beginning and how many bytes there are,
// unless all of them are wanted.
std::string TypeText(std::uint32_t type);
std::string DataText(const WideRegistry::Value& value, bool all = false);

}  // namespace cmd
