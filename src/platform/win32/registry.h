#pragma once

#include "platform/registry.h"

namespace platform::win32 {

class Registry final : public platform::Registry {
  public:
    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override;
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& created) override;
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override;
    Result Set(Key key, std::string_view valueName, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override;
    Result RemoveValue(Key key, std::string_view valueName) override;
    Result RemoveKey(Key parent, std::string_view path) override;
    Result EnumerateKey(Key key, std::uint32_t index, std::string& name) override;
    Result LongestValueName(Key key, std::uint32_t& length) override;
    Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                          std::string& name) override;
    Result Close(Key key) override;
};

}  // namespace platform::win32
