#include <cstdlib>
#include <new>

#include "cmd/run.h"
#include "cmd/surroundings.h"
#include "runtime/failure.h"
#include "runtime/mistake.h"

// What the console program does is another thing here, so that its main is seen alone:
//   memory, mistake, failure, number   throws such a thing
//   say CODE TEXT ...                  puts each text out on a line and ends with that code

namespace cmd {

int Run(const std::vector<std::string>& arguments, const platform::Machine&,
        platform::WideRegistry&, Surroundings& around) {
    const std::string& what = arguments.at(0);
    if (what == "memory") throw std::bad_alloc();
    if (what == "mistake") throw runtime::Mistake("größer als gedacht");
    if (what == "failure") throw runtime::Failure(runtime::TypeMismatch);
    if (what == "number") throw 5;
    around.UseUtf8();
    for (std::size_t i = 2; i < arguments.size(); ++i) around.Out(arguments[i] + "\n");
    return std::atoi(arguments.at(1).c_str());
}

}  // namespace cmd
