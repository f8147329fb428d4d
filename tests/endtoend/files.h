#pragma once

#include <string>

namespace endtoend {

// The bytes of a file; empty when there is none.
std::string ReadFile(const std::string& path);

// The folder of the running test program; programs and data files of the suite lie in it.
std::string OwnFolder();

}  // namespace endtoend
