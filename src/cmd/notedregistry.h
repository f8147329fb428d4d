#pragma once

#include <map>

#include "cmd/change.h"

namespace cmd {

// Passes every call on and notes those that were refused, so that a pass, which knows no failed
// call, can be asked afterwards. A key or a value that is not there is no refusal.
class NotedRegistry final : public platform::Registry {
  public:
    explicit NotedRegistry(platform::Registry& inner) : inner_(inner) {}

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

    // Each place with its reason once, in the order in which they came.
    const Refusals& Refused() const { return refused_; }

  private:
    struct Opened {
        Root root = 0;
        std::string path;
    };

    Opened Below(Key parent, std::string_view path) const;
    Result Noted(Result result, const std::string& place);
    Result NotedKey(Result result, Key key);
    Result NotedValue(Result result, Key key, std::string_view valueName);

    platform::Registry& inner_;
    std::map<Key, Opened> open_;
    Refusals refused_;
};

}  // namespace cmd
