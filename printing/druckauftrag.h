// What the print commands of both forms have in common: the progress bar around the work, and what the user
// is told afterwards.
#pragma once

#include <functional>
#include <string>

// Runs the work with the progress bar around it, and tells what became of it: where the PDF lies whose path
// the work returns ("" for a printer and after a cancelled question), or why it failed.
void AuftragAusfuehren(const std::function<std::string()>& arbeit);
