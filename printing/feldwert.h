// What a cell is and what it is worth on paper, as every sheet says it.
#pragma once

#include "printing/seitenlayout.h"
#include "rules/spezialarten.h"

#include <string>

// The kind of a cell; nullptr for a plain one and for one that is not in play.
[[nodiscard]] const Artzeile* Feldart(const FKDruckfeld& feld);
// A kind with a word shows only that, and no texts.
[[nodiscard]] bool HatWort(const Artzeile* art);
// The points of its kind, or what stands for them. art: nullptr for a plain question, which is worth its row;
// zeile: from 1.
[[nodiscard]] std::string Feldwert(const Artzeile* art, const Artwerte& punkte, int zeile);
