// The command that checks the open form.
#pragma once

// Shows frmPruefung, made at its first use, in front of the other child windows. Without an open form no
// window comes, and the status help says why; one that is there stays and says so too.
void PruefungZeigen();
