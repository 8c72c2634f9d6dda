// What a drop on the trash field does, by the place where the drag began.
#pragma once

class frmAuswahl;

void MuellAblegen(frmAuswahl& fenster);
