// The window that fills the open form, as others see it.
#pragma once

// Shows it for the form that is open, made on first use; without one the status help says so.
void FuellenZeigen();
// What stands on the form, or which form is open, may be another. Costs nothing without the window.
void FuellenAngleichen();
