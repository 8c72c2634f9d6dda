// The command that shows the open form as it will be printed.
#pragma once

// Shows frmVorschau, made at its first use, in front of the other child windows. Without an open form no
// window comes, and the status help says why; one that is there stays and says so too.
void VorschauZeigen();
