// What the help panel says about a file when there is little room. Measures nothing itself: passt tells
// whether a text has room. Texts are UTF-8.
#pragma once

#include <functional>
#include <string>
#include <string_view>

using Passend = std::function<bool(const std::string&)>;

// The text with as little of its middle left out as it takes; "…" stands there. "" if its two ends alone have
// no room.
[[nodiscard]] std::string MitteGekuerzt(const std::string& text, const Passend& passt);

// The text with name and folder in place of its two {}: the folder gives way first, then the rest of the
// text, and only a name that has no room by itself loses its middle.
[[nodiscard]] std::string Dateihinweis(std::string_view text, const std::string& name,
                                       const std::string& ordner, const Passend& passt);
