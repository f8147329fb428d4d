#pragma once

#include "platform/wideregistry.h"

namespace platform::simulated {

class Registry;

// The wide calls of the registry in memory. It holds names and texts in code page 1252 and has no
// other door than the A calls: these stand in the journal and fail when told to, and what the code
// page cannot hold becomes question marks. Half a character at the end of a text is lost.
class WideRegistry final : public platform::WideRegistry {
  public:
    explicit WideRegistry(Registry& registry) : registry_(registry) {}

    Result Ask(Root root, std::string_view path) override;
    Result KeyNames(Root root, std::string_view path, std::vector<std::string>& names) override;
    Result ValueNames(Root root, std::string_view path, std::vector<std::string>& names) override;
    Result Read(Root root, std::string_view path, std::string_view name, Value& value) override;
    Result Write(Root root, std::string_view path, std::string_view name,
                 const Value& value) override;
    Result RemoveValue(Root root, std::string_view path, std::string_view name) override;
    Result Create(Root root, std::string_view path) override;
    Result RemoveKey(Root root, std::string_view path) override;

  private:
    Registry& registry_;
};

}  // namespace platform::simulated
