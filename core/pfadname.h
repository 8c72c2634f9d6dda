// Taking the text of a path apart. Looks at no disk.
#pragma once

#include <functional>
#include <string>
#include <string_view>

// The part behind the last backslash; with none, the path.
[[nodiscard]] std::string NurDateiname(std::string_view pfad);
// The part of a name from the last point to the end, the point included; "" with no point.
[[nodiscard]] std::string Dateiendung(std::string_view name);

// False for a name that nothing names or no list shows: none, blanks alone, an extension alone, a point in
// front.
[[nodiscard]] bool NameBrauchbar(std::string_view name);

// The first of X.pdf, X1.pdf, X2.pdf and so on that may be used, asked in turn.
[[nodiscard]] std::string FreierPfad(const std::string& pfad,
                                     const std::function<bool(const std::string&)>& darf);

struct PfadTeile {
    std::string laufwerk, ordner, name, endung;
};
// Drive, folder, name and extension of a path; "?" for each part that it doesn't have.
[[nodiscard]] PfadTeile PfadZerlegen(std::string_view pfad);

// A path cut short in the middle, with an ellipsis there, so that passt is true for it. The last part stays
// whole as long as it fits at all. A path that fits comes back as it is.
[[nodiscard]] std::string PfadGekuerzt(std::string_view pfad,
                                       const std::function<bool(std::string_view)>& passt);

// Upper and lower case of UTF-8 text in the letters of code page 1252 (ß stays).
[[nodiscard]] std::string Grossschreiben(std::string_view text);
[[nodiscard]] std::string Kleinschreiben(std::string_view text);
// The text without blanks at both ends.
[[nodiscard]] std::string Getrimmt(std::string_view text);
