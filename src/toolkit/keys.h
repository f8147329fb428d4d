#pragma once

// The virtual keys that forms and lists listen to themselves.
namespace toolkit::key {

inline constexpr int Escape = 0x1B;
inline constexpr int Delete = 0x2E;
inline constexpr int F5 = 0x74;

}  // namespace toolkit::key
