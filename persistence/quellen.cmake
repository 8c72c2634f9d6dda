feldkranz_quellen(modell
  persistence/abschnitt.cpp
  persistence/dateiliste.cpp
  persistence/einstellungsdatei.cpp
  persistence/formularabschnitte.cpp
  persistence/formulardatei.cpp
  persistence/wertlesen.cpp
  persistence/wertschreiben.cpp)
