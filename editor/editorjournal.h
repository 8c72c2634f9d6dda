// The journal of the editor's unsaved text: when it is written, where to, and how the text of a program that
// was ended by force comes back. The file itself is persistence/journal.h.
#pragma once

#include <QString>

#include <optional>
#include <string>

// The editor's change flag was set. Changed: its text is written within two seconds; unchanged: the journal
// goes.
void EditorjournalFuehren(bool geaendert);
// The window has gone, and its text with it.
void EditorjournalBeenden();

// The newest journal of a catalogue file whose program was ended by force.
[[nodiscard]] std::optional<QString> Editorjournal(const std::string& pfad);
// The editor's text came out of this journal, which goes with it.
void EditorjournalUebernehmen(const QString& pfad);
