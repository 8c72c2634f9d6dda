// Code page 1252 at the border of bytes. In the model all text is UTF-8.
#pragma once

#include <string>
#include <string_view>

// UTF-8 for bytes of code page 1252. The five bytes without a character become the control character of the
// same value, so that a file's bytes come back unchanged.
[[nodiscard]] std::string AusCp1252(std::string_view bytes);
// The same, appended to ziel.
void AusCp1252Anhaengen(std::string& ziel, std::string_view bytes);

// Bytes of code page 1252 for UTF-8. What the code page can't hold becomes its nearest equivalent, or "?".
[[nodiscard]] std::string NachCp1252(std::string_view utf8);

// True for a character that code page 1252 holds.
[[nodiscard]] bool InCp1252(char32_t zeichen);
// Nearest equivalent of a character that it doesn't hold ("l" for ł, "->" for →); "" where there is none.
[[nodiscard]] std::string Ersatzzeichen(char32_t zeichen);
