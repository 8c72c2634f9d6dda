// Leads from a finding to its place on the form, so that one sees it.
#pragma once

#include "checking/befund.h"

class Formularfenster;
class QWidget;

// Brings the form to the front, gives the place's control the focus and scrolls there. The child window that
// liste lies in gives way where it would cover the control.
void ZumOrt(Formularfenster& form, const Befundort& ort, QWidget& liste);
