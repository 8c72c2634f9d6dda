feldkranz_quellen(modell
  persistence/abschnitt.cpp
  persistence/anfuehrungsorte.cpp
  persistence/dateistand.cpp
  persistence/einstellungsdatei.cpp
  persistence/extraswerte.cpp
  persistence/formularabschnitte.cpp
  persistence/formulardatei.cpp
  persistence/journalname.cpp
  persistence/rettungsname.cpp)
feldkranz_quellen(rand persistence/dateiblick.cpp persistence/dateiliste.cpp persistence/einstellungenladen.cpp
  persistence/extrasdatei.cpp persistence/journal.cpp persistence/journaltakt.cpp)
feldkranz_quellen(fenster persistence/fremdfrage.cpp persistence/sicherung.cpp)
