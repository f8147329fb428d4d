#pragma once

#include <string>
#include <vector>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "tools/launchers.h"

namespace tools_test {

// Launchers whose failures are noted as "procedure number".
struct LauncherFixture {
    platform::simulated::Machine machine;
    std::vector<std::string> reports;
    tools::Launchers launchers{
        machine.services, [this](std::string_view procedure, const auto& body) {
            try {
                body();
            } catch (const runtime::Failure& failure) {
                reports.push_back(std::string(procedure) + " " + std::to_string(failure.number));
            }
        }};
};

}  // namespace tools_test
