#pragma once

// The virtual keys that are listened to.
namespace toolkit::key {

inline constexpr int Escape = 0x1B;
inline constexpr int Space = 0x20;
inline constexpr int Left = 0x25;
inline constexpr int Up = 0x26;
inline constexpr int Right = 0x27;
inline constexpr int Down = 0x28;
inline constexpr int Delete = 0x2E;
inline constexpr int F4 = 0x73;
inline constexpr int F5 = 0x74;

}  // namespace toolkit::key
