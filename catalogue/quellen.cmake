feldkranz_quellen(modell catalogue/fragenliste.cpp catalogue/katalogdatei.cpp catalogue/themen.cpp)
feldkranz_quellen(fenster
  catalogue/auswahllisten.cpp
  catalogue/blattfall.cpp catalogue/blattfall.h
  catalogue/frmAuswahl.cpp catalogue/frmAuswahl.h catalogue/frmAuswahlBau.cpp
  catalogue/muell.cpp
  catalogue/spaltenmodell.cpp catalogue/spaltenmodell.h)
feldkranz_quellen(fenster catalogue/katalogladen.cpp)
