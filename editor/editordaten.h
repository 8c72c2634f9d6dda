// The text that travels between the catalogue's files and the editor, and the note a form file may hold.
#pragma once

#include <cstdint>
#include <string>

inline std::string Bemerkung;
inline std::string BemerkungMarke; // first token of the catalogue file
inline std::int16_t SpeichernMitDialog = 0;
