feldkranz_quellen(modell
  checking/anfuehrungen.cpp
  checking/befund.cpp
  checking/fragenpruefung.cpp
  checking/papierkasten.cpp
  checking/papierpruefung.cpp
  checking/pruefung.cpp
  checking/pruefzeile.cpp)
feldkranz_quellen(rand checking/pruefschriften.cpp)
feldkranz_quellen(fenster
  checking/befundmodell.cpp checking/befundmodell.h
  checking/frmPruefung.cpp checking/frmPruefung.h
  checking/frmPruefungBau.cpp
  checking/fuehren.cpp
  checking/pruefen.cpp)
