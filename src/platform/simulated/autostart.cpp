#include "platform/simulated/autostart.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

bool AutoStart::AutoStartAdd(std::string_view directory, std::string_view title,
                             std::string_view executable) {
    bool done = !faults_.Check("AutoStartAdd", title);
    if (done) {
        entries[std::string(title)] =
            "\"" + std::string(directory) + "\\" + std::string(executable) + ".exe\"";
    }
    journal_.Note([&] {
        return "AutoStartAdd " + Quoted(directory) + " " + Quoted(title) + " " +
               Quoted(executable) + " -> " + std::to_string(done);
    });
    return done;
}

bool AutoStart::AutoStartRemove(std::string_view title) {
    bool done = !faults_.Check("AutoStartRemove", title) && entries.erase(std::string(title)) != 0;
    journal_.Note(
        [&] { return "AutoStartRemove " + Quoted(title) + " -> " + std::to_string(done); });
    return done;
}

bool AutoStart::AutoStartExists(std::string_view title) const {
    bool exists = !faults_.Check("AutoStartExists", title) && entries.contains(std::string(title));
    journal_.Note(
        [&] { return "AutoStartExists " + Quoted(title) + " -> " + std::to_string(exists); });
    return exists;
}

}  // namespace platform::simulated
