// The names of the quiz form's controls for those who can't see where they stand.
#pragma once

class frmFKFragen;

// Names all cells, and names them anew whenever the title of their area changes.
void AnsagenEinrichten(frmFKFragen& form);
