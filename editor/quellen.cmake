feldkranz_quellen(modell editor/katalogtext.cpp)
feldkranz_quellen(rand editor/editorpfad.cpp)
feldkranz_quellen(fenster
  editor/editor.cpp
  editor/zwischenablage.cpp
  editor/editoraufbau.cpp
  editor/editordateien.cpp
  editor/editorjournal.cpp
  editor/frmEditor.cpp editor/frmEditor.h
  editor/notizfeld.cpp editor/notizfeld.h)
