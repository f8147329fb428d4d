#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sweep_test {

// What one failing call may cost a workflow; whatever else differs from a run in which nothing
// fails is a fault.
struct Rule {
    // Beginnings of the names of workflows; "" is all.
    std::vector<std::string_view> workflows;
    // The calls that fail; one that ends in '*' is the beginning of names.
    std::vector<std::string_view> calls;
    // Beginnings of the names that may then be as they were before. Behind a '!' also otherwise.
    // Behind a '1' at most one of them, whatever it is then.
    std::vector<std::string_view> costs;
    // The title of the box that must tell of it; with nothing here none may.
    std::string_view tells = "";
    // Whether no procedure keeps it, so that it ends in the platform's default message.
    bool escapes = false;
};

const std::vector<Rule>& Rules();

// The rules for a workflow, and for a call in it.
std::vector<const Rule*> RulesFor(std::string_view workflow);
std::vector<const Rule*> RulesFor(std::string_view workflow, std::string_view call);

}  // namespace sweep_test
