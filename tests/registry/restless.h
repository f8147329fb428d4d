#pragma once

#include <functional>
#include <utility>

#include "platform/registry.h"

namespace registry_tests {

// A registry in which another program is at work: it passes everything on, and does something of
// its own right after one chosen call.
class Restless final : public platform::Registry {
  public:
    explicit Restless(platform::Registry& real) : real_(real) {}

    // After the n-th call from now on, counted from 1.
    void After(int n, std::function<void()> act) {
        countdown_ = n;
        act_ = std::move(act);
    }
    bool HasActed() const { return countdown_ <= 0; }

    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override {
        return Passed(real_.Open(parent, path, access, opened));
    }
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& created) override {
        return Passed(real_.Create(parent, name, access, created));
    }
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override {
        return Passed(real_.Query(key, valueName, type, data, size));
    }
    Result Set(Key key, std::string_view valueName, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override {
        return Passed(real_.Set(key, valueName, type, data, size));
    }
    Result RemoveValue(Key key, std::string_view valueName) override {
        return Passed(real_.RemoveValue(key, valueName));
    }
    Result RemoveKey(Key parent, std::string_view path) override {
        return Passed(real_.RemoveKey(parent, path));
    }
    Result EnumerateKey(Key key, std::uint32_t index, std::string& name) override {
        return Passed(real_.EnumerateKey(key, index, name));
    }
    Result LongestValueName(Key key, std::uint32_t& length) override {
        return Passed(real_.LongestValueName(key, length));
    }
    Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                          std::string& name) override {
        return Passed(real_.EnumerateValue(key, index, room, name));
    }
    Result Close(Key key) override { return Passed(real_.Close(key)); }

  private:
    Result Passed(Result result) {
        if (--countdown_ == 0) act_();
        return result;
    }

    platform::Registry& real_;
    int countdown_ = 0;
    std::function<void()> act_;
};

}  // namespace registry_tests
