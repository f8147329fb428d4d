#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace bench {

using Service = platform::Registry;

// One call of the registry as it was made, with what a bare program has to know to repeat it.
struct Call {
    enum Kind { Open, Create, Query, Set, RemoveValue, RemoveKey, Close };

    Kind kind = Open;
    // A predefined root, or 0 and the place among all handles opened so far, from 0.
    Service::Key root = 0;
    std::size_t handle = 0;
    // The path or the name of the value.
    std::string name = {};
    // The rights asked for, or the type of the value.
    std::uint32_t number = 0;
    // Of the buffer or of the data.
    std::uint32_t size = 0;
    bool wantsData = false;
    // What was written, and behind it a byte other than NUL (a NUL there would be stored as well).
    std::vector<std::uint8_t> data = {};
    Service::Result result = Service::Success;

    bool operator==(const Call&) const = default;
};

// The passes know their keys and values by name and enumerate nothing.
class WithoutEnumeration : public Service {
  public:
    Result EnumerateKey(Key, std::uint32_t, std::string&) override { return NoMoreItems; }
    Result LongestValueName(Key, std::uint32_t&) override { return NoMoreItems; }
    Result EnumerateValue(Key, std::uint32_t, std::uint32_t, std::string&) override {
        return NoMoreItems;
    }
};

// Passes everything else on and notes it.
class Recorder final : public WithoutEnumeration {
  public:
    explicit Recorder(Service& real) : real_(real) {}

    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override;
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& created) override;
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override;
    Result Set(Key key, std::string_view valueName, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override;
    Result RemoveValue(Key key, std::string_view valueName) override;
    Result RemoveKey(Key parent, std::string_view path) override;
    Result Close(Key key) override;

    // The calls since the last time. Handles opened before cannot be used after.
    std::vector<Call> Take();

  private:
    Call& Note(Call::Kind kind, Key key, std::string_view name);

    Service& real_;
    std::vector<Call> calls_;
    std::vector<Key> handles_;
};

// The bare loop: the calls once more, one after the other, without a look at what comes back.
void Repeat(const std::vector<Call>& calls, Service& service);

}  // namespace bench
