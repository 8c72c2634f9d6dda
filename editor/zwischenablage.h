// The editor's eight clipboard commands, on the toolkit's own clipboard and with plain text only.
#pragma once

#include <cstddef>

class frmEditor;

// Runs cmdCopy(index); a run-time error is reported.
void ZwischenablageBefehl(frmEditor& editor, std::size_t index);
