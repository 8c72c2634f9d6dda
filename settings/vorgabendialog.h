// The settings dialog as the rest of the program sees it.
#pragma once

// Shows the dialog and comes back when the user has applied or cancelled it.
void VorgabenZeigen();
