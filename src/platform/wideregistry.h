#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace platform {

// The registry through the entry points of advapi32 that end in W: the very bytes, two a character
// of a text, with nothing converted. Names and paths are UTF-8, in which half a pair of surrogates
// is three bytes like any other character. A key is named by its root, one of Registry's, and the
// path below it, "" being the root itself. A key is opened for each call and closed again. The
// results are those of the registry's: 0 is success, Registry::FileNotFound a key or a value that
// is not there.
class WideRegistry {
  public:
    using Root = Registry::Key;
    using Result = Registry::Result;

    struct Value {
        std::uint32_t type = 0;
        std::vector<std::uint8_t> bytes = {};

        bool operator==(const Value&) const = default;
    };

    virtual ~WideRegistry() = default;

    // Whether the key is there: Success, or why it cannot be opened for reading.
    virtual Result Ask(Root root, std::string_view path) = 0;

    // The names of all sub-keys, and of all values. What has been found stays when a later call
    // fails.
    virtual Result KeyNames(Root root, std::string_view path, std::vector<std::string>& names) = 0;
    virtual Result ValueNames(Root root, std::string_view path,
                              std::vector<std::string>& names) = 0;

    virtual Result Read(Root root, std::string_view path, std::string_view name, Value& value) = 0;

    // Into a key that is there.
    virtual Result Write(Root root, std::string_view path, std::string_view name,
                         const Value& value) = 0;
    virtual Result RemoveValue(Root root, std::string_view path, std::string_view name) = 0;

    // Makes the key with all its levels, or finds it there.
    virtual Result Create(Root root, std::string_view path) = 0;
    // A key with sub-keys stays, whatever version of Windows this is: Registry::AccessDenied.
    virtual Result RemoveKey(Root root, std::string_view path) = 0;
};

}  // namespace platform
