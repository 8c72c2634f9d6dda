// What is said below a sheet: what has no room on it, else what is to be done with the paper.
#pragma once

#include "sheets/blattart.h"
#include "sheets/blattsatz.h"

#include <string>

// Three lines at most.
[[nodiscard]] std::string Blatthinweis(const Blattsatz& blatt, Blattart art);
