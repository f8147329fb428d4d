#include "calls.h"

#include <utility>

namespace bench {
namespace {

using Key = Service::Key;
using Result = Service::Result;

}  // namespace

Call& Recorder::Note(Call::Kind kind, Key key, std::string_view name) {
    Call& call = calls_.emplace_back();
    call.kind = kind;
    call.name = name;
    if (IsRoot(key)) {
        call.root = key;
        return call;
    }
    // The latest one, as the system gives out closed handles again.
    for (std::size_t i = handles_.size(); i-- > 0;) {
        if (handles_[i] != key) continue;
        call.handle = i;
        break;
    }
    return call;
}

Result Recorder::Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) {
    Call& call = Note(Call::Open, parent, path);
    call.number = access;
    call.result = real_.Open(parent, path, access, opened);
    handles_.push_back(call.result == Success ? opened : 0);
    return call.result;
}

Result Recorder::Create(Key parent, std::string_view name, std::uint32_t access, Key& created) {
    Call& call = Note(Call::Create, parent, name);
    call.number = access;
    call.result = real_.Create(parent, name, access, created);
    handles_.push_back(call.result == Success ? created : 0);
    return call.result;
}

Result Recorder::Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& size) {
    Call& call = Note(Call::Query, key, valueName);
    call.size = size;
    call.wantsData = data != nullptr;
    call.result = real_.Query(key, valueName, type, data, size);
    return call.result;
}

Result Recorder::Set(Key key, std::string_view valueName, std::uint32_t type,
                     const std::uint8_t* data, std::uint32_t size) {
    Call& call = Note(Call::Set, key, valueName);
    call.number = type;
    call.size = size;
    call.data.assign(data, data + size);
    call.data.push_back(0xFF);
    call.result = real_.Set(key, valueName, type, data, size);
    return call.result;
}

Result Recorder::RemoveValue(Key key, std::string_view valueName) {
    Call& call = Note(Call::RemoveValue, key, valueName);
    call.result = real_.RemoveValue(key, valueName);
    return call.result;
}

Result Recorder::RemoveKey(Key parent, std::string_view path) {
    Call& call = Note(Call::RemoveKey, parent, path);
    call.result = real_.RemoveKey(parent, path);
    return call.result;
}

Result Recorder::Close(Key key) {
    Call& call = Note(Call::Close, key, "");
    call.result = real_.Close(key);
    return call.result;
}

std::vector<Call> Recorder::Take() {
    handles_.clear();
    return std::exchange(calls_, {});
}

void Repeat(const std::vector<Call>& calls, Service& service) {
    std::vector<Key> handles;
    std::vector<std::uint8_t> buffer;
    for (const Call& call : calls) {
        const Key key = call.root != 0 ? call.root : handles[call.handle];
        switch (call.kind) {
            case Call::Open:
                handles.push_back(0);
                service.Open(key, call.name, call.number, handles.back());
                break;
            case Call::Create:
                handles.push_back(0);
                service.Create(key, call.name, call.number, handles.back());
                break;
            case Call::Query: {
                std::uint32_t type = 0;
                std::uint32_t size = call.size;
                if (buffer.size() < size) buffer.resize(size);
                service.Query(key, call.name, type, call.wantsData ? buffer.data() : nullptr, size);
                break;
            }
            case Call::Set:
                service.Set(key, call.name, call.number, call.data.data(), call.size);
                break;
            case Call::RemoveValue:
                service.RemoveValue(key, call.name);
                break;
            case Call::RemoveKey:
                service.RemoveKey(key, call.name);
                break;
            case Call::Close:
                service.Close(key);
                break;
        }
    }
}

}  // namespace bench
