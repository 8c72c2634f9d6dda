feldkranz_quellen(modell dialogs/fehlertexte.cpp)
feldkranz_quellen(fenster
  dialogs/modal.cpp
  dialogs/meldung.cpp
  dialogs/eingabe.cpp
  dialogs/sinnbilder.cpp
  dialogs/dialoggrund.h dialogs/dialoggrund.cpp
  dialogs/frmMeldung.h dialogs/frmMeldung.cpp
  dialogs/frmNachricht.h dialogs/frmNachricht.cpp
  dialogs/frmInput.h dialogs/frmInput.cpp)
