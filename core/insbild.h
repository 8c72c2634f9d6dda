// Scrolls the child area so that a control of a child window is seen.
#pragma once

class QWidget;

// Nothing happens for a control that lies in no child window.
void InsBild(const QWidget& element);
