feldkranz_quellen(modell
  settings/regelschritte.cpp
  settings/vorgaben.cpp)
feldkranz_quellen(fenster
  settings/blattskizze.cpp settings/blattskizze.h
  settings/frmIni.cpp settings/frmIni.h
  settings/inibefehle.cpp
  settings/inidarstellung.cpp
  settings/inifarben.cpp
  settings/iniregeln.cpp
  settings/iniregister.cpp
  settings/inizaehler.cpp
  settings/spaltenschild.cpp settings/spaltenschild.h)
