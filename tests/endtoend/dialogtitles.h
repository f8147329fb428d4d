#pragma once

// The titles of the dialogue that Apply holds.
namespace endtoend {

inline constexpr char ConfirmTitle[] = "Einstellungen speichern";
inline constexpr char RestorePointTitle[] = "Systemwiederherstellungspunkt";
inline constexpr char DoneTitle[] = "Einstellungen gespeichert";
inline constexpr char WrongPasswordTitle[] = "Passwort falsch";

}  // namespace endtoend
