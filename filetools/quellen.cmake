feldkranz_quellen(modell filetools/formularlistetexte.cpp filetools/kopiername.cpp)
feldkranz_quellen(fenster
  filetools/dateidialog.cpp
  filetools/dateiaktionen.cpp
  filetools/ordneraktionen.cpp
  filetools/fehlerkasten.cpp
  filetools/dateivorschau.h filetools/dateivorschau.cpp
  filetools/laufwerksfeld.h filetools/laufwerksfeld.cpp
  filetools/listentasten.cpp
  filetools/pfadschild.h filetools/pfadschild.cpp
  filetools/frmDatei.h filetools/frmDatei.cpp filetools/frmDateiAufbau.cpp filetools/frmDateiListen.cpp
  filetools/formularliste.cpp
  filetools/ordnerwaechter.cpp
  filetools/frmFKformulare.h filetools/frmFKformulare.cpp filetools/frmFKformulareBau.cpp
  filetools/frmFKformulareListe.cpp)
