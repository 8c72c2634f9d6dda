// The miniature of the board on the quiz toolbar: thirty small cells in six columns, painted by kind of
// field.
#pragma once

class QWidget;

// Builds the cells picJoker(1) to (30) on picSpezial.
void SpezialRasterAufbauen(QWidget* picSpezial);
