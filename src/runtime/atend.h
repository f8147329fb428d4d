#pragma once

namespace runtime {

// What a procedure leaves behind it, also when a failure ends it.
template <typename Action>
struct AtEnd {
    Action action;
    ~AtEnd() { action(); }
};

// Which older clangs do not find by themselves.
template <typename Action>
AtEnd(Action) -> AtEnd<Action>;

}  // namespace runtime
