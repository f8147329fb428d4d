#pragma once

#include "platform/wideregistry.h"

namespace platform::win32 {

class WideRegistry final : public platform::WideRegistry {
  public:
    Result Ask(Root root, std::string_view path) override;
    Result KeyNames(Root root, std::string_view path, std::vector<std::string>& names) override;
    Result ValueNames(Root root, std::string_view path, std::vector<std::string>& names) override;
    Result Read(Root root, std::string_view path, std::string_view name, Value& value) override;
    Result Write(Root root, std::string_view path, std::string_view name,
                 const Value& value) override;
    Result RemoveValue(Root root, std::string_view path, std::string_view name) override;
    Result Create(Root root, std::string_view path) override;
    Result RemoveKey(Root root, std::string_view path) override;
};

}  // namespace platform::win32
