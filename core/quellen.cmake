feldkranz_quellen(modell core/laufzeitfehler.cpp)
feldkranz_quellen(rand core/datei.h core/pfad.h core/plattform.h)
feldkranz_quellen(fenster
  core/oberflaeche.cpp
  core/panel.cpp core/panel.h
  core/textfeld.cpp core/textfeld.h
  core/ziehbilder.cpp core/ziehen.cpp)
