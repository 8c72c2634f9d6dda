// Holds what the program shows or writes against a committed file of tests/abbild/erwartet. With
// ABBILD_ERNEUERN=1 in the environment the file is written anew instead.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QByteArray>
#include <QString>

class QWidget;

namespace abbild {

// Waits until the window is as its file says; fails with the first lines that differ when it doesn't become
// so. name: of the file, without folder and extension.
void FensterVergleichen(QWidget* fenster, const QString& name, Stelle stelle = Stelle::hier());

// Bytes against a file, its name with extension; they may be in any encoding.
void BytesVergleichen(const QByteArray& ist, const QString& datei, Stelle stelle = Stelle::hier());

} // namespace abbild
