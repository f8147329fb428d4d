#pragma once

#include <string>
#include <vector>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "utilities/launchers.h"

namespace utilities_test {

// Launchers whose failures are noted as "procedure number".
struct LauncherFixture {
    platform::simulated::Machine machine;
    std::vector<std::string> reports;
    utilities::Launchers launchers{
        machine.services, [this](std::string_view procedure, const auto& body) {
            try {
                body();
            } catch (const runtime::Failure& failure) {
                reports.push_back(std::string(procedure) + " " + std::to_string(failure.number));
            }
        }};
};

}  // namespace utilities_test
