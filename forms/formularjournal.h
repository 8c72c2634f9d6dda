// The journal of the open form: when its unsaved changes are written, where to, and what is said about the
// journals of programs that were ended by force. The file itself is persistence/journal.h.
#pragma once

#include <QString>

#include <string>

// The form's file is this one from now on: its journal lies beside it. Called where a form begins, is saved
// or read.
void FormularjournalEinrichten();
// The form has been compared with what was saved. Changed: its journal is written within two seconds, and at
// most every two; unchanged: it goes.
void FormularjournalFuehren(bool geaendert);
// The form has gone, or another one took its place.
void FormularjournalBeenden();
// Waits until what was given to be written is written.
void FormularjournalAbwarten();
// Waits for the thread that writes, and ends it; when the main window goes.
void FormularjournalSchliessen();
// The open form came out of this journal, which goes with it as soon as it is saved or discarded.
void FormularjournalUebernehmen(const std::string& pfad);

// Says in the status help that a journal of this form lies beside it, or of any form or text in the program's
// folders; nothing where there is none.
void JournalMelden(const std::string& pfad);
void JournaleMelden();
