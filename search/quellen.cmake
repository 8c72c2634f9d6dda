feldkranz_quellen(modell
  search/aehnlich.cpp
  search/benutzung.cpp
  search/faltung.cpp
  search/fragenbestand.cpp
  search/stellensuche.cpp
  search/suchanfrage.cpp
  search/suche.cpp
  search/wortstamm.cpp
  search/zielfeld.cpp)
feldkranz_quellen(rand search/formularblick.cpp search/katalogblick.cpp)
feldkranz_quellen(fenster
  search/auswahlhinweis.cpp
  search/fragendienst.cpp search/fragendienst.h
  search/frmSuche.cpp search/frmSuche.h search/frmSucheBau.cpp
  search/treffermaler.cpp
  search/treffermodell.cpp search/treffermodell.h
  search/treffertabelle.cpp search/treffertabelle.h
  search/trefferweg.cpp)
