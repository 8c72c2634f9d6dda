feldkranz_quellen(modell
  persistence/abschnitt.cpp
  persistence/dateiliste.cpp
  persistence/einstellungsdatei.cpp
  persistence/formularabschnitte.cpp
  persistence/formulardatei.cpp
  persistence/rettungsname.cpp
  persistence/wertlesen.cpp
  persistence/wertschreiben.cpp)
feldkranz_quellen(rand persistence/einstellungenladen.cpp persistence/formularpfad.cpp)
feldkranz_quellen(fenster
  persistence/formularlesen.cpp
  persistence/oeffnen.cpp
  persistence/rettung.cpp
  persistence/schliessen.cpp
  persistence/sicherung.cpp
  persistence/speichern.cpp)
